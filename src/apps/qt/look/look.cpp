#include "qt/look/look.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QProxyStyle>
#include <QStyleOption>
#include <algorithm>

#include "qt/look/icons.h"
#include "qt/look/look_shapes.h"

namespace fabula::qt {
namespace {

constexpr QSize kRoomInButtons(12, 6);
constexpr QSize kRoomInFields(8, 6);
constexpr int kSideOfFields = 4;
constexpr int kRoomInCells = 6;  ///< on the left and on the right
constexpr int kShortestSlider = 24;
constexpr int kFrame = 2;  ///< of what scrolls: room for the line of what has the keyboard

bool IsDefault(const QStyleOptionButton& button) {
    return (button.features & QStyleOptionButton::DefaultButton) && (button.state & QStyle::State_Enabled);
}

/// What an area that scrolls has behind its inside.
QColor FillOf(const QStyleOption& frame, const QWidget* widget) {
    const auto* area = qobject_cast<const QAbstractScrollArea*>(widget);
    return area ? frame.palette.color(area->viewport()->backgroundRole()) : QColor(Qt::transparent);
}

/// Draws over the style that every platform has.
class Look final : public QProxyStyle {
  public:
    Look() : QProxyStyle("fusion") {}

    using QProxyStyle::polish;
    void polish(QWidget* widget) override {
        if (qobject_cast<QAbstractScrollArea*>(widget)) widget->installEventFilter(this);
        QProxyStyle::polish(widget);
    }

    /// Areas that scroll paint only their inside anew when the keyboard comes and goes, and not the frame.
    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            static_cast<QWidget*>(receiver)->update();
        return false;
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        switch (element) {
            case PE_IndicatorCheckBox:
            case PE_IndicatorItemViewItemCheck:
                return DrawTick(*painter, *option);
            case PE_IndicatorRadioButton:
                return DrawDot(*painter, *option);
            case PE_PanelButtonCommand:
                if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
                    return DrawButton(*painter, *button, IsDefault(*button));
                break;
            case PE_PanelLineEdit:
                if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
                    frame && frame->lineWidth > 0)
                    return DrawField(*painter, *frame);
                break;
            case PE_FrameLineEdit:
                return;  // drawn with its field
            case PE_Frame:
                return DrawFrame(*painter, *option, FillOf(*option, widget));
            default:
                break;
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        if (element == CE_PushButtonLabel) {
            const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
            if (button && IsDefault(*button)) {
                QStyleOptionButton bright = *button;
                bright.palette.setColor(QPalette::ButtonText,
                                        button->palette.color(QPalette::HighlightedText));
                return QProxyStyle::drawControl(element, &bright, painter, widget);
            }
        }
        if (element == CE_HeaderSection) return DrawHeader(*painter, *option);
        if (element == CE_ToolBar) return DrawBar(*painter, *option);
        if (element == CE_MenuBarItem || element == CE_MenuBarEmptyArea) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return DrawLineBelow(*painter, *option);
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        if (control == CC_ComboBox) {
            if (const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option))
                return DrawList(*painter, *list, subControlRect(control, option, SC_ComboBoxArrow, widget));
        }
        if (control == CC_ScrollBar) {
            return DrawScrollBar(*painter, *option,
                                 subControlRect(control, option, SC_ScrollBarSlider, widget));
        }
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    /// Scroll bars have no arrows: a slider in a groove.
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override {
        const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (control != CC_ScrollBar || !bar)
            return QProxyStyle::subControlRect(control, option, part, widget);
        const bool across = bar->orientation == Qt::Horizontal;
        const int length = across ? bar->rect.width() : bar->rect.height();
        const qint64 steps = qint64{bar->maximum} - bar->minimum;
        int slider = length;
        if (steps > 0) {
            const qint64 share = qint64{length} * bar->pageStep / (steps + bar->pageStep);
            slider = static_cast<int>(std::clamp<qint64>(share, std::min(kShortestSlider, length), length));
        }
        const int at = sliderPositionFromValue(bar->minimum, bar->maximum, bar->sliderPosition,
                                               length - slider, bar->upsideDown);
        const auto piece = [&](int from, int to) {
            const QRect along = across ? QRect(from, 0, to - from, bar->rect.height())
                                       : QRect(0, from, bar->rect.width(), to - from);
            return visualRect(bar->direction, bar->rect, along.translated(bar->rect.topLeft()));
        };
        switch (part) {
            case SC_ScrollBarGroove:
                return piece(0, length);
            case SC_ScrollBarSlider:
                return piece(at, at + slider);
            case SC_ScrollBarSubPage:
                return piece(0, at);
            case SC_ScrollBarAddPage:
                return piece(at + slider, length);
            default:
                return {};
        }
    }

    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override {
        const QRect usual = QProxyStyle::subElementRect(element, option, widget);
        return element == SE_LineEditContents ? usual.adjusted(kSideOfFields, 0, -kSideOfFields, 0) : usual;
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        switch (metric) {
            case PM_IndicatorWidth:
            case PM_IndicatorHeight:
            case PM_ExclusiveIndicatorWidth:
            case PM_ExclusiveIndicatorHeight:
                return std::max(usual, widget ? widget->fontMetrics().height() : 0);
            case PM_DefaultFrameWidth:
                return qobject_cast<const QAbstractScrollArea*>(widget) && !widget->isWindow() ? kFrame
                                                                                               : usual;
            case PM_HeaderMargin:
                return kRoomInCells + 1;
            case PM_FocusFrameHMargin:  // of cells and of the lines of lists and trees
                return kRoomInCells;
            default:
                return usual;
        }
    }

    /// Buttons of boxes say what they do in words.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, more);
    }

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override {
        switch (icon) {
            case SP_MessageBoxInformation:
                return IconOf("info");
            case SP_MessageBoxQuestion:
                return IconOf("help");
            case SP_MessageBoxWarning:
            case SP_MessageBoxCritical:
                return IconOf("warning");
            default:
                return QProxyStyle::standardIcon(icon, option, widget);
        }
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        const QSize usual = QProxyStyle::sizeFromContents(type, option, contents, widget);
        switch (type) {
            case CT_PushButton:
                return usual + kRoomInButtons;
            case CT_LineEdit:
            case CT_ComboBox:
                return usual + kRoomInFields;
            default:
                return usual;
        }
    }
};

}  // namespace

void UseLook() {
    if (QApplication::style()->name() == "fusion") QApplication::setStyle(new Look);
}

}  // namespace fabula::qt
