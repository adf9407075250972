#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "listings/pages/page.h"
#include "text/value.h"

namespace fabula::listings {

/// A text as one line that may be shown anywhere: what a screen would obey is replaced, hard spaces are
/// blanks.
std::string SafeText(std::string_view text);

/// A text of the game in lines of at most `width` columns, safe to show. Stored line ends end a line. A
/// word that fits into no line is cut where the line is full. At least one line.
std::vector<std::string> WrappedText(std::string_view text, int width);

/// True for a text that holds nothing or only blanks, which stand for no value.
bool IsEmpty(std::string_view text);

/// Where a text stands that goes on below: its first column, counted from 1, and its columns.
struct TextArea {
    int column = 1;
    int width = 80;
};

/// The lines of a record in the making. Formats are those of text::FormatText; values are made safe. A tab
/// behind a text that has reached its column goes to a line of its own.
class Record {
  public:
    Record() = default;
    /// The lines of the record that has its place here.
    explicit Record(Place place) : place_(place) {}

    /// Adds a line.
    void Row(std::string_view format, std::vector<text::Value> values);
    /// Adds a line that ends in a text, the last value of `format`, and the lines on which it goes on.
    void Text(std::string_view format, std::vector<text::Value> values, std::string_view text,
              TextArea area);
    /// Puts a text beside the latest line that was begun, or below what stands there already.
    void Aside(std::string_view text, TextArea area);
    /// Makes a part of the latest line that was begun with Row or Text name a record.
    void LinkTo(Place to, std::size_t column, std::size_t length);
    /// Puts a picture into the same line.
    void AddPicture(PlacedPicture picture);

    std::vector<Line> Take();

  private:
    std::optional<Place> place_;
    std::vector<Line> lines_;
    std::size_t row_ = 0;  ///< the index of the latest line that was begun
};

/// Adds the author's comment to the record, where there is one.
void AddComment(Record& record, std::string_view comment);

/// The text of a heading: a format without values.
std::string Heading(std::string_view format);

}  // namespace fabula::listings
