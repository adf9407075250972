#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "listings/pages/page.h"

namespace fabula::listings {

/// A listing as one HTML file that needs nothing else: a table of contents, a section for each report, and
/// each number of a record as a link to where that record is listed, if it is. Pictures are part of the
/// file. Where a screen is too narrow for the columns, lines flow as text.
class HtmlPage final : public Page {
  public:
    /// `adventure` is the name that the file bears.
    explicit HtmlPage(std::string_view adventure);

    int LinesPerPage() const override { return 0; }
    void BeginReport(std::string_view title, std::optional<Place> place) override;
    void Put(Line line) override;
    void EndPage() override {}

    /// The file, when all is written. Only once.
    std::string Finish();

  private:
    /// A link in the body; `begins` or ends before the byte `at`.
    struct LinkEnd {
        std::size_t at = 0;
        Place to;
        bool begins = false;
    };

    void EndLine();
    void EndSection();
    void PutHeading(const Line& line);
    void BeginLine(const Line& line);
    void PutText(const Line& line);
    void PutPictures(const Line& line);
    std::string IdOnce(const std::optional<Place>& place);
    std::string LinkedBody() const;

    std::string adventure_;
    std::string body_;
    std::string contents_;
    std::vector<LinkEnd> links_;
    std::set<Place> places_;
    int reports_ = 0;
    bool lineIsOpen_ = false;
};

}  // namespace fabula::listings
