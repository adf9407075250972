#include "ide/dialog_checks.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QGroupBox>
#include <QImage>
#include <QKeySequence>
#include <QLabel>
#include <QPixmap>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <algorithm>
#include <cstdlib>
#include <map>

#include <gtest/gtest.h>

#include "qt/look/theme.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

std::string NameOf(const QWidget& widget) {
    if (!widget.objectName().isEmpty()) return qt::FromQt(widget.objectName());
    return widget.metaObject()->className();
}

bool IsWithinWindow(const QWidget& widget, const QWidget& window) {
    return widget.window() == &window && widget.isVisible();
}

/// Parts of a control, such as the line of a list, leave the keyboard to the whole.
bool TakesTab(const QWidget& widget) {
    if (!widget.isEnabled() || !(widget.focusPolicy() & Qt::TabFocus) || widget.focusProxy()) return false;
    const auto* option = qobject_cast<const QAbstractButton*>(&widget);
    const bool oneOfMany = option && (option->autoExclusive() || option->group());
    return !oneOfMany || option->isChecked();
}

/// The widgets that Tab comes to, from the one that has the keyboard.
std::vector<QWidget*> Walk() {
    constexpr int kMostSteps = 200;
    std::vector<QWidget*> reached;
    for (int step = 0; step < kMostSteps; ++step) {
        QWidget* now = QApplication::focusWidget();
        if (!now || std::ranges::find(reached, now) != reached.end()) break;
        reached.push_back(now);
        QTest::keyClick(now, Qt::Key_Tab);
        QApplication::processEvents();
    }
    return reached;
}

/// The same, beginning with the widget that stands first.
std::vector<QWidget*> WalkFromFirst(QWidget& window) {
    std::vector<QWidget*> reached = Walk();
    // The chain of the window begins behind the window itself.
    for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
        const auto first = std::ranges::find(reached, next);
        if (first == reached.end()) continue;
        std::rotate(reached.begin(), first, reached.end());
        break;
    }
    return reached;
}

QRect PlaceOf(const QWidget& widget, const QWidget& window) {
    return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

QString TextWithMnemonic(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->buddy() ? label->text() : "";
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
    return "";
}

}  // namespace

std::vector<std::string> WidgetsWithoutName(const QWidget& window) {
    std::vector<std::string> nameless;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy()) continue;
        // Menus and the lists of combo boxes are windows of their own, which tell their lines.
        if (widget->window() != &window) continue;
        // A row of tabs has the name of its tab, and can be reached when it has one.
        if (const auto* tabs = qobject_cast<const QTabBar*>(widget); tabs && tabs->count() == 0) continue;
        const QAccessibleInterface* access = QAccessible::queryAccessibleInterface(widget);
        if (access && !access->text(QAccessible::Name).isEmpty()) continue;
        nameless.push_back(std::string(widget->metaObject()->className()) + " " +
                           qt::FromQt(widget->objectName()));
    }
    return nameless;
}

std::vector<std::string> MnemonicsTwice(const QWidget& window) {
    std::map<QString, QStringList> texts;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!IsWithinWindow(*widget, window)) continue;
        const QString text = TextWithMnemonic(*widget);
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty()) texts[key.toString()].append(text);
    }
    std::vector<std::string> twice;
    for (const auto& [key, found] : texts) {
        if (found.size() > 1) twice.push_back(qt::FromQt(key + ": " + found.join(" / ")));
    }
    return twice;
}

std::vector<std::string> TabOrder(QWidget& window) {
    std::vector<std::string> names;
    for (const QWidget* widget : WalkFromFirst(window))
        names.push_back(NameOf(*widget));
    return names;
}

std::vector<std::string> WidgetsThatTabMisses(QWidget& window) {
    const std::vector<QWidget*> reached = Walk();
    std::vector<std::string> missed;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!IsWithinWindow(*widget, window) || !TakesTab(*widget)) continue;
        if (std::ranges::find(reached, widget) == reached.end()) missed.push_back(NameOf(*widget));
    }
    return missed;
}

std::vector<std::string> StepsBack(QWidget& window) {
    const std::vector<QWidget*> order = WalkFromFirst(window);
    std::vector<std::string> back;
    for (std::size_t i = 1; i < order.size(); ++i) {
        const QRect from = PlaceOf(*order[i - 1], window);
        const QRect to = PlaceOf(*order[i], window);
        const bool above = to.bottom() < from.top();
        const bool sameRow = !above && to.top() <= from.bottom();
        const bool left = to.left() < from.left();
        // A column of its own begins at the top again.
        if ((above && to.left() <= from.right()) || (sameRow && left))
            back.push_back(NameOf(*order[i - 1]) + " before " + NameOf(*order[i]));
    }
    return back;
}

int ScrollsSideways(const QWidget& window) {
    int most = 0;
    for (const QScrollArea* area : window.findChildren<QScrollArea*>()) {
        // Pages of a preview have the size that was asked for.
        if (area->objectName() != "pages") most = std::max(most, area->horizontalScrollBar()->maximum());
    }
    return most;
}

namespace {

/// The points of a window on which something is written are more than these.
constexpr int kFewestPoints = 200;

/// How many points stand out from the paper by half of what black does from white, counted until they are
/// more than the fewest.
int OtherThan(const QImage& drawn, const QColor& paper) {
    const int grey = qGray(paper.rgb());
    int count = 0;
    for (int y = 0; y < drawn.height() && count <= kFewestPoints; ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(drawn.constScanLine(y));
        count += static_cast<int>(std::count_if(
            row, row + drawn.width(), [grey](QRgb point) { return std::abs(qGray(point) - grey) > 100; }));
    }
    return count;
}

}  // namespace

void GrabInBothThemes(QWidget& window, const QString& name) {
    const QString folder = qEnvironmentVariable("FABULA_GRABS");
    for (const qt::Theme theme : {qt::Theme::Light, qt::Theme::Dark}) {
        qt::ApplyTheme(theme);
        QApplication::processEvents();
        const QPixmap picture = window.grab();
        // The paper of the window, at its edge, and something written on it.
        const QImage drawn = picture.toImage().convertToFormat(QImage::Format_RGB32);
        const QColor paper = window.palette().color(QPalette::Window);
        EXPECT_EQ(drawn.pixelColor(1, 1), paper) << name.toStdString();
        EXPECT_EQ(paper.lightness() < 128, theme == qt::Theme::Dark) << name.toStdString();
        EXPECT_GT(OtherThan(drawn, paper), kFewestPoints) << name.toStdString();
        if (folder.isEmpty()) continue;
        picture.save(folder + "/" + name + "-" + QString::fromUtf8(qt::NameOf(theme)) + ".png");
    }
    qt::ApplyTheme(qt::Theme::System);
}

}  // namespace fabula::test
