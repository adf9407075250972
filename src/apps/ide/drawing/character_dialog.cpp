#include "ide/drawing/character_dialog.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include "ide/drawing/character_grid.h"
#include "ide/editors/edit_controls.h"
#include "ide/editors/layout.h"
#include "ide/editors/plane_image.h"
#include "pictures/palette.h"
#include "qt/look/icons.h"
#include "qt/strings.h"

namespace fabula::ide {

using authoring::CharacterEdit;

namespace {

constexpr const char* kSample = "The quick brown fox jumps";

QColor ColourOfSettings(authoring::CharacterEditor& screen, const char* field) {
    const store::Cursor& settings = screen.Adventure().OpenTable(store::TableNum::Adventure, field);
    const int number = settings.Eof() ? 0 : static_cast<int>(settings.Number(field));
    return ColourOf(pictures::IndexToColour(number));
}

/// The character 8 by 8 times, so that a pattern shows how it joins.
QPixmap Tiled(const QImage& one) {
    QPixmap all(one.size() * 8);
    QPainter(&all).fillRect(all.rect(), QBrush(one));
    return all;
}

}  // namespace

CharacterDialog::CharacterDialog(authoring::CharacterEditor& screen, QWidget* parent)
    : ScreenDialog(screen, tr("Character %1 of Set %2").arg(screen.Number()).arg(screen.Set()),
                   "charactereditor.html", parent),
      screen_(screen),
      ink_(ColourOfSettings(screen, "textcolor")),
      paper_(ColourOfSettings(screen, "backcolor")),
      grid_(new CharacterGrid(screen, ink_, paper_)),
      first_(new QLabel),
      second_(new QLabel),
      sample_(new QLabel),
      sampleText_(new QLineEdit(kSample)),
      commandLine_(new QLineEdit) {
    auto* status = new QLabel(qt::Translated(screen.StatusLine()));
    status->setObjectName("Status");
    auto* hint = new QLabel(qt::Translated(authoring::CharacterEditor::kHint));
    hint->setObjectName("Hint");
    commandLine_->setObjectName("CommandLine");
    commandLine_->setAccessibleName(tr("Command"));
    commandLine_->installEventFilter(this);
    auto* label = new QLabel(tr("&Command:"));
    label->setBuddy(commandLine_);
    auto* command = new QHBoxLayout;
    command->addWidget(label);
    command->addWidget(commandLine_, 1);
    auto* left = new QVBoxLayout;
    left->addWidget(status);
    left->addWidget(grid_, 1);
    left->addWidget(hint);
    left->addLayout(command);
    auto* right = new QVBoxLayout;
    right->addWidget(NewEdits());
    right->addLayout(NewSamples());
    right->addStretch();
    auto* contents = new QWidget;
    auto* columns = new QHBoxLayout(contents);
    columns->setContentsMargins(kDialogMargin, kDialogMargin / 2, kDialogMargin, kDialogMargin / 2);
    columns->setSpacing(kDialogMargin);
    columns->addLayout(left, 1);
    columns->addLayout(right);
    SetContents(contents);
    grid_->changed = [this] { Show(); };
    connect(sampleText_, &QLineEdit::textChanged, this, [this] { Show(); });
    const auto onKey = [this](const QKeySequence& key, std::function<void()> work) {
        auto* shortcut = new QShortcut(key, grid_);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, std::move(work));
    };
    onKey(QKeySequence::Copy, [this] { QApplication::clipboard()->setText(qt::ToQt(screen_.Copy())); });
    onKey(QKeySequence::Paste, [this] {
        screen_.Paste(qt::FromQt(QApplication::clipboard()->text()));
        Show();
    });
    onKey(Qt::CTRL | Qt::Key_Z, [this] {
        screen_.Undo();
        Show();
    });
    onKey(Qt::CTRL | Qt::Key_Y, [this] {
        screen_.Redo();
        Show();
    });
    Show();
    grid_->setFocus();
}

void CharacterDialog::AddEdit(QGridLayout& grid, const char* name, const QString& text, const QString& tip,
                              std::function<void()> work) {
    connect(AddToolButton(grid, name, text, tip), &QToolButton::clicked, this,
            [this, work = std::move(work)] {
                work();
                Show();
            });
}

