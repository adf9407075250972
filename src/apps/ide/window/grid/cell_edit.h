#pragma once

#include <QLineEdit>
#include <functional>

namespace fabula::ide {

/// A cell of the rows that is typed into, in its place.
class CellEdit final : public QLineEdit {
  public:
    struct Events {
        std::function<void()> stored;     ///< Enter: what was typed is to be stored
        std::function<void()> takenBack;  ///< Esc
    };

    CellEdit(const QString& text, Events events);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    Events events_;
};

}  // namespace fabula::ide
