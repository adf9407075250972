#include "listings/tables/gosub.h"

#include <cstdint>
#include <set>
#include <string>

#include "listings/record.h"
#include "listings/reports.h"
#include "pictures/book_loader.h"
#include "pictures/drawstring.h"
#include "text/encoding/utf8.h"

namespace fabula::listings {
namespace {

/// Six cells of ten columns in a line.
constexpr std::size_t kCells = 6;
constexpr std::string_view kCell = "!%a5!%c5 ";

/// The numbers that the drawstring's GOSUBs call, in their order.
std::vector<int> CallsOf(const pictures::CommandCatalogue& commands, const std::string& drawstring) {
    const std::vector<std::string> words = pictures::DrawstringWords(drawstring);
    std::vector<int> calls;
    for (std::size_t at = 0; at < words.size();) {
        const pictures::Command* const command = commands.Find(words[at]);
        const auto parameters = static_cast<std::size_t>(command ? command->drawnParameters : 0);
        const std::size_t last = at + parameters;
        if (command && command->number == pictures::kGoSub && last < words.size()) {
            if (const auto number = pictures::ParameterValue(words[last])) calls.push_back(*number);
        }
        at = last + 1;
    }
    return calls;
}

void AddCentred(const Listing& listing, const std::string& text) {
    const std::size_t length = text::Length(text);
    const std::size_t column = length < kColumns ? (kColumns - length) / 2 + 1 : 1;
    Record record;
    record.Row("%t*!%a", {static_cast<std::int64_t>(column), text});
    listing.frame.Add(record.Take());
}

std::string Joined(const std::vector<int>& numbers) {
    std::string list;
    for (const int number : numbers) {
        if (!list.empty()) list += ',';
        list += std::to_string(number);
    }
    return list;
}

std::vector<int> AllPictures(const pictures::PictureBook& book) {
    std::vector<int> numbers;
    for (const auto& [number, picture] : book.pictures)
        numbers.push_back(number);
    return numbers;
}

/// The numbers, six to a line.
void AddCells(const Listing& listing, const std::vector<int>& numbers) {
    for (std::size_t i = 0; i < numbers.size(); i += kCells) {
        std::string format;
        std::vector<text::Value> values;
        const std::size_t end = std::min(i + kCells, numbers.size());
        for (std::size_t at = i; at < end; ++at) {
            format += kCell;
            values.emplace_back(std::int64_t{numbers[at]});
        }
        Record record;
        record.Row(format, std::move(values));
        for (std::size_t at = i; at < end; ++at) {
            record.LinkTo({store::TableNum::Pictures, numbers[at]}, (at - i) * 10,
                          std::to_string(numbers[at]).size());
        }
        listing.frame.Add(record.Take());
    }
}

}  // namespace

std::vector<int> PicturesNeeded(const pictures::PictureBook& book, const std::vector<int>& wanted) {
    std::vector<int> needed;
    std::set<int> seen;
    const auto add = [&](int number) {
        if (seen.insert(number).second) needed.push_back(number);
    };
    for (const int number : wanted)
        add(number);
    for (std::size_t i = 0; i < needed.size(); ++i) {
        const pictures::Picture* const picture = book.FindPicture(needed[i]);
        if (!picture) continue;
        for (const int called : CallsOf(book.commands, picture->drawstring))
            add(called);
    }
    return needed;
}

void WriteGosubs(const Listing& listing, const ReportRequest& request) {
    const pictures::PictureBook book = pictures::LoadPictureBook(listing.adventure);
    std::vector<int> wanted = request.numbers ? *request.numbers : AllPictures(book);
    std::erase_if(wanted, [&](int number) { return !book.FindPicture(number); });
    listing.frame.Begin("GOSUB Report for Extraction of Graphics Record(s)",
                        {"Graphics Records which must be extracted"});
    AddCells(listing, PicturesNeeded(book, wanted));
    AddCentred(listing, "to get all the applicable GOSUBS for records");
    for (const std::string& line : WrappedText(Joined(wanted), static_cast<int>(kColumns)))
        AddCentred(listing, line);
}

}  // namespace fabula::listings
