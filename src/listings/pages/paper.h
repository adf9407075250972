#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "listings/pages/page.h"

namespace fabula::listings {

/// The lines of a sheet: with lines twice as high as columns are wide, 80 columns of them have the form of
/// a usual sheet of paper.
inline constexpr int kSheetLines = 60;
/// The most columns of a sheet. What a file that is no author's holds beyond them leaves the sheet.
inline constexpr std::size_t kMostSheetColumns = 400;

/// What stands on one sheet, from the top.
struct Sheet {
    std::vector<Line> lines;
};

/// A listing on sheets of paper, to be shown or printed. The first sheet is there from the start.
class Paper final : public Page {
  public:
    int LinesPerPage() const override { return kSheetLines; }
    void BeginReport(std::string_view, std::optional<Place>) override {}
    void Put(Line line) override;
    void EndPage() override { sheets_.emplace_back(); }

    const std::vector<Sheet>& Sheets() const { return sheets_; }
    /// The columns that all sheets have: 80, or more where a line has more, up to kMostSheetColumns.
    std::size_t Columns() const { return columns_; }

  private:
    std::vector<Sheet> sheets_{1};
    std::size_t columns_ = 80;
};

}  // namespace fabula::listings
