#include "engine/output/origin.h"

namespace fabula::engine {

namespace {

struct KindRow {
    TextRecord::Kind kind;
    std::string_view name;
};

constexpr KindRow kKinds[] = {
    {TextRecord::Kind::Location, "location "},
    {TextRecord::Kind::ShortLocation, "short description of location "},
    {TextRecord::Kind::Object, "object "},
    {TextRecord::Kind::Message, "message "},
    {TextRecord::Kind::SystemMessage, "system message "},
    {TextRecord::Kind::Flag, "flag "},
};

std::string OrDash(const std::string& text) {
    return text.empty() ? "-" : text;
}

}  // namespace

std::string TextOf(const RunPlace& place) {
    if (place.process == RunPlace::kNoProcess) return {};
    std::string text = "Process " + std::to_string(place.process.value);
    if (place.entry == RunPlace::kNone) return text;
    text += ", entry " + std::to_string(place.entry) + " (record " + std::to_string(place.record) + ")";
    if (place.name.empty()) return text;
    text += ", ";
    text += place.name;
    for (int i = 0; i < place.paramCount; ++i)
        text += " " + std::to_string(place.params[static_cast<std::size_t>(i)]);
    return text;
}

std::string TextOf(const TextRecord& record) {
    for (const KindRow& row : kKinds) {
        if (row.kind == record.kind) return std::string(row.name) + std::to_string(record.number);
    }
    return {};
}

void OriginLog::Printing(std::string_view text, const Origin& origin) {
    out_ << OrDash(TextOf(origin.place)) << '\t' << OrDash(TextOf(origin.record)) << '\t' << text << '\n';
}

}  // namespace fabula::engine
