#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "listings/pages/page.h"

namespace fabula::listings {

/// The columns of a page.
inline constexpr std::size_t kColumns = 80;

/// The state that all reports of a listing share: page number, lines on the page, title and headings. It
/// puts records on pages, each under a header: the title in the middle with the page's number, the name of
/// the adventure, an empty line, and the headings of the columns.
///
/// A record that would not fit begins on the next page. One that is longer than a page goes on there.
class Frame {
  public:
    /// `page` outlives the frame. `adventure` is the name that stands under each title.
    Frame(Page& page, std::string_view adventure);

    /// Begins a report, on a page of its own, with its header. Page numbers count on. A heading may be the
    /// line of dashes below another.
    void Begin(std::string_view title, std::vector<std::string> headings,
               std::optional<Place> place = std::nullopt);

    /// Adds a record to the report. Records are parted by nothing.
    void Add(std::vector<Line> record);

  private:
    void PageHeader();
    void Put(Line line);
    bool Fits(int lines) const { return limit_ == 0 || linesOnPage_ + lines <= limit_; }

    Page& page_;
    std::string adventure_;
    int limit_;
    std::string title_;
    std::vector<std::string> headings_;
    int pageNumber_ = 0;
    int linesOnPage_ = 0;
    int headerLines_ = 0;
};

}  // namespace fabula::listings
