#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QWidget>

namespace fabula::player {

/// Shows one picture, as large as its place allows but at most kLargestFactor times its size, with its
/// shape kept.
class PicturePane final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit PicturePane(QWidget* parent = nullptr);

    void Show(const QImage& image);
    const QImage& Shown() const { return image_; }

    /// Where the picture stands in the pane, in pixels of the display.
    QRect Place() const;

    /// The height that suits the picture in a column that it shares with the text: two fifths of it, or up
    /// to three fifths where that gives every pixel of the picture the same size.
    int HeightIn(QSize column) const;

    static constexpr int kLargestFactor = 4;

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const QImage& Scaled(QSize size);

    QImage image_;
    QImage scaled_;  ///< as it was drawn last
};

}  // namespace fabula::player
