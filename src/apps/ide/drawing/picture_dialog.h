#pragma once

#include <QCoreApplication>
#include <optional>

#include "authoring/drawing/picture_editor.h"
#include "authoring/drawing/tracing_image.h"
#include "ide/dialogs/screen_dialog.h"
#include "platform/settings.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QToolButton;

namespace fabula::ide {

class CommandList;
class PictureCanvas;
class PicturePalette;
class TracingPanel;

/// The dialog of a picture: the canvas with the command line at the left; at the right the commands, and
/// below them pages with buttons and swatches, the drawstring, images, and what is saved.
class PictureDialog final : public ScreenDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `screen` and `settings`, which keep the tracing image, outlive it.
    PictureDialog(authoring::PictureEditor& screen, platform::Settings& settings,
                  QWidget* parent = nullptr);

    QSize sizeHint() const override;

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void Read() override;
    void Show() override;
    bool Update() override { return screen_.Update(); }

  private:
    QWidget* NewLeft();
    QWidget* NewRight();
    QWidget* NewImages();
    QWidget* NewSaving();
    void Connect();
    bool KeyOnCommandLine(int key, Qt::KeyboardModifiers modifiers);
    void RunTyped();
    void Run(const std::string& line);
    void Undo(bool redo);
    void GoBehind(std::size_t commands);
    void ImportImage();
    void MarkFault();
    void ShowPointer(std::optional<pictures::Point> point);

    authoring::PictureEditor& screen_;
    PicturePalette* palette_;
    PictureCanvas* canvas_;
    CommandList* commands_;
    TracingPanel* tracing_;
    QLabel* status_;
    QLabel* pointer_;
    QLabel* saying_;
    QLineEdit* commandLine_;
    QPlainTextEdit* drawstring_;
    QCheckBox* asRoomPicture_;
    QLineEdit* roomNumber_;
    QLineEdit* fileName_;
    QToolButton* undo_;
    QToolButton* redo_;
};

}  // namespace fabula::ide
