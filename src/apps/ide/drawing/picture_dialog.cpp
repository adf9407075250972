#include "ide/drawing/picture_dialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include "authoring/fields/texts/brief_text.h"
#include "ide/drawing/command_list.h"
#include "ide/drawing/image_import_dialog.h"
#include "ide/drawing/picture_canvas.h"
#include "ide/drawing/picture_palette.h"
#include "ide/drawing/tracing_panel.h"
#include "ide/editors/edit_controls.h"
#include "qt/look/icons.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr int kPictureMargin = 8;
/// Three points of the screen for a pixel, also on a screen of 768 lines; and the column at the right.
constexpr int kCanvasRoom = 3 * pictures::kCanvasWidth + 8;
constexpr int kSideRoom = 370;
constexpr QSize kUsualSize(kCanvasRoom + kSideRoom + 3 * kPictureMargin, 690);

QToolButton* NewTool(const char* name, const char* icon, const QString& caption) {
    auto* tool = new QToolButton;
    tool->setObjectName(name);
    tool->setIcon(qt::IconOf(icon));
    tool->setAccessibleName(caption);
    tool->setToolTip(caption);
    tool->setAutoRaise(true);
    return tool;
}

}  // namespace

PictureDialog::PictureDialog(authoring::PictureEditor& screen, platform::Settings& settings,
                             QWidget* parent)
    : ScreenDialog(screen, tr("Picture %1").arg(screen.Key().key), "pictureeditor.html", parent),
      screen_(screen),
      palette_(new PicturePalette(screen)),
      canvas_(new PictureCanvas(screen)),
      commands_(new CommandList(screen)),
      tracing_(
          new TracingPanel(settings, screen.Adventure().CurrentFile(), screen.Key().key, screen.Dialogs())),
      status_(new QLabel),
      pointer_(new QLabel),
      saying_(new QLabel),
      commandLine_(new QLineEdit),
      drawstring_(NewTextEdit("")),
      asRoomPicture_(new QCheckBox(tr("&Save as a Room Picture for Room # : "))),
      roomNumber_(new QLineEdit),
      fileName_(new QLineEdit),
      undo_(NewTool("UndoDrawing", "undo", tr("Undo (Ctrl+Z)"))),
      redo_(NewTool("RedoDrawing", "redo", tr("Redo (Ctrl+Y)"))) {
    auto* columns = new QSplitter;
    columns->setChildrenCollapsible(false);
    columns->addWidget(NewLeft());
    columns->addWidget(NewRight());
    columns->setStretchFactor(0, 1);
    columns->setSizes({kCanvasRoom, kSideRoom});
    auto* contents = new QWidget;
    auto* layout = new QVBoxLayout(contents);
    layout->setContentsMargins(kPictureMargin, kPictureMargin, kPictureMargin, 0);
    layout->addWidget(columns);
    SetContents(contents);
    Connect();
    asRoomPicture_->setChecked(screen_.saveAsRoomPicture);
    roomNumber_->setText(qt::ToQt(screen_.roomNumber));
    tracing_->changed = [this](std::optional<Tracing> tracing) { canvas_->SetTracing(std::move(tracing)); };
    tracing_->Begin();
    Show();
    commandLine_->setFocus();
}

QSize PictureDialog::sizeHint() const {
    return SizeFor(kUsualSize);
}

QWidget* PictureDialog::NewLeft() {
    commandLine_->setObjectName("CommandLine");
    commandLine_->setPlaceholderText(tr("A command, such as LINE or INK 2"));
    auto* label = new QLabel(tr("&Command:"));
    label->setBuddy(commandLine_);
    commandLine_->setAccessibleName(tr("Command"));
    auto* line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(commandLine_, 1);
    line->addWidget(undo_);
    line->addWidget(redo_);
    pointer_->setObjectName("Pointer");
    saying_->setObjectName("Saying");
    auto* left = new QWidget;
    auto* layout = new QVBoxLayout(left);
    layout->setContentsMargins(0, 0, 4, 0);
    auto* title = new QLabel(qt::ToQt(authoring::BriefText(screen_.LocationLine())));
    title->setObjectName("LocationLine");
    title->setTextFormat(Qt::PlainText);
    title->setMinimumWidth(1);
    auto* above = new QHBoxLayout;
    above->addWidget(title, 1);
    above->addWidget(pointer_);
    layout->addLayout(above);
    layout->addWidget(canvas_, 1);
    layout->addLayout(line);
    layout->addWidget(saying_);
    saying_->hide();
    return left;
}

