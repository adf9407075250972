#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace fabula::ide {

/// Tells when the focus has left a control for another one in the same window, but for "update", which
/// checks everything again, and "exit", which drops everything. It belongs to the control.
class LeaveCheck final : public QObject {
  public:
    LeaveCheck(QWidget& control, std::function<void()> left);

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    void LookWhereItWent();

    QWidget& control_;
    std::function<void()> left_;
};

}  // namespace fabula::ide
