#pragma once

#include <QRadioButton>

namespace fabula::ide {

/// Lets Tab come to an option only when it is the chosen one of its group; arrow keys go on from there. Qt
/// does so itself once the keyboard has been in the group, but not before.
inline void TabToChosen(QRadioButton& option) {
    option.setFocusPolicy(option.isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

}  // namespace fabula::ide
