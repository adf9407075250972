#include "interchange/unvel/unvel_general_data.h"

#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "interchange/listing/listing_lines.h"
#include "interchange/shared/source_file.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::Adventure;
using store::TableNum;

constexpr int kLastColourBeforeWhite = 6;
constexpr int kWhite = 7;

bool IsFont(Adventure& adventure, int code) {
    store::PreparedQuery codes = adventure.Prepare(TableNum::Codes, "fontname", "codenum=?");
    return codes.First({std::int64_t{code}}) && !codes.Text(0).empty();
}

void SetColour(ListingJob& job, const char* field, std::string_view value) {
    const auto colour = GetColor(value);
    if (colour) SetSetting(job.Adventure(), field, *colour);
    if (!colour) job.Fault(kBadLine);
}

void SetInk(ListingJob& job, std::string_view value, bool) {
    SetColour(job, "textcolor", value);
}

void SetPaper(ListingJob& job, std::string_view value, bool) {
    SetColour(job, "BackColor", value);
}

void SetFont(ListingJob& job, std::string_view value, bool) {
    const auto code = ListedNumber(value, condacts::kBeyondNumbers - 1);
    if (code && IsFont(job.Adventure(), *code)) SetSetting(job.Adventure(), "font", *code);
}

void SetSets(ListingJob& job, std::string_view value, bool isMarlo) {
    const auto count = ListedNumber(value, condacts::limit::kHighestRecord);
    if (!isMarlo && count) SetSetting(job.Adventure(), "charsets", *count > 0 ? 1 : 0);
}

void SetConveyable(ListingJob& job, std::string_view value, bool isMarlo) {
    const auto count = ListedNumber(value, kMostCarried);
    if (!isMarlo && count) SetSetting(job.Adventure(), "maxobj", *count);
}

void SetPictures(ListingJob& job, std::string_view value, bool) {
    const auto count = ListedNumber(value, condacts::limit::kHighestRecord);
    if (count) SetSetting(job.Adventure(), "graphics", *count > 0 ? 1 : 0);
}

/// What a label at the start of a line does with the last word of the line.
struct LabelRow {
    std::string_view label;
    void (*set)(ListingJob& job, std::string_view value, bool isMarlo);
};
constexpr LabelRow kLabels[] = {
    {kInkLabel, SetInk},   {kPaperLabel, SetPaper},           {kFontLabel, SetFont},
    {kSetsLabel, SetSets}, {kConveyableLabel, SetConveyable}, {kPicturesLabel, SetPictures},
};

bool IsEnd(std::string_view line) {
    return line.size() == kGeneralDashes && line.find_first_not_of('-') == std::string_view::npos;
}

}  // namespace

std::optional<int> GetColor(std::string_view token) {
    if (const auto number = ListedNumber(token, condacts::limit::kHighestColour)) return number;
    if (token.find('.') == std::string_view::npos) return std::nullopt;
    const std::optional<double> number = text::RealNumber(token);
    if (!number) return std::nullopt;
    return *number > kLastColourBeforeWhite ? kWhite : 0;
}

void ReadGeneralData(ListingJob& job, bool isMarlo) {
    std::string line;
    while (job.lines.Next(line)) {
        const std::string_view trimmed = TrimRight(line);
        if (IsEnd(trimmed)) return;
        for (const LabelRow& row : kLabels) {
            if (!trimmed.starts_with(row.label)) continue;
            const auto words = SplitWords(trimmed);
            row.set(job, words.back(), isMarlo);
            break;
        }
    }
}

}  // namespace fabula::interchange
