#include "interchange/pc/pc_texts.h"

#include "condacts/places.h"
#include "interchange/shared/given_records.h"
#include "store/schema/record_fields.h"
#include "text/line_ends.h"

namespace fabula::interchange {
namespace {

using store::Cursor;
using store::TableNum;

constexpr std::string_view kNotKnownYet = " ";

void SetLocationDefaults(Cursor& location) {
    location.SetField("numexits", std::int64_t{0});
    for (const char* field : {"exits", "numericexits", "picloc", "pickey"})
        location.SetField(field, std::string());
    for (const char* field : {"locshortdesc", "oldpicloc"})
        location.SetField(field, std::string(kNotKnownYet));
}

void SetObjectDefaults(Cursor& object) {
    for (const char* field : {"objnoun", "objadject"})
        object.SetField(field, std::string(condacts::kNoWord));
    for (const char* field : {"objnumnoun", "objnumadject"}) {
        object.SetField(field, std::int64_t{condacts::kNoWordNumber.value});
    }
    object.SetField("objloc", std::int64_t{condacts::place::kNotCreated.value});
    object.SetField("objlocdesc", std::string("Not Created"));
    object.SetField("objweight", std::int64_t{1});
    object.SetField("objattr", std::string());
    object.SetField("objattrn", std::int64_t{0});
}

}  // namespace

const PcTextTable kPcTextTables[4] = {
    {TableNum::SystemMessages, "System Message"},
    {TableNum::Messages, "Message"},
    {TableNum::Objects, "Object"},
    {TableNum::Locations, "Location"},
};

void PcTexts::Begin(const std::vector<std::string_view>&) {
    Flush();
    if (table_) return;
    table_ = std::make_unique<KeyedTable>(job_.context.adventure, kind_.table);
}

void PcTexts::Slash(std::string_view line) {
    Flush();
    const auto words = SplitSlashLine(line);
    number_ = RecordNumber(words);
    if (!number_) {
        job_.Fault(kBadLine);
        return;
    }
    job_.FaultBehind(words, 1);
    if (!seen_.insert(*number_).second) {
        job_.Fault("ERROR: " + std::string(kind_.name) + " " + std::to_string(*number_) +
                   " stands here twice. This text counts.");
    }
    job_.Note(kind_.table, *number_, "", 0, job_.PlaceOf(line));
}

void PcTexts::Line(std::string_view line) {
    if (!number_) {
        if (!TrimRight(line).empty()) job_.Fault(kBadLine);
        return;
    }
    for (const PcTextForm::BadTag& tag : job_.texts.FindBadTags(line))
        job_.Fault(tag.message, line.substr(tag.position));
    if (hasLine_) text_ += text::kLineEndMarker;
    text_ += line;
    hasLine_ = true;
}

void PcTexts::Flush() {
    if (number_) {
        const bool isNew = !table_->Has(*number_);
        Cursor& record = table_->GoToOrAdd(*number_);
        if (isNew) SetDefaults(record);
        record.SetField(store::TextField(kind_.table), job_.texts.FromSource(text_));
        table_->Update();
    }
    number_.reset();
    text_.clear();
    hasLine_ = false;
}

void PcTexts::SetDefaults(Cursor& record) const {
    if (kind_.table == TableNum::Locations) SetLocationDefaults(record);
    if (kind_.table == TableNum::Objects) SetObjectDefaults(record);
}

/// Behind the last system message, unless the source has them there already.
void PcTexts::AddScriptMessages() {
    const std::int64_t last = table_->HighestKey();
    const auto text = [&](std::int64_t number) {
        return table_->Has(number) ? std::string(table_->GoTo(number).Text(store::TextField(kind_.table)))
                                   : std::string();
    };
    if (text(last - 1) == kScriptMessages[0] && text(last) == kScriptMessages[1]) return;
    for (const std::string_view message : kScriptMessages) {
        table_->Add(table_->HighestKey() + 1).SetField(store::TextField(kind_.table), std::string(message));
        table_->Update();
    }
}

void PcTexts::Finish() {
    Flush();
    if (kind_.table == TableNum::SystemMessages) AddScriptMessages();
    job_.Status("Loaded Vel source " + std::string(kind_.name) + " Text");
}

}  // namespace fabula::interchange
