#include "ide/dialogs/message_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include "ide/dialogs/leaving.h"
#include "ide/editors/comment_edit.h"
#include "ide/editors/layout.h"
#include "ide/editors/leave_check.h"
#include "ide/editors/markup_edit.h"
#include "platform/error.h"
#include "qt/fitting_size.h"
#include "qt/strings.h"

namespace fabula::ide {

MessageDialog::MessageDialog(authoring::MessageScreen& screen, const authoring::TextEditing& editing,
                             platform::Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), screen_(screen), dialogs_(dialogs), number_(new QLabel) {
    setWindowTitle(qt::Translated(screen.Caption()));
    setProperty("helpPage", "frmbothmessages.html");
    setSizeGripEnabled(true);
    number_->setObjectName("number");
    text_ = new MarkupEdit(
        editing, {tr("&Text:"), qt::Translated(screen.PreviewCaption()), screen.TagsAllowed()}, "text");
    text_->typed = [this](const std::string& text) { screen_.TypeMessage(text); };
    auto* top = new QHBoxLayout;
    AddMoves(*top);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kDialogMargin, kDialogMargin, kDialogMargin, kDialogMargin);
    layout->setSpacing(10);
    layout->addLayout(top);
    layout->addWidget(text_, 1);
    comment_ = new CommentEdit(screen.Comment(), *this);
    layout->addWidget(comment_);
    auto* bottom = new QHBoxLayout;
    AddButtons(*bottom);
    layout->addLayout(bottom);
    ShowRecord();
    resize(qt::FittingSize(*this, sizeHint().expandedTo({640, 480})));
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

void MessageDialog::setVisible(bool visible) {
    if (visible && isWindow()) text_->setFocus();
    QDialog::setVisible(visible);
}

void MessageDialog::StandBeside() {
    for (QToolButton* move : moves_)
        move->hide();
    for (QShortcut* key : moveKeys_)
        key->setEnabled(false);
}

void MessageDialog::AddButtons(QHBoxLayout& row) {
    row.addStretch(1);
    auto* update = new QPushButton(tr("&Update"));
    update->setObjectName("update");
    update->setAccessibleName(tr("Update"));
    update->setDefault(true);
    auto* exit = new QPushButton(tr("Exit"));
    exit->setObjectName("exit");
    exit->setAccessibleName(tr("Exit"));
    exit->setAutoDefault(false);
    row.addWidget(update);
    row.addWidget(exit);
    new LeaveCheck(text_->Field(), [this] { Leave(); });
    connect(update, &QPushButton::clicked, this, [this] { ClickUpdate(); });
    connect(exit, &QPushButton::clicked, this, [this] { reject(); });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), this);
        connect(shortcut, &QShortcut::activated, this, [this] { ClickUpdate(); });
    }
}

void MessageDialog::ShowRecord() {
    number_->setText(QString("%1 %2").arg(qt::Translated(screen_.Label())).arg(screen_.Number()));
    text_->SetText(screen_.Text());
    comment_->Show();
}

void MessageDialog::Move(int step) {
    const int before = screen_.Number();
    try {
        screen_.Step(step);
    } catch (const Error& error) {
        dialogs_.Tell(error.what(), "Error");
    }
    if (screen_.Number() != before) return ShowRecord();
    text_->ShowFault();
}

void MessageDialog::reject() {
    if (MayClose(screen_.Changed(), dialogs_, [this] { ClickUpdate(); })) QDialog::reject();
}

void MessageDialog::Leave() {
    // The update that is under way has told of it.
    if (atWork_) return;
    const QScopedValueRollback atWork(atWork_, true);
    if (!screen_.LeaveText()) text_->ShowFault();
}

void MessageDialog::ClickUpdate() {
    if (atWork_) return;
    try {
        const QScopedValueRollback atWork(atWork_, true);
        if (screen_.Update()) return accept();
    } catch (const Error& error) {
        dialogs_.Tell(error.what(), "Error");
    }
    text_->ShowFault();
}

}  // namespace fabula::ide
