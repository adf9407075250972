#pragma once

#include <QCoreApplication>
#include <functional>

#include "qt/find_bar.h"

class QLabel;

namespace fabula::player {

/// The line below a game in which the player looks for words in its text. Enter goes up, to what was
/// written before.
class FindBar final : public qt::FindBar {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    struct Handlers {
        std::function<bool(const QString& text, bool backwards)> find;  ///< false where there is none
        std::function<void()> closed;
    };
    explicit FindBar(Handlers handlers, QWidget* parent = nullptr);

    void Find(bool backwards);

  private:
    Handlers handlers_;
    QLabel* answer_;
};

}  // namespace fabula::player
