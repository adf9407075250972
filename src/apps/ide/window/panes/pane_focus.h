#pragma once

#include <QStyleOptionViewItem>
#include <QWidget>

namespace fabula::ide {

/// Of several panes with a chosen row each, only the one that has the keyboard shows it in full colour.
inline void ShowWhetherFocused(const QWidget& pane, QStyleOptionViewItem& option) {
    if (!pane.hasFocus()) option.state &= ~QStyle::State_Active;
}

}  // namespace fabula::ide
