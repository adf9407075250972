#include "player/panes/text_access.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

#include "player/panes/text_pane.h"

namespace fabula::player {

namespace {

class TextPaneAccess final : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit TextPaneAccess(TextPane* pane)
        : QAccessibleWidget(pane, QAccessible::Terminal, pane->accessibleName()), pane_(*pane) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.multiLine = true;
        state.selectableText = true;
        return state;
    }
    QString text(QAccessible::Text what) const override {
        return what == QAccessible::Value ? pane_.toPlainText() : QAccessibleWidget::text(what);
    }

    // All offsets count characters from the start of the text.

    void selection(int index, int* start, int* end) const override {
        const QTextCursor cursor = pane_.textCursor();
        *start = index == 0 ? cursor.selectionStart() : 0;
        *end = index == 0 ? cursor.selectionEnd() : 0;
    }
    int selectionCount() const override { return pane_.textCursor().hasSelection() ? 1 : 0; }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int index) override {
        if (index == 0) setCursorPosition(cursorPosition());
    }
    void setSelection(int index, int start, int end) override {
        if (index != 0) return;
        QTextCursor cursor(pane_.document());
        cursor.setPosition(Bounded(start));
        cursor.setPosition(Bounded(end), QTextCursor::KeepAnchor);
        pane_.setTextCursor(cursor);
    }

    int cursorPosition() const override { return pane_.textCursor().position(); }
    void setCursorPosition(int position) override {
        QTextCursor cursor(pane_.document());
        cursor.setPosition(Bounded(position));
        pane_.setTextCursor(cursor);
    }

    using QAccessibleWidget::text;
    QString text(int start, int end) const override {
        QTextCursor part(pane_.document());
        part.setPosition(Bounded(start));
        part.setPosition(Bounded(end), QTextCursor::KeepAnchor);
        return part.selectedText().replace(QChar::ParagraphSeparator, '\n');
    }
    int characterCount() const override { return pane_.document()->characterCount() - 1; }

    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                             int* end) const override {
        if (boundary != QAccessible::LineBoundary)
            return QAccessibleTextInterface::textBeforeOffset(offset, boundary, start, end);
        return Line(pane_.document()->findBlock(Bounded(offset)).previous(), start, end);
    }
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                            int* end) const override {
        if (boundary != QAccessible::LineBoundary)
            return QAccessibleTextInterface::textAfterOffset(offset, boundary, start, end);
        return Line(pane_.document()->findBlock(Bounded(offset)).next(), start, end);
    }
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                         int* end) const override {
        if (boundary != QAccessible::LineBoundary)
            return QAccessibleTextInterface::textAtOffset(offset, boundary, start, end);
        return Line(pane_.document()->findBlock(Bounded(offset)), start, end);
    }

    QRect characterRect(int offset) const override {
        QTextCursor at(pane_.document());
        at.setPosition(Bounded(offset));
        const QRect rect = pane_.cursorRect(at);
        return {pane_.viewport()->mapToGlobal(rect.topLeft()), rect.size()};
    }
    int offsetAtPoint(const QPoint& point) const override {
        return pane_.cursorForPosition(pane_.viewport()->mapFromGlobal(point)).position();
    }
    void scrollToSubstring(int start, int) override {
        QTextCursor at(pane_.document());
        at.setPosition(Bounded(start));
        QScrollBar& bar = *pane_.verticalScrollBar();
        bar.setValue(bar.value() + pane_.cursorRect(at).top());
    }
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

  private:
    int Bounded(int offset) const { return std::clamp(offset, 0, characterCount()); }
    /// A whole line as the game wrote it, however often the pane wraps it.
    QString Line(const QTextBlock& line, int* start, int* end) const {
        *start = *end = -1;
        if (!line.isValid()) return {};
        *start = line.position();
        *end = std::min(line.position() + line.length(), characterCount());
        return text(*start, *end);
    }

    TextPane& pane_;
};

QAccessibleInterface* Describe(const QString&, QObject* object) {
    auto* pane = dynamic_cast<TextPane*>(object);
    return pane == nullptr ? nullptr : new TextPaneAccess(pane);
}

}  // namespace

void DescribeTextPanes() {
    // A factory that is there already is not taken twice.
    QAccessible::installFactory(Describe);
}

}  // namespace fabula::player
