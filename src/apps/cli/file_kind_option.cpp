#include "cli/file_kind_option.h"

#include "cli/verb.h"

namespace fabula::cli {
namespace {

using interchange::FileKind;

constexpr std::string_view kArgument = "the kind";

std::string Words(bool (FileKind::*can)() const) {
    std::string words;
    for (const FileKind& kind : interchange::FileKinds()) {
        if (!(kind.*can)()) continue;
        if (!words.empty()) words += ", ";
        words += kind.word;
    }
    return words;
}

const FileKind& Find(const std::string& word, std::string_view option, bool (FileKind::*can)() const) {
    const FileKind* kind = interchange::FindFileKind(word);
    if (kind != nullptr && (kind->*can)()) return *kind;
    throw UsageError(std::string(option) + " must be one of " + Words(can) + ", not '" + word + "'");
}

}  // namespace

std::string ReadableKinds() {
    return Words(&FileKind::CanRead);
}

std::string WritableKinds() {
    return Words(&FileKind::CanWrite);
}

std::string PictureKinds() {
    return Words(&FileKind::CanLoadPictures);
}

const FileKind& ReadableKind(const std::string& word) {
    return Find(word, kArgument, &FileKind::CanRead);
}

const FileKind& WritableKind(const std::string& word, std::string_view option) {
    return Find(word, option, &FileKind::CanWrite);
}

const FileKind& PictureKind(const std::string& word) {
    return Find(word, kArgument, &FileKind::CanLoadPictures);
}

}  // namespace fabula::cli
