#pragma once

#include <QCoreApplication>
#include <functional>
#include <string>
#include <vector>

#include "authoring/desk/search/find.h"
#include "qt/find_bar.h"

class QComboBox;

namespace fabula::ide {

/// The line below the grid in which the author types what to look for and chooses where. Its parts are
/// found by the names "FindBox", "ComboBox" and "FindNextButton".
class FindBar final : public qt::FindBar {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    struct Events {
        std::function<void(const std::string& text, std::optional<std::size_t> field)> changed;
        std::function<void()> find;
        std::function<void()> closed;
    };

    explicit FindBar(Events events, QWidget* parent = nullptr);

    /// Offers the fields of the table in view.
    void ShowFields(const authoring::FindBox& box);

  private:
    void Tell();

    Events events_;
    bool filling_ = false;
    QComboBox* fields_;
};

}  // namespace fabula::ide
