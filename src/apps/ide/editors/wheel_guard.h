#pragma once

#include <QObject>

namespace fabula::ide {

/// While it lives, the wheel over a list that is closed, or over a number or a slider that does not have
/// the keyboard, scrolls what they stand in: on the way through a form it must not choose anything.
class WheelGuard final : public QObject {
  public:
    explicit WheelGuard(QObject* parent);

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
};

}  // namespace fabula::ide
