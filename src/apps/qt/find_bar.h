#pragma once

#include <QWidget>
#include <functional>

class QHBoxLayout;
class QLineEdit;

namespace fabula::qt {

/// A line below a text or a table in which a person types what to look for. Escape closes it. Windows add
/// to its row what else they ask and offer.
class FindBar : public QWidget {
  public:
    /// Shows the line with the keyboard in its field.
    void Ask();

  protected:
    /// `closed` is called by Close, and by Escape.
    FindBar(std::function<void()> closed, QWidget* parent);

    QLineEdit& Wanted() { return *wanted_; }
    QHBoxLayout& Row() { return *row_; }
    void Close() { closed_(); }

    void keyPressEvent(QKeyEvent* event) override;

  private:
    std::function<void()> closed_;
    QLineEdit* wanted_;
    QHBoxLayout* row_;
};

}  // namespace fabula::qt
