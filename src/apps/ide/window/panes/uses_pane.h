#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <functional>
#include <vector>

#include "authoring/desk/search/navigator.h"

class QLabel;
class QListWidget;

namespace fabula::ide {

/// The pane below the rows that lists what uses the selected record. Enter or a double click on a line goes
/// there. Its parts are found by the names "UsesTitle" and "UsesList".
class UsesPane final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit UsesPane(std::function<void(const authoring::Jump& jump)> chosen, QWidget* parent = nullptr);

    void Show(const std::string& title, std::vector<authoring::JumpLine> lines);
    /// Gives the list the keyboard.
    void Focus();

  private:
    std::function<void(const authoring::Jump& jump)> chosen_;
    std::vector<authoring::JumpLine> lines_;
    QLabel* title_;
    QListWidget* list_;
};

}  // namespace fabula::ide
