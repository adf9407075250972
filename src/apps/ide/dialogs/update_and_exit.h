#pragma once

#include <string_view>

class QHBoxLayout;
class QPushButton;

namespace fabula::ide {

/// The two buttons that end a dialog, found by the names "update" and "exit". Return presses Update.
struct UpdateAndExit {
    QPushButton* update = nullptr;
    QPushButton* exit = nullptr;
};

/// Adds them at the right end of a row.
UpdateAndExit AddUpdateAndExit(QHBoxLayout& row, std::string_view exitCaption = "Exit");

}  // namespace fabula::ide
