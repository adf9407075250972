#include "interchange/unvel/unvel_notes.h"

#include "condacts/limits.h"
#include "interchange/listing/listing_job.h"
#include "interchange/shared/keyed_table.h"
#include "interchange/unvel/unvel_section.h"
#include "interchange/unvel/unvel_text.h"
#include "store/schema/record_check.h"
#include "text/encoding/utf8.h"

namespace fabula::interchange {
namespace {

using store::Cursor;
using store::TableNum;

}  // namespace

void UnVelNotes::Line(std::string_view line) {
    if (!line.starts_with(kCommentMark)) return;
    line.remove_prefix(kCommentMark.size());
    if (number_ >= 0) {
        notes_[number_] = UnVelText(line);
        number_ = -1;
        return;
    }
    number_ = NumberAlone(line, label_).value_or(-1);
}

void StoreFlagNotes(store::Adventure& adventure, const UnVelNotes& notes) {
    Cursor& flags = adventure.OpenTable(TableNum::Flags, "def", "flgmod>0");
    for (; !flags.Eof(); flags.MoveNext()) {
        const auto note = notes.All().find(static_cast<int>(flags.Number("flgnum")));
        const std::string text = note == notes.All().end() ? "" : note->second;
        if (flags.Text("flgdesc") == text) continue;
        flags.SetField("flgdesc", text);
        flags.Update();
    }
}

void StoreProcessNotes(store::Adventure& adventure, const UnVelNotes& notes) {
    KeyedTable tables(adventure, TableNum::ProcDesc);
    const std::size_t longest = store::LongestText(adventure.Schema(TableNum::ProcDesc), "pmsgmsg");
    for (const auto& [number, text] : notes.All()) {
        if (number > condacts::limit::kLastFixedProcess.value &&
            number <= condacts::limit::kHighestProcess.value)
            StoreText(tables, "pmsgmsg", number, std::string(text::Left(text, longest)));
    }
}

}  // namespace fabula::interchange
