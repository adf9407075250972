#include "platform/file_question.h"

namespace fabula::platform {

std::string FilterOf(std::string_view kind, std::string_view extension) {
    return std::string(kind).append("|*").append(extension);
}

FileQuestion QuestionFor(std::string_view title, std::string_view kind, std::string_view extension,
                         const std::filesystem::path& start) {
    FileQuestion question;
    question.title = title;
    question.filter = FilterOf(kind, extension);
    question.extension = extension.substr(extension.starts_with('.') ? 1 : 0);
    question.start = start;
    return question;
}

}  // namespace fabula::platform
