#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <functional>
#include <string>
#include <string_view>

#include "authoring/fields/texts/text_editing.h"

class QAbstractScrollArea;
class QFontMetrics;
class QLabel;
class QPlainTextEdit;
class QTextEdit;

namespace fabula::ide {

/// What differs between the editors of texts.
struct MarkupEditKind {
    QString name;            ///< of the field: its label, with a mnemonic, and its accessible name
    QString previewCaption;  ///< "" for an editor without a preview
    bool tagsAllowed = true;
    bool isShort =
        false;  ///< field and preview are two lines high, and their parts are called "...Short..."
};

/// An editor for a text of the game: a field in the game's font and colours with its markup marked, the
/// count of words and letters, the first fault in words, and below it the text as the game will show it.
///
/// Marks have a shape besides their colour: tags are bold, their values italic too, entities italic, and
/// faults have a wavy line. The field is the widget's focus proxy; Tab leaves it, for what comes behind the
/// preview.
class MarkupEdit final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `editing` outlives the widget. The field is called `fieldName`.
    MarkupEdit(const authoring::TextEditing& editing, const MarkupEditKind& kind, const QString& fieldName,
               QWidget* parent = nullptr);

    /// The text, with "\n" for line ends.
    std::string Text() const;
    /// Shows another text, with the cursor at its start. That is not typing.
    void SetText(std::string_view text);

    /// Called when the author has changed the text.
    std::function<void(const std::string& text)> typed = [](const std::string&) {};

    /// Puts the cursor into the field and chooses the first fault, if there is one.
    void ShowFault();

    QPlainTextEdit& Field() { return *field_; }

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void AddPreview(const QString& caption);
    void SetLines(QAbstractScrollArea& area, const QFontMetrics& metrics, int lines) const;
    void FitLook();
    void ShowText();
    void ScrollPreview();
    int ColumnsInSight() const;
    void ShowPreview(const std::string& text);

    const authoring::TextEditing& editing_;
    MarkupEditKind kind_;
    QPlainTextEdit* field_;
    QLabel* counts_;
    QLabel* fault_;
    QTextEdit* preview_ = nullptr;
    int columns_ = 0;       ///< that the preview was shown in
    bool showing_ = false;  ///< the widget itself changes the text
};

}  // namespace fabula::ide
