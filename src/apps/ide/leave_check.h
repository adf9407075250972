#pragma once

#include <QObject>
#include <functional>
#include <vector>

class QWidget;

namespace fabula::ide {

/// Tells when the focus has left a control for another one in the same window. It belongs to the control.
class LeaveCheck final : public QObject {
  public:
    /// `unchecked` are controls to which the focus may go without a word, such as the button that checks
    /// everything again and the one that drops everything. They live as long as the control.
    LeaveCheck(QWidget& control, std::vector<const QWidget*> unchecked, std::function<void()> left);

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    void LookWhereItWent();

    QWidget& control_;
    std::vector<const QWidget*> unchecked_;
    std::function<void()> left_;
};

}  // namespace fabula::ide
