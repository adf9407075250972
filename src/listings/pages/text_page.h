#pragma once

#include <string>
#include <utility>

#include "listings/pages/page.h"

namespace fabula::listings {

/// The lines of a page of plain text.
inline constexpr int kTextPageLines = 60;

/// A listing as plain text, in UTF-8 with "\n" behind each line and a form feed between pages. Pictures are
/// drawn in dots.
class TextPage final : public Page {
  public:
    explicit TextPage(int linesPerPage = kTextPageLines) : linesPerPage_(linesPerPage) {}

    int LinesPerPage() const override { return linesPerPage_; }
    void BeginReport(std::string_view, std::optional<Place>) override {}
    void Put(Line line) override;
    void EndPage() override { text_ += '\f'; }

    const std::string& Text() const { return text_; }
    std::string Take() { return std::move(text_); }

  private:
    void PutPictures(const Line& line);

    int linesPerPage_;
    std::string text_;
};

}  // namespace fabula::listings
