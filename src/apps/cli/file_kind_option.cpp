#include "cli/file_kind_option.h"

#include "cli/verb.h"

namespace fabula::cli {
namespace {

using interchange::FileKind;

std::string Words(bool (FileKind::*can)() const) {
    std::string words;
    for (const FileKind& kind : interchange::FileKinds()) {
        if (!(kind.*can)()) continue;
        if (!words.empty()) words += ", ";
        words += kind.word;
    }
    return words;
}

const FileKind& Find(const std::string& word, bool (FileKind::*can)() const) {
    const FileKind* kind = interchange::FindFileKind(word);
    if (kind != nullptr && (kind->*can)()) return *kind;
    throw UsageError("the kind must be one of " + Words(can) + ", not '" + word + "'");
}

}  // namespace

std::string ReadableKinds() {
    return Words(&FileKind::CanRead);
}

std::string WritableKinds() {
    return Words(&FileKind::CanWrite);
}

const FileKind& ReadableKind(const std::string& word) {
    return Find(word, &FileKind::CanRead);
}

const FileKind& WritableKind(const std::string& word) {
    return Find(word, &FileKind::CanWrite);
}

}  // namespace fabula::cli
