#include "ide/accessible_tree.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTextDocument>
#include <set>

#include "qt/strings.h"

namespace fabula::test {
namespace {

/// What a person can use; the rest holds such things, moves them, or is read.
bool IsControl(QAccessible::Role role) {
    static const std::set<QAccessible::Role> kOthers{
        QAccessible::Client,      QAccessible::Pane,         QAccessible::LayeredPane,
        QAccessible::Splitter,    QAccessible::Window,       QAccessible::ScrollBar,
        QAccessible::ToolBar,     QAccessible::Grip,         QAccessible::Separator,
        QAccessible::MenuBar,     QAccessible::StatusBar,    QAccessible::Dialog,
        QAccessible::Border,      QAccessible::Grouping,     QAccessible::Whitespace,
        QAccessible::StaticText,  QAccessible::Cell,         QAccessible::TreeItem,
        QAccessible::ListItem,    QAccessible::RowHeader,    QAccessible::Paragraph,
        QAccessible::WebDocument, QAccessible::ColumnHeader, QAccessible::Indicator,
        QAccessible::ProgressBar};
    return !kOthers.contains(role);
}

bool HasMarkup(const QString& text) {
    static const QRegularExpression kTag(
        "</?(qt|html|p|b|i|u|br|span|font|table|a|div|h[1-6]|ul|li)\\b[^>]*>");
    return text.contains(kTag);
}

QString Plain(const QLabel& label) {
    QString text = label.text();
    if (label.buddy()) text.remove('&');
    const bool rich = label.textFormat() == Qt::RichText ||
                      (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(text));
    if (!rich) return text;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

class Walk {
  public:
    std::vector<std::string> Of(QWidget& window) {
        Look(*QAccessible::queryAccessibleInterface(&window));
        if (seen_ < 3) wrong_.push_back("nothing is seen");
        return std::move(wrong_);
    }

  private:
    void Look(QAccessibleInterface& access) {
        if (access.state().invisible) return;
        ++seen_;
        if (auto* widget = qobject_cast<QWidget*>(access.object())) Check(access, *widget);
        const auto role = access.role();
        // What a list or a page of text is made of is its content.
        const bool content = role == QAccessible::ComboBox || role == QAccessible::SpinBox ||
                             role == QAccessible::Table || role == QAccessible::Tree ||
                             role == QAccessible::List || role == QAccessible::EditableText;
        if (content) return;
        for (int child = 0; child < access.childCount(); ++child) {
            if (QAccessibleInterface* inner = access.child(child)) Look(*inner);
        }
    }

    void Check(QAccessibleInterface& access, const QWidget& widget) {
        const QString name = access.text(QAccessible::Name);
        const QString described = access.text(QAccessible::Description);
        const auto role = access.role();
        if (HasMarkup(described)) Add(widget, "markup in the description: " + described);
        const auto* label = qobject_cast<const QLabel*>(&widget);
        if (label && !label->text().isEmpty() && !name.contains(Plain(*label)))
            Add(widget, "the name hides the text: " + name);
        if (!label && HasMarkup(name)) Add(widget, "markup in the name: " + name);
        if (label && !label->pixmap(Qt::ReturnByValue).isNull() && name.isEmpty())
            Add(widget, "a picture without a name");
        if (const auto* list = qobject_cast<const QComboBox*>(&widget))
            CheckList(access, *list);
        else if (access.state().focusable && IsControl(role) && name.isEmpty())
            Add(widget, "no name");
        // Areas that scroll hold what is told.
        const bool scrolls = qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr;
        const bool alone = access.childCount() == 0 && !widget.accessibleName().isEmpty();
        if (role == QAccessible::Client && !scrolls && (alone || widget.focusPolicy() == Qt::StrongFocus))
            Add(widget, "nothing in particular");
        if (role == QAccessible::Slider && access.text(QAccessible::Value).isEmpty() &&
            !access.valueInterface())
            Add(widget, "no value");
    }

    /// What is chosen is told as the value; what the list is for, by its label or its name.
    void CheckList(QAccessibleInterface& access, const QComboBox& list) {
        if (access.text(QAccessible::Value) != list.currentText())
            Add(list, "the value is not what is shown");
        const bool labelled = !access.relations(QAccessible::Label).isEmpty();
        const QString name = access.text(QAccessible::Name) + access.text(QAccessible::Description);
        if (!labelled && (list.accessibleName().isEmpty() || !name.contains(list.accessibleName())))
            Add(list, "no label: " + access.text(QAccessible::Name));
    }

    void Add(const QWidget& widget, const QString& what) {
        wrong_.push_back(std::string(widget.metaObject()->className()) + " " +
                         qt::FromQt(widget.objectName() + ": " + what));
    }

    std::vector<std::string> wrong_;
    int seen_ = 0;
};

}  // namespace

std::vector<std::string> WrongInAccessibleTree(QWidget& window) {
    return Walk().Of(window);
}

}  // namespace fabula::test
