#include "ide/editors/cond_act_edit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStringListModel>

#include "qt/help/help_request.h"
#include "qt/strings.h"
#include "text/encoding/utf8.h"

namespace fabula::ide {
namespace {

constexpr int kMostShown = 12;
constexpr QColor kRedOnLight(0xc0, 0x10, 0x10);
constexpr QColor kRedOnDark(0xff, 0x80, 0x80);

int PositionOf(const std::string& line, std::size_t byte) {
    return static_cast<int>(qt::ToQt(std::string_view(line).substr(0, byte)).size());
}

/// "Fault at 7: Invalid number for parameter 1"; a message that names the token itself needs no place.
QString SentenceOf(const authoring::MarkedFault& fault, const std::string& line) {
    const std::string token = line.substr(fault.begin, fault.end - fault.begin);
    const bool named = text::EqualsNoCase(std::string_view(fault.message).substr(0, token.size()), token);
    return qt::Translated((named ? "Fault: " : "Fault at " + token + ": ") + fault.message);
}

}  // namespace

CondActEdit::CondActEdit(const authoring::CondActHelp& help, QWidget* parent)
    : QPlainTextEdit(parent),
      help_(help),
      items_(new QStringListModel(this)),
      completer_(new QCompleter(items_, this)) {
    setTabChangesFocus(true);
    completer_->setWidget(this);
    completer_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer_->setMaxVisibleItems(kMostShown);
    connect(completer_, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            [this](const QModelIndex& index) { Insert(index.row()); });
    connect(this, &QPlainTextEdit::textChanged, this, &CondActEdit::Tell);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CondActEdit::Tell);
}

CondActEdit::Typed CondActEdit::Read() const {
    const QString text = toPlainText();
    return {qt::FromQt(text), qt::FromQt(text.left(textCursor().position())).size()};
}

QStringList CondActEdit::Offered() const {
    return completer_->popup()->isVisible() ? items_->stringList() : QStringList();
}

bool CondActEdit::HideOffers() {
    const bool open = completer_->popup()->isVisible();
    completer_->popup()->hide();
    return open;
}

void CondActEdit::Tell() {
    const Typed typed = Read();
    const auto fault =
        hasFocus() ? help_.FirstFaultWhileTyping(typed.line, typed.cursor) : help_.FirstFault(typed.line);
    QList<QTextEdit::ExtraSelection> marks;
    if (fault) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(document());
        mark.cursor.setPosition(PositionOf(typed.line, fault->begin));
        mark.cursor.setPosition(PositionOf(typed.line, fault->end), QTextCursor::KeepAnchor);
        mark.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        mark.format.setUnderlineColor(palette().base().color().lightness() < 128 ? kRedOnDark
                                                                                 : kRedOnLight);
        marks.append(mark);
    }
    setExtraSelections(marks);
    setProperty(qt::kHelpPage, qt::ToQt(help_.Page(typed.line, typed.cursor)));
    onMeaning(qt::Translated(help_.Meaning(typed.line, typed.cursor)));
    onFault(fault ? SentenceOf(*fault, typed.line) : QString());
}

/// While typing, names are offered from their first letter and parameters from the blank before them.
void CondActEdit::Offer(bool asked) {
    const Typed typed = Read();
    offered_ = help_.Complete(typed.line, typed.cursor);
    const bool nothingTyped = offered_.begin == typed.cursor;
    const bool forParameter = !help_.Meaning(typed.line, typed.cursor).empty();
    const std::string_view begun =
        std::string_view(typed.line).substr(offered_.begin, typed.cursor - offered_.begin);
    const bool complete =
        offered_.items.size() == 1 && text::EqualsNoCase(offered_.items.front().insert, begun);
    const bool wanted = asked || (!complete && (!nothingTyped || forParameter));
    if (!wanted || offered_.items.empty()) {
        completer_->popup()->hide();
        return;
    }
    QStringList shown;
    for (const authoring::Completion& item : offered_.items)
        shown.append(qt::ToQt(item.shown));
    items_->setStringList(shown);
    QAbstractItemView* popup = completer_->popup();
    QRect place = cursorRect();
    place.setWidth(popup->sizeHintForColumn(0) + popup->verticalScrollBar()->sizeHint().width() + 16);
    completer_->complete(place);
    popup->setCurrentIndex(completer_->completionModel()->index(0, 0));
}

void CondActEdit::Insert(int item) {
    if (item < 0 || item >= static_cast<int>(offered_.items.size())) return;
    const authoring::Completion& taken = offered_.items[static_cast<std::size_t>(item)];
    std::string insert = taken.insert;
    if (!taken.newText.empty()) {
        const std::optional<condacts::MessageNumber> number = onNewMessage(taken.newText);
        if (!number) return;
        insert = std::to_string(number->value);
    }
    const std::string line = Read().line;
    QTextCursor cursor = textCursor();
    cursor.setPosition(PositionOf(line, offered_.begin));
    cursor.setPosition(PositionOf(line, offered_.end), QTextCursor::KeepAnchor);
    cursor.insertText(qt::ToQt(insert) + " ");
    setTextCursor(cursor);
}

void CondActEdit::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // The list takes these keys.
    const bool forList = enter || event->key() == Qt::Key_Escape;
    if (completer_->popup()->isVisible() && forList) return event->ignore();
    if (enter) return event->ignore();
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier) return Offer(true);
    QPlainTextEdit::keyPressEvent(event);
    const QString typed = event->text();
    if (!typed.isEmpty() && (typed.front().isPrint() || event->key() == Qt::Key_Backspace)) Offer(false);
}

bool CondActEdit::focusNextPrevChild(bool next) {
    if (!next || !completer_->popup()->isVisible()) return QPlainTextEdit::focusNextPrevChild(next);
    const int row = completer_->popup()->currentIndex().row();
    completer_->popup()->hide();
    Insert(row);
    return true;
}

void CondActEdit::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    Tell();
}

void CondActEdit::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    Tell();
}

}  // namespace fabula::ide
