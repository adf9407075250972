#pragma once

#include <QPlainTextEdit>

class QLineEdit;

namespace fabula::ide {

// Control characters come with what is pasted; no key types them, no text shows them, and a source that
// holds them can't be read back.

/// The text without its control characters. Tabs and line ends stay.
QString WithoutControls(QString text);

/// From here on the line drops the control characters that are pasted into it. Those that it came with stay
/// until then. Who listens to textEdited reads the line: what comes with the signal may be what it was
/// before.
void DropPastedControls(QLineEdit& line);

/// An editor of plain text that drops control characters from what is pasted.
class TextEdit : public QPlainTextEdit {
  public:
    using QPlainTextEdit::QPlainTextEdit;

  protected:
    void insertFromMimeData(const QMimeData* source) override;
};

}  // namespace fabula::ide
