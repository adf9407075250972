#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "authoring/drawing/picture_editor.h"

namespace fabula::ide {

/// An image that lies under the picture, to be traced.
struct Tracing {
    QImage image;
    int strength = 50;  ///< in hundredths: how much of it shows through the paper
    QRect place;        ///< in pixels of the picture from its top left
};

/// The picture that is being drawn, enlarged by a whole number as far as there is room. What guides the
/// author lies above it: the guide line, the key cursor, the grid, and the pixels that a command changed.
class PictureCanvas final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `editor` outlives it.
    explicit PictureCanvas(authoring::PictureEditor& editor, QWidget* parent = nullptr);

    std::function<void(pictures::Point)> pressed = [](pictures::Point) {};
    std::function<void(pictures::Point)> dragged = [](pictures::Point) {};
    /// The pixel under the pointer; nullopt when it has left.
    std::function<void(std::optional<pictures::Point>)> pointedAt = [](auto) {};
    std::function<void(authoring::DrawingKey key, bool shift)> keyPressed = [](auto, bool) {};

    /// Shows the planes as they are now, and tells readers of the screen the status.
    void Show();
    /// Marks pixels, in rows from the top; none when it is empty.
    void Mark(std::vector<bool> pixels);
    void SetTracing(std::optional<Tracing> tracing);

    /// How many points of the screen a pixel is wide.
    int Scale() const;
    /// The middle of a pixel, and the pixel of a place, in the coordinates of the drawing language.
    QPoint PlaceOf(pictures::Point point) const;
    std::optional<pictures::Point> PointAt(QPoint place) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    QPoint TopLeft() const;
    void PaintTracing(QPainter& painter, const QRect& picture);
    void PaintGuides(QPainter& painter);
    void PaintMarks(QPainter& painter);

    authoring::PictureEditor& editor_;
    QImage image_;
    QImage grid_;
    std::vector<bool> marked_;
    std::optional<Tracing> tracing_;
};

/// The key of the drawing editor that a key of the keyboard is; nullopt for others.
std::optional<authoring::DrawingKey> DrawingKeyOf(int key);

}  // namespace fabula::ide
