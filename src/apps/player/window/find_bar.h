#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <functional>

class QLabel;
class QLineEdit;

namespace fabula::player {

/// The line below a game in which the player looks for words in its text. Enter goes up, to what was
/// written before; Escape closes it.
class FindBar final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    struct Handlers {
        std::function<bool(const QString& text, bool backwards)> find;  ///< false where there is none
        std::function<void()> closed;
    };
    explicit FindBar(Handlers handlers, QWidget* parent = nullptr);

    /// Shows the line and gives it the keyboard.
    void Open();
    void Find(bool backwards);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Close();

    Handlers handlers_;
    QLineEdit* wanted_;
    QLabel* answer_;
};

}  // namespace fabula::player