QWidget* PictureDialog::NewRight() {
    drawstring_->setObjectName("Drawstring");
    drawstring_->setAccessibleName(tr("Drawstring"));
    palette_->AddPage(drawstring_, tr("Drawstring"));
    palette_->AddPage(NewImages(), tr("Image"));
    palette_->AddPage(NewSaving(), tr("Save"));
    auto* parts = new QSplitter(Qt::Vertical);
    parts->setChildrenCollapsible(false);
    parts->addWidget(commands_);
    parts->addWidget(palette_);
    parts->setSizes({110, 480});
    status_->setObjectName("Status");
    status_->setTextFormat(Qt::PlainText);
    status_->setMinimumWidth(1);
    auto* right = new QWidget;
    auto* layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(parts, 1);
    layout->addWidget(status_);
    return right;
}

QWidget* PictureDialog::NewImages() {
    auto* import = NewButton(tr("&Import Image..."), "ImportImage");
    connect(import, &QPushButton::clicked, this, [this] { ImportImage(); });
    auto* images = new QWidget;
    auto* layout = new QVBoxLayout(images);
    layout->setContentsMargins(0, kPictureMargin, 0, 0);
    layout->addWidget(import);
    layout->addWidget(tracing_);
    layout->addStretch();
    return images;
}

QWidget* PictureDialog::NewSaving() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, kPictureMargin, 0, 0);
    layout->addWidget(new QLabel(tr("<b>Save Picture Information</b>")));
    auto* told =
        new QLabel(tr("Drawstring always saved on Update. Below is to save Picture as a Room "
                      "Picture or for use with the Picture action. "));
    told->setWordWrap(true);
    asRoomPicture_->setObjectName("SaveAsRoomPicture");
    roomNumber_->setObjectName("RoomNumber");
    roomNumber_->setAccessibleName(tr("Room number"));
    fileName_->setObjectName("FileName");
    fileName_->setAccessibleName(tr("File name"));
    fileName_->setReadOnly(true);
    auto* browse = NewButton(tr("&Browse..."), "Browse");
    connect(browse, &QPushButton::clicked, this, [this] {
        Read();
        Guarded([this] { return screen_.Browse(); });
        Show();
    });
    auto* room = new QHBoxLayout;
    room->addWidget(new QLabel(tr("Room:")));
    roomNumber_->setMaximumWidth(10 * fontMetrics().averageCharWidth());
    room->addWidget(roomNumber_);
    room->addStretch();
    auto* file = new QHBoxLayout;
    file->addWidget(new QLabel(tr("File Name:")));
    file->addWidget(fileName_, 1);
    file->addWidget(browse);
    layout->addWidget(told);
    layout->addWidget(asRoomPicture_);
    layout->addLayout(room);
    layout->addLayout(file);
    layout->addStretch();
    return page;
}

void PictureDialog::Connect() {
    commandLine_->installEventFilter(this);
    canvas_->keyPressed = [this](authoring::DrawingKey key, bool shift) {
        screen_.PressKey(key, shift);
        Show();
    };
    canvas_->pressed = [this](pictures::Point point) {
        screen_.PointAt(point);
        Show();
    };
    canvas_->dragged = [this](pictures::Point point) {
        screen_.DragTo(point);
        Show();
    };
    canvas_->pointedAt = [this](std::optional<pictures::Point> point) { ShowPointer(point); };
    palette_->commanded = [this](const std::string& line) { Run(line); };
    commands_->chosen = [this](std::size_t commands) { GoBehind(commands); };
    commands_->changed = [this](std::size_t command, const std::string& text) {
        Guarded([&] { return screen_.ChangeCommand(command, text); });
        Show();
    };
    screen_.saying = [this](std::string_view text) {
        saying_->setText(qt::Translated(text));
        saying_->setVisible(!text.empty());
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    };
    connect(undo_, &QToolButton::clicked, this, [this] { Undo(false); });
    connect(redo_, &QToolButton::clicked, this, [this] { Undo(true); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z), this), &QShortcut::activated, this,
            [this] { Undo(false); });
    for (const auto key : {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z}) {
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this,
                [this] { Undo(true); });
    }
    CheckOnLeave(drawstring_, [this] { return screen_.LeaveDrawstring(); });
    CheckOnLeave(roomNumber_, [this] { return screen_.LeaveRoomNumber(); });
}

