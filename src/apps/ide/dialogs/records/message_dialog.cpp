#include "ide/dialogs/records/message_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include "ide/editors/layout.h"
#include "ide/editors/markup_edit.h"
#include "qt/strings.h"

namespace fabula::ide {

MessageDialog::MessageDialog(authoring::MessageScreen& screen, QWidget* parent)
    : ScreenDialog(screen, qt::Translated(screen.Caption()), "frmbothmessages.html", parent),
      screen_(screen),
      editing_(screen.Adventure()),
      number_(new QLabel) {
    number_->setObjectName("number");
    text_ = new MarkupEdit(
        editing_, {tr("&Text:"), qt::Translated(screen.PreviewCaption()), screen.TagsAllowed()}, "text");
    text_->typed = [this](const std::string& text) { screen_.TypeMessage(text); };
    auto* contents = new QWidget;
    auto* rows = new QVBoxLayout(contents);
    rows->setContentsMargins(kDialogMargin, kDialogMargin, kDialogMargin, kDialogMargin);
    rows->setSpacing(10);
    auto* top = new QHBoxLayout;
    AddMoves(*top);
    rows->addLayout(top);
    rows->addWidget(text_, 1);
    SetContents(contents);
    CheckOnLeave(&text_->Field(), [this] { return StaysWithFault(screen_.LeaveText()); });
    ShowRecord();
}

void MessageDialog::AddMoves(QHBoxLayout& row) {
    row.addWidget(number_);
    const auto add = [&](const char* name, const QString& caption, Qt::ArrowType arrow, Qt::Key key,
                         int step) {
        auto* button = new QToolButton;
        button->setObjectName(name);
        button->setArrowType(arrow);
        button->setAccessibleName(caption);
        button->setToolTip(caption);
        button->setFocusPolicy(Qt::StrongFocus);
        const int side = button->fontMetrics().height() * 3 / 2;
        button->setMinimumSize(side, side);
        connect(button, &QToolButton::clicked, this, [this, step] { Move(step); });
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), this);
        connect(shortcut, &QShortcut::activated, this, [this, step] { Move(step); });
        row.addWidget(button);
        moves_.append(button);
        moveKeys_.append(shortcut);
    };
    add("previous", tr("Previous number"), Qt::UpArrow, Qt::Key_PageUp, -1);
    add("next", tr("Next number"), Qt::DownArrow, Qt::Key_PageDown, 1);
    row.addStretch(1);
}

QSize MessageDialog::sizeHint() const {
    return ScreenDialog::sizeHint().expandedTo({640, 480});
}

void MessageDialog::setVisible(bool visible) {
    if (visible && isWindow()) text_->setFocus();
    ScreenDialog::setVisible(visible);
}

void MessageDialog::StandBeside() {
    for (QToolButton* move : moves_)
        move->hide();
    for (QShortcut* key : moveKeys_)
        key->setEnabled(false);
}

void MessageDialog::ShowOpened() {
    number_->setText(QString("%1 %2").arg(qt::Translated(screen_.Label())).arg(screen_.Number()));
    text_->SetText(screen_.Text());
}

void MessageDialog::Move(int step) {
    const int before = screen_.Number();
    const bool moved = Guarded([this, step] { return screen_.Step(step); });
    if (screen_.Number() != before) return ShowRecord();
    StaysWithFault(moved);
}

/// A text that does not fit keeps the keyboard, with its fault chosen.
bool MessageDialog::StaysWithFault(bool fits) {
    if (!fits) text_->ShowFault();
    return fits;
}

}  // namespace fabula::ide
