#include "engine/output/script.h"

#include <utility>

#include "platform/error.h"
#include "platform/whole_file.h"
#include "store/extensions.h"
#include "store/file/file_copy.h"
#include "store/file/temporary_file.h"
#include "text/encoding/byte_order_mark.h"

namespace fabula::engine {

namespace {

constexpr std::string_view kMark = ">>";
constexpr std::string_view kPlayedMark = ">>Read:>>";

std::string CannotWriteScript(const std::string& file) {
    return "Could not write the script " + file;
}

std::string CannotReadScript(const std::filesystem::path& file) {
    return "Could not read the script " + file.string();
}

}  // namespace

std::string_view Script::StatusText() const {
    switch (State()) {
        case 1:
            return "Script Writing";
        case 2:
            return "Script Loaded";
        case 3:
            return "Script Loaded & Writing";
        default:
            return "Script Off";
    }
}

void Script::StartWriting(const std::filesystem::path& file) {
    store::CheckTarget(file, store::Content::Text, store::extension::kScript);
    if (Loaded() && !store::IsStream(file) && store::IsSameFile(file, inputName_))
        throw Error(CannotWriteScript(file.string()) + ": it is being played.");
    output_.clear();
    output_.open(file, std::ios::binary | std::ios::trunc);
    if (!output_) throw Error(CannotWriteScript(file.string()) + ".");
    outputName_ = file.string();
    atLineStart_ = true;
    answerMarked_ = false;
}

void Script::Load(const std::filesystem::path& file) {
    platform::CheckIsFile(file, "read the script " + file.string());
    if (Writing() && store::IsSameFile(file, outputName_))
        throw Error(CannotReadScript(file) + ": it is being written.");
    input_.clear();
    input_.open(file, std::ios::binary);
    if (!input_) throw Error(CannotReadScript(file) + ".");
    inputName_ = file;
    for (const char expected : text::kByteOrderMark) {
        if (input_.get() == static_cast<unsigned char>(expected)) continue;
        input_.clear();
        input_.seekg(0);
        return;
    }
}

void Script::CloseInput() {
    input_.close();
}

void Script::CloseAll() {
    input_.close();
    if (output_.is_open() && !atLineStart_) WriteLineEnd();
    output_.flush();
    CheckOutput();
    output_.close();
}

void Script::Write(std::string_view text) {
    if (!output_.is_open() || text.empty()) return;
    output_ << text;
    atLineStart_ = text.back() == '\n';
    answerMarked_ = false;
    CheckOutput();
}

void Script::CheckOutput() {
    if (!output_.is_open() || output_) return;
    output_.close();
    failure_ = CannotWriteScript(outputName_) + ". It is closed.";
}

void Script::WriteText(std::string_view text) {
    Write(text);
}

void Script::WriteLineEnd() {
    Write("\n");
}

void Script::WriteAnswerMark() {
    if (!Writing() || answerMarked_) return;
    if (!atLineStart_) WriteLineEnd();
    Write(kMark);
    answerMarked_ = true;
}

void Script::WriteInput(std::string_view line) {
    WriteAnswerMark();
    Write(line);
    WriteLineEnd();
    output_.flush();
    CheckOutput();
}

void Script::WritePlayed(std::string_view line) {
    WriteInput(std::string("Read:>>") += line);
}

std::optional<std::string> Script::ReadLine() {
    std::string line;
    for (int c = input_.get(); c != std::ifstream::traits_type::eof(); c = input_.get()) {
        if (c == '\n') return line;
        if (c != '\r' && line.size() < kLongestTypedLine) line += static_cast<char>(c);
    }
    if (line.empty()) return std::nullopt;
    return line;
}

std::optional<std::string> Script::NextInput() {
    for (std::optional<std::string> line = ReadLine(); line; line = ReadLine()) {
        for (const std::string_view mark : {kPlayedMark, kMark}) {
            if (line->starts_with(mark)) return line->substr(mark.size());
        }
    }
    return std::nullopt;
}

std::string Script::TakeFailure() {
    return std::exchange(failure_, {});
}

}  // namespace fabula::engine
