#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "listings/record.h"
#include "listings/reports.h"
#include "pictures/book_loader.h"
#include "pictures/drawing.h"
#include "pictures/drawstring.h"
#include "platform/error.h"
#include "text/encoding/utf8.h"

namespace fabula::listings {
namespace {

using store::TableNum;

/// A picture of 256 by 176 points: 64 columns, of which a line is two high, and 22 lines.
constexpr int kPictureColumns = pictures::kCanvasWidth / 4;
constexpr int kPictureLines = pictures::kCanvasHeight / 8;
constexpr std::size_t kPictureColumn = 6;

/// The columns of the picture's name; more for longer names, in the whole listing.
constexpr std::size_t kNameColumns = 20;
constexpr std::size_t kMostNameColumns = 255;

/// The columns of a picture's number; more for longer ones, in the whole listing.
constexpr std::size_t kNumberColumns = 3;

/// The columns that what is listed needs.
struct Columns {
    std::size_t number = kNumberColumns;
    std::size_t name = kNameColumns;

    /// Paper and ink take two digits where the headings leave room for three.
    std::string Format() const {
        return "%s" + std::to_string(number) + "!  !%a10!  !%s2!   !%s2!  !%a" + std::to_string(name) +
               "!   !%s3";
    }
    std::vector<std::string> Headings() const {
        return {
            text::PadRight("Num", number) + "  Type       Paper Ink " +
                text::PadRight("Picture Name", name) + " RoomNum",
            std::string(number, '-') + "  ---------- ----- --- " + std::string(name, '-') + " --------"};
    }
};

/// A command in a drawstring, by the number of its parameters.
constexpr std::string_view kCommandFormats[] = {
    "%a",
    "%a7!   !%a7",
    "%a7!   !%a7!%a7",
    "%a7!   !%a7!%a7!%a7",
    "%a7!   !%a7!%a7!%a7!%a7",
    "%a7!   !%a7!%a7!%a7!%a7!%a7",
};

/// Where the last parameter of a command stands, counted from 0.
std::size_t LastParameterColumn(std::size_t parameters) {
    return 10 + 7 * (parameters - 1);
}

void AddCommands(Record& record, const pictures::CommandCatalogue& commands,
                 const std::string& drawstring) {
    const std::vector<std::string> words = pictures::DrawstringWords(drawstring);
    for (std::size_t at = 0; at < words.size();) {
        const pictures::Command* const command = commands.Find(words[at]);
        const auto wanted = static_cast<std::size_t>(command ? command->drawnParameters : 0);
        const std::size_t count = std::min(wanted, words.size() - at - 1);
        std::vector<text::Value> values;
        for (std::size_t i = 0; i <= count; ++i)
            values.emplace_back(words[at + i]);
        record.Row(kCommandFormats[count], std::move(values));
        const auto number = pictures::ParameterValue(words[at + count]);
        if (command && command->number == pictures::kGoSub && count == wanted && number)
            record.LinkTo({TableNum::Pictures, *number}, LastParameterColumn(count),
                          words[at + count].size());
        at += 1 + count;
    }
}

/// The picture as it is drawn, or in its place why it can't be.
void AddDrawing(Record& record, const pictures::PictureBook& book, int number) {
    try {
        const pictures::Canvas canvas = pictures::DrawPicture(book, number);
        record.Row("", {});
        record.AddPicture({.column = kPictureColumn,
                           .columns = kPictureColumns,
                           .lines = kPictureLines,
                           .image = std::make_shared<pictures::Image>(pictures::ImageOf(canvas.colour)),
                           .description = "Picture " + std::to_string(number)});
    } catch (const Error& failure) {
        record.Text("%a", {}, failure.what(), {});
    }
}

void AddPictureRecord(const Listing& listing, const pictures::PictureBook& book, const Columns& columns,
                      const store::PreparedQuery& row) {
    const int number = static_cast<int>(row.Number(0));
    const Place place{TableNum::Pictures, number};
    Record record(place);
    record.Row(columns.Format(), {row.Number(0), std::string(row.Text(1)), row.Number(2), row.Number(3),
                                  std::string(row.Text(4)), row.Number(5)});
    const std::string key = std::to_string(number);
    record.LinkTo(place, columns.number - key.size(), key.size());
    AddDrawing(record, book, number);
    record.Row("Graphics Picture Commands", {});
    AddCommands(record, book.commands, std::string(row.Text(6)));
    listing.frame.Add(record.Take());
}

bool IsAsked(const ReportRequest& request, std::int64_t number) {
    const auto& asked = request.numbers;
    return !asked || std::ranges::find(*asked, number) != asked->end();
}

Columns PictureColumnsFor(store::Adventure& adventure, const ReportRequest& request) {
    Columns columns;
    store::PreparedQuery rows = adventure.Prepare(TableNum::Pictures, "locnum, picname", "");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        if (!IsAsked(request, rows.Number(0))) continue;
        columns.number = std::max(columns.number, std::to_string(rows.Number(0)).size());
        columns.name = std::max(columns.name, std::min(text::Length(rows.Text(1)), kMostNameColumns));
    }
    return columns;
}

}  // namespace

void WriteGraphics(const Listing& listing, const ReportRequest& request) {
    const pictures::PictureBook book = pictures::LoadPictureBook(listing.adventure);
    const Columns columns = PictureColumnsFor(listing.adventure, request);
    listing.frame.Begin("Listing of Graphics Table", columns.Headings());
    store::PreparedQuery rows = listing.adventure.Prepare(
        TableNum::Pictures, "locnum, loctype, locpaper, locink, picname, roompicnum, drawstring", "");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        if (IsAsked(request, rows.Number(0))) AddPictureRecord(listing, book, columns, rows);
    }
}

}  // namespace fabula::listings
