#include "ide/editors/comment_edit.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSet>

#include "ide/editors/edit_controls.h"
#include "ide/editors/text_edit.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr int kLines = 2;

/// The letter behind "&".
QString MnemonicOf(const QString& text) {
    const QKeySequence key = QKeySequence::mnemonic(text);
    return key.isEmpty() ? QString() : key.toString().right(1).toUpper();
}

/// The caption with a mnemonic that is free in the window; without one when none of its letters is.
QString WithFreeMnemonic(const QString& caption, const QWidget& window) {
    QSet<QString> taken;
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) taken.insert(MnemonicOf(label->text()));
    }
    for (const auto* button : window.findChildren<QAbstractButton*>())
        taken.insert(MnemonicOf(button->text()));
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i].isLetter() && !taken.contains(QString(caption[i].toUpper())))
            return QString(caption).insert(i, '&');
    }
    return caption;
}

}  // namespace

CommentEdit::CommentEdit(authoring::RecordComment& comment, const QWidget& window)
    : comment_(comment), edit_(new TextEdit) {
    const QString caption = tr("Comment:");
    auto* label = new QLabel(WithFreeMnemonic(caption, window));
    label->setBuddy(edit_);
    edit_->setObjectName("comment");
    edit_->setAccessibleName(PlainLabel(caption));
    edit_->setTabChangesFocus(true);
    edit_->setToolTip(tr("For yourself: the game never shows it"));
    const int frame = 2 * (edit_->frameWidth() + static_cast<int>(edit_->document()->documentMargin()));
    edit_->setMinimumHeight(edit_->fontMetrics().lineSpacing() + frame);
    edit_->setMaximumHeight(kLines * edit_->fontMetrics().lineSpacing() + frame);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addWidget(label, 0, Qt::AlignTop);
    row->addWidget(edit_, 1);
    Show();
    connect(edit_, &QPlainTextEdit::textChanged, this,
            [this] { comment_.text = qt::FromQt(TextIn(*edit_)); });
}

void CommentEdit::Show() {
    const QString text = qt::ToQt(comment_.text);
    if (text != TextIn(*edit_)) edit_->setPlainText(text);
}

}  // namespace fabula::ide
