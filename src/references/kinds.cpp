#include "references/kinds.h"

#include <algorithm>

#include "text/encoding/utf8.h"

namespace fabula::references {
namespace {

using store::TableNum;

constexpr KindEntry kKinds[] = {
    {Kind::Flag, "flag", "flag", TableNum::Flags, "flgnum"},
    {Kind::Object, "object", "object", TableNum::Objects, "objnum"},
    {Kind::Location, "location", "location", TableNum::Locations, "locnum"},
    {Kind::Message, "message", "message", TableNum::Messages, "msgnum"},
    {Kind::SystemMessage, "system message", "sysmess", TableNum::SystemMessages, "smsgnum"},
    {Kind::Word, "word", "word", TableNum::Vocabulary, "vocnum"},
    {Kind::Process, "process table", "process", TableNum::ProcDesc, "pmsgnum"},
    {Kind::Picture, "picture", "picture", TableNum::Pictures, "locnum"},
    {Kind::CharacterSet, "character set", "set", TableNum::Characters, "charsetnum"},
    {Kind::Character, "character", "character", TableNum::Characters, "charkey"},
};

}  // namespace

std::span<const KindEntry> AllKinds() {
    return kKinds;
}

const KindEntry& EntryOf(Kind kind) {
    return kKinds[static_cast<std::size_t>(kind)];
}

std::optional<Kind> KindFrom(std::string_view name) {
    const auto* found = std::find_if(std::begin(kKinds), std::end(kKinds), [&](const KindEntry& entry) {
        return text::EqualsNoCase(entry.name, name) || text::EqualsNoCase(entry.option, name);
    });
    if (found == std::end(kKinds)) return std::nullopt;
    return found->kind;
}

std::optional<Kind> KindOf(TableNum table) {
    if (table == TableNum::Characters) return Kind::Character;
    const auto* found = std::find_if(std::begin(kKinds), std::end(kKinds),
                                     [&](const KindEntry& entry) { return entry.table == table; });
    if (found == std::end(kKinds)) return std::nullopt;
    return found->kind;
}

}  // namespace fabula::references
