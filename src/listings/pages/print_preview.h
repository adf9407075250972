#pragma once

#include <string>

#include "listings/pages/paper.h"
#include "listings/pages/print_screen.h"

namespace fabula::listings {

/// The preview of a listing: its pages, the one that is shown, and its size. Made without pages, so that
/// the window can be on the screen while `Run` makes them.
class PrintPreview {
  public:
    PrintPreview(PrintJob job, store::Adventure& adventure);

    /// "Print Preview for " and the table's title.
    std::string Title() const { return "Print Preview for " + job_.title; }
    /// The title that a printed listing bears.
    const std::string& JobTitle() const { return job_.title; }

    /// Makes the pages. Throws fabula::Error; the preview then stays as it was.
    void Run();

    const Paper& Pages() const { return paper_; }
    int PageCount() const { return static_cast<int>(paper_.Sheets().size()); }
    /// The page that is shown, from 1 to PageCount.
    int Page() const { return page_; }
    const Sheet& ShownSheet() const { return paper_.Sheets()[static_cast<std::size_t>(page_ - 1)]; }

    // The buttons. A move beyond an end stays there.
    void First() { page_ = 1; }
    void Previous() { GoTo(page_ - 1); }
    void Next() { GoTo(page_ + 1); }
    void Last() { page_ = PageCount(); }
    bool CanGoBack() const { return page_ > 1; }
    bool CanGoOn() const { return page_ < PageCount(); }

    /// The size of the page that is shown, in percent of the paper's own.
    int Percent() const;
    void Plus();
    void Minus();
    bool CanGrow() const;
    bool CanShrink() const;

  private:
    void GoTo(int page);

    PrintJob job_;
    store::Adventure& adventure_;
    Paper paper_;
    int page_ = 1;
    std::size_t size_;
};

}  // namespace fabula::listings
