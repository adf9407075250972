#pragma once

#include <QLabel>

namespace fabula::qt {

/// A label of several lines that is never cut: however narrow it gets, its window keeps the height for it.
class WrappedLabel final : public QLabel {
  public:
    explicit WrappedLabel(const QString& text, QWidget* parent = nullptr) : QLabel(text, parent) {
        setWordWrap(true);
    }

    /// Of a label that is shown, since it has no width of its own before.
    QSize minimumSizeHint() const override {
        const QSize least = QLabel::minimumSizeHint();
        return isVisible() ? QSize(least.width(), heightForWidth(width())) : least;
    }

  protected:
    void resizeEvent(QResizeEvent* event) override {
        QLabel::resizeEvent(event);
        updateGeometry();
    }
};

}  // namespace fabula::qt