QWidget* CharacterDialog::NewEdits() {
    struct Entry {
        const char* name;
        const char* text;
        const char* tip;
        CharacterEdit edit;
    };
    static constexpr Entry kEntries[] = {
        {"ShiftLeft", "Left", "Shift by a pixel to the left", CharacterEdit::ShiftLeft},
        {"ShiftRight", "Right", "Shift by a pixel to the right", CharacterEdit::ShiftRight},
        {"ShiftUp", "Up", "Shift up by a pixel", CharacterEdit::ShiftUp},
        {"ShiftDown", "Down", "Shift down by a pixel", CharacterEdit::ShiftDown},
        {"Rotate", "Turn", "Turn by a quarter", CharacterEdit::Rotate},
        {"Invert", "Invert", "Exchange ink and paper", CharacterEdit::Invert},
        {"MirrorSideways", "Mirror", "Exchange left and right", CharacterEdit::MirrorSideways},
        {"MirrorUpsideDown", "Flip", "Exchange top and bottom", CharacterEdit::MirrorUpsideDown},
        {"Clear", "Clear", "All squares become paper (C)", CharacterEdit::Clear},
    };
    auto* group = new QGroupBox(tr("Change"));
    auto* grid = new QGridLayout(group);
    for (const Entry& entry : kEntries)
        AddEdit(*grid, entry.name, tr(entry.text), tr(entry.tip),
                [this, &entry] { screen_.Do(entry.edit); });
    AddEdit(*grid, "ReDraw", tr("Redraw"), tr("Draw the samples anew (R)"), [this] { screen_.ReDraw(); });
    AddEdit(*grid, "Copy", tr("Copy"), tr("Copy the character (Ctrl+C)"),
            [this] { QApplication::clipboard()->setText(qt::ToQt(screen_.Copy())); });
    AddEdit(*grid, "Paste", tr("Paste"), tr("Take a copied character (Ctrl+V)"),
            [this] { screen_.Paste(qt::FromQt(QApplication::clipboard()->text())); });
    AddEdit(*grid, "UndoCharacter", tr("Undo"), tr("Take back the last change (Ctrl+Z)"),
            [this] { screen_.Undo(); });
    AddEdit(*grid, "RedoCharacter", tr("Redo"), tr("Repeat what was taken back (Ctrl+Y)"),
            [this] { screen_.Redo(); });
    undo_ = group->findChild<QToolButton*>("UndoCharacter");
    redo_ = group->findChild<QToolButton*>("RedoCharacter");
    return group;
}

QLayout* CharacterDialog::NewSamples() {
    first_->setObjectName("Sample1");
    second_->setObjectName("Sample2");
    sample_->setObjectName("SampleLine");
    // A long text is cut rather than widening the window.
    sample_->setMinimumWidth(1);
    first_->setAccessibleName(tr("The character 64 times"));
    second_->setAccessibleName(tr("The character 64 times, exchanged"));
    sampleText_->setObjectName("SampleText");
    sampleText_->setAccessibleName(tr("Sample text"));
    sample_->setAccessibleName(tr("The sample text in the set's characters"));
    auto* tiles = new QHBoxLayout;
    tiles->addWidget(first_);
    tiles->addWidget(second_);
    tiles->addStretch();
    auto* samples = new QVBoxLayout;
    samples->addLayout(tiles);
    samples->addWidget(sampleText_);
    samples->addWidget(sample_);
    return samples;
}

bool CharacterDialog::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver == commandLine_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            RunTyped();
            return true;
        }
    }
    return ScreenDialog::eventFilter(receiver, event);
}

void CharacterDialog::RunTyped() {
    Read();
    screen_.RunCommandLine();
    commandLine_->setText(qt::ToQt(screen_.commandLine));
    Show();
}

void CharacterDialog::Read() {
    screen_.commandLine = qt::FromQt(commandLine_->text());
}

void CharacterDialog::Show() {
    grid_->Show();
    first_->setPixmap(Tiled(ImageOfGlyph(screen_.Drawn(), ink_, paper_, 1)));
    second_->setPixmap(Tiled(ImageOfGlyph(screen_.Drawn(), paper_, ink_, 1)));
    const auto glyphs = screen_.Sample(qt::FromQt(sampleText_->text()));
    QPixmap line(std::max<int>(1, 16 * static_cast<int>(glyphs.size())), 16);
    QPainter painter(&line);
    for (std::size_t i = 0; i < glyphs.size(); ++i)
        painter.drawImage(16 * static_cast<int>(i), 0, ImageOfGlyph(glyphs[i], ink_, paper_, 2));
    painter.end();
    sample_->setPixmap(line);
    undo_->setEnabled(screen_.CanUndo());
    redo_->setEnabled(screen_.CanRedo());
}

}  // namespace fabula::ide
