#include "translation/shown_texts.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStyleOption>
#include <QTabBar>
#include <QTableView>
#include <QToolButton>
#include <QTreeWidget>
#include <algorithm>

#include "qt/strings.h"

namespace fabula::test {
namespace {

/// Whether letters stand outside of all brackets.
bool HasPlainWords(QString text) {
    static const QRegularExpression markup("<[^>]*>|&[a-z]+;");
    static const QRegularExpression word("[A-Za-z]{2}");
    text.remove(markup);
    QString outside;
    int depth = 0;
    for (const QChar c : text) {
        if (c == '[') ++depth;
        if (depth == 0) outside += c;
        if (c == ']') --depth;
    }
    return word.match(outside).hasMatch();
}

std::string NameOf(const QWidget& widget) {
    return std::string(widget.metaObject()->className()) + " " + qt::FromQt(widget.objectName());
}

/// The same in every language, or in Qt's: names in capital letters, which are words of games, engines and
/// commands, and the words of standard buttons.
constexpr const char* kNames = "&?[A-Z]+|OK|&?Cancel|&?Close|Scroll (Left|Right)";

class Looker {
  public:
    explicit Looker(std::vector<std::string> names) : names_(std::move(names)) {
        names_.emplace_back(kNames);
    }

    void Look(const std::string& where, const char* what, const QString& text) {
        if (!HasPlainWords(text) || IsName(text)) return;
        const std::string line = where + ": " + what + " '" + qt::FromQt(text) + "'\n";
        if (found_.find(line) == std::string::npos) found_ += line;
    }
    const std::string& Found() const { return found_; }

  private:
    bool IsName(const QString& text) const {
        return std::ranges::any_of(names_, [&](const std::string& pattern) {
            return QRegularExpression(QRegularExpression::anchoredPattern(qt::ToQt(pattern)),
                                      QRegularExpression::DotMatchesEverythingOption)
                .match(text)
                .hasMatch();
        });
    }

    std::vector<std::string> names_;
    std::string found_;
};

void LookAtHeadings(const QHeaderView& header, Looker& looker) {
    if (header.orientation() != Qt::Horizontal || header.model() == nullptr) return;
    for (int section = 0; section < header.count(); ++section)
        looker.Look(NameOf(*header.parentWidget()), "heading",
                    header.model()->headerData(section, Qt::Horizontal).toString());
}

void LookAtWords(const QWidget& widget, Looker& looker) {
    const std::string name = NameOf(widget);
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) looker.Look(name, "text", label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        looker.Look(name, "text", button->text());
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        looker.Look(name, "title", group->title());
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        looker.Look(name, "hint", line->placeholderText());
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget))
        looker.Look(name, "hint", edit->placeholderText());
    if (const auto* menu = qobject_cast<const QMenu*>(&widget)) looker.Look(name, "title", menu->title());
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) LookAtHeadings(*header, looker);
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            looker.Look(name, "tab", tabs->tabText(tab));
    }
    if (const auto* list = qobject_cast<const QComboBox*>(&widget);
        list && !list->isEditable() && !qobject_cast<const QFontComboBox*>(&widget)) {
        for (int line = 0; line < list->count(); ++line)
            looker.Look(name, "line", list->itemText(line));
    }
}

/// Lines of text that can be wrapped need height, all others width.
bool IsCut(const QLabel& label) {
    const bool givesWay =
        label.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored || label.minimumWidth() == 1;
    if (label.text().isEmpty() || givesWay) return false;
    if (label.wordWrap()) return label.heightForWidth(label.width()) > label.height();
    return label.sizeHint().width() > label.width() || label.sizeHint().height() > label.height();
}

bool IsCut(const QAbstractButton& button) {
    if (button.text().isEmpty()) return false;
    const auto* tool = qobject_cast<const QToolButton*>(&button);
    if (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull()) return false;
    // Room for the text itself: what a style puts around it may shrink.
    const QSize text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
    const int beside =
        qobject_cast<const QPushButton*>(&button) || tool ? 0 : button.sizeHint().width() - text.width();
    return text.width() + beside > button.width() || text.height() > button.height();
}

bool IsCut(const QGroupBox& group) {
    return group.fontMetrics().horizontalAdvance(group.title()) > group.width();
}

/// The last heading of some tables takes the room that is left.
bool HasCutHeading(const QHeaderView& header) {
    if (header.orientation() != Qt::Horizontal || header.model() == nullptr) return false;
    for (int section = 0; section < header.count(); ++section) {
        const QString text = header.model()->headerData(section, Qt::Horizontal).toString();
        if (!header.isSectionHidden(section) &&
            header.fontMetrics().horizontalAdvance(text) > header.sectionSize(section))
            return true;
    }
    return false;
}

bool IsCut(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return IsCut(*label);
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return IsCut(*button);
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return IsCut(*group);
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) return HasCutHeading(*header);
    return false;
}

QString TextOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
    return widget.parentWidget() ? widget.parentWidget()->objectName() : QString();
}

}  // namespace

std::string UntranslatedTexts(const QWidget& window, const std::vector<std::string>& names) {
    Looker looker(names);
    QList<const QWidget*> widgets = {&window};
    for (const QWidget* widget : window.findChildren<QWidget*>())
        widgets << widget;
    for (const QWidget* widget : widgets) {
        const std::string name = NameOf(*widget);
        // Parts that Qt makes for itself, such as the arrows of a list of tabs, have names of its own.
        if (widget->objectName().startsWith("qt_")) continue;
        looker.Look(name, "window", widget->windowTitle());
        looker.Look(name, "tip", widget->toolTip());
        looker.Look(name, "spoken", widget->accessibleName());
        looker.Look(name, "described", widget->accessibleDescription());
        LookAtWords(*widget, looker);
        for (const QAction* action : widget->actions()) {
            const std::string command = "command " + qt::FromQt(action->objectName());
            looker.Look(command, "text", action->text());
            looker.Look(command, "tip", action->toolTip());
            looker.Look(command, "status", action->statusTip());
        }
    }
    return looker.Found();
}

std::string CutTexts(const QWidget& window) {
    std::string cut;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->window() != &window || !IsCut(*widget)) continue;
        cut += NameOf(*widget) + ": '" + qt::FromQt(TextOf(*widget)) + "' in " +
               std::to_string(widget->width()) + "x" + std::to_string(widget->height()) + "\n";
    }
    return cut;
}

}  // namespace fabula::test
