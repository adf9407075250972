#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pictures/files/image.h"
#include "store/schema/table_catalogue.h"

namespace fabula::listings {

/// Where a record is told of in a listing. The place of a whole process table has `ProcessTables` and the
/// number of the table.
struct Place {
    store::TableNum table = store::TableNum::Locations;
    int number = 0;

    friend auto operator<=>(const Place&, const Place&) = default;
};

/// A part of a line that names a record. Columns count from 0.
struct Link {
    std::size_t column = 0;
    std::size_t length = 0;
    Place to;

    friend bool operator==(const Link&, const Link&) = default;
};

/// A picture in a line, measured in columns and lines of the fixed-width font, of which a column is half as
/// wide as a line is high. `caption` stands in the line below the picture; what can't show the picture has
/// `description`.
struct PlacedPicture {
    std::size_t column = 0;
    int columns = 0;
    int lines = 1;
    std::shared_ptr<const pictures::Image> image;
    std::string description;
    std::string caption = {};
};

/// One line of a listing in a fixed-width font: its text from column 0, safe to show, without blanks at its
/// end.
struct Line {
    enum class Kind {
        Header,   ///< title with page number, name of the adventure, and the line below
        Heading,  ///< of the columns
        Rule,     ///< dashes below a heading
        Text,
    };

    std::string text;
    Kind kind = Kind::Text;
    bool continues = false;  ///< goes on with the text of the line before
    std::vector<Link> links = {};
    std::vector<PlacedPicture> pictures = {};
    std::optional<Place> place = std::nullopt;  ///< the record that begins here

    /// The lines that it takes on a page, with its pictures.
    int Height() const;
};

/// What a report is written to: lines in a fixed-width font of 80 columns and, for the reports that tell
/// more, up to about 130. A report knows nothing else of where it goes.
class Page {
  public:
    virtual ~Page() = default;

    /// 0 when what is written is not parted into pages.
    virtual int LinesPerPage() const = 0;
    /// What follows is a report of that title; `place` is what the whole of it tells of, if that is a
    /// place.
    virtual void BeginReport(std::string_view title, std::optional<Place> place) = 0;
    virtual void Put(Line line) = 0;
    /// The lines that follow stand on the next page.
    virtual void EndPage() = 0;
};

}  // namespace fabula::listings
