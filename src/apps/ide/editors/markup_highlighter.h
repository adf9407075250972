#pragma once

#include <QColor>
#include <QSyntaxHighlighter>

#include "text/tag_catalogue.h"

namespace fabula::ide {

/// Marks the markup of a text while it is edited.
class MarkupHighlighter final : public QSyntaxHighlighter {
  public:
    /// `tags` outlives the highlighter.
    MarkupHighlighter(QTextDocument* document, const text::TagCatalogue& tags, bool tagsAllowed);

    /// The colours of the text that is marked. Marks are given colours that can be read on `paper`.
    void SetColours(const QColor& paper, const QColor& ink);

  protected:
    void highlightBlock(const QString& line) override;

  private:
    const text::TagCatalogue& tags_;
    bool tagsAllowed_;
    QColor mark_;
    QColor fault_;
};

}  // namespace fabula::ide
