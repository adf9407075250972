#pragma once

#include <QCoreApplication>
#include <QTabBar>
#include <functional>

namespace fabula::ide {

/// The tabs of what is open, above the rows. It is hidden while there is one tab only. A middle click or
/// the sign on a tab closes it; tabs can be dragged to another place.
class TabStrip final : public QTabBar {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    struct Events {
        std::function<void(int tab)> chosen;
        std::function<void(int tab)> closed;
        std::function<void(int from, int to)> moved;
    };

    explicit TabStrip(Events events, QWidget* parent = nullptr);

    void Show(const QStringList& titles, int current);

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    Events events_;
    bool showing_ = false;
};

}  // namespace fabula::ide