/// The keys of the command line move the cursor of the picture and not that of the line.
bool PictureDialog::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver != commandLine_) return ScreenDialog::eventFilter(receiver, event);
    const auto type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::ShortcutOverride) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isUndo = key->modifiers().testFlag(Qt::ControlModifier) &&
                        (key->key() == Qt::Key_Z || key->key() == Qt::Key_Y);
    // The line would keep these for itself.
    if (type == QEvent::ShortcutOverride) return isUndo;
    return KeyOnCommandLine(key->key(), key->modifiers());
}

bool PictureDialog::KeyOnCommandLine(int key, Qt::KeyboardModifiers modifiers) {
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier)) return false;
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        RunTyped();
        return true;
    }
    const auto drawing = DrawingKeyOf(key);
    if (!drawing) return false;
    Guarded([&] {
        screen_.PressKey(*drawing, modifiers.testFlag(Qt::ShiftModifier));
        return true;
    });
    Show();
    return true;
}

void PictureDialog::RunTyped() {
    Read();
    Guarded([this] { return screen_.RunCommandLine(); });
    commandLine_->setText(qt::ToQt(screen_.commandLine));
    Show();
}

void PictureDialog::Run(const std::string& line) {
    Guarded([&] { return screen_.Run(line); });
    Show();
}

void PictureDialog::Undo(bool redo) {
    redo ? screen_.Redo() : screen_.Undo();
    Show();
}

/// A click on a line of the list: the picture up to there, and what the command changed.
void PictureDialog::GoBehind(std::size_t commands) {
    Guarded([&] { return screen_.GoBehind(commands); });
    Show();
    canvas_->Mark(screen_.PixelsOfLastCommand());
}

void PictureDialog::ImportImage() {
    Guarded([this] {
        const auto image = AskImage(screen_.Dialogs(), screen_.Adventure().GameDir(), this);
        if (image) screen_.TakeImage(image->image, image->asDrawstring);
        return true;
    });
    Show();
}

void PictureDialog::Read() {
    screen_.commandLine = qt::FromQt(commandLine_->text());
    screen_.drawstring = qt::FromQt(drawstring_->toPlainText());
    screen_.saveAsRoomPicture = asRoomPicture_->isChecked();
    screen_.roomNumber = qt::FromQt(roomNumber_->text());
}

void PictureDialog::Show() {
    canvas_->Mark({});
    canvas_->Show();
    palette_->Show();
    commands_->Show();
    status_->setText(qt::Translated(screen_.Status()));
    if (qt::FromQt(drawstring_->toPlainText()) != screen_.drawstring) {
        drawstring_->setPlainText(qt::ToQt(screen_.drawstring));
        drawstring_->moveCursor(QTextCursor::End);
    }
    MarkFault();
    asRoomPicture_->setChecked(screen_.saveAsRoomPicture);
    fileName_->setText(qt::ToQt(screen_.fileName) +
                       (screen_.TakenImage() ? tr(" (the imported image)") : QString()));
    undo_->setEnabled(screen_.CanUndo());
    redo_->setEnabled(screen_.CanRedo());
}

/// Underlines the word at fault in the drawstring.
void PictureDialog::MarkFault() {
    QList<QTextEdit::ExtraSelection> marks;
    if (const auto& fault = screen_.Fault()) {
        qsizetype at = 0;
        const QStringList words = qt::ToQt(screen_.drawstring).split(' ');
        const auto place = static_cast<qsizetype>(fault->word);
        for (qsizetype i = 0; i < std::min(place, words.size()); ++i)
            at += words[i].size() + 1;
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(drawstring_->document());
        mark.cursor.setPosition(
            static_cast<int>(std::min(at, qsizetype{drawstring_->document()->characterCount() - 1})));
        mark.cursor.movePosition(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
        mark.format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
        mark.format.setUnderlineColor(Qt::red);
        mark.format.setFontWeight(QFont::Bold);
        marks.append(mark);
        drawstring_->setToolTip(qt::TipOf(qt::Translated(fault->message)));
    } else {
        drawstring_->setToolTip({});
    }
    drawstring_->setExtraSelections(marks);
}

void PictureDialog::ShowPointer(std::optional<pictures::Point> point) {
    pointer_->setText(point ? tr("Pointer: %1, %2").arg(point->x).arg(point->y) : QString());
}

}  // namespace fabula::ide
