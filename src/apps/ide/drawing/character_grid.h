#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QWidget>
#include <functional>

#include "authoring/drawing/character_editor.h"

namespace fabula::ide {

/// The 8 by 8 squares of a character. The mouse and Space toggle one, the arrow keys go from one to
/// another.
class CharacterGrid final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `editor` outlives it.
    CharacterGrid(authoring::CharacterEditor& editor, QColor ink, QColor paper, QWidget* parent = nullptr);

    std::function<void()> changed = [] {};

    void Show();
    /// The middle of a square.
    QPoint PlaceOf(int square) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    int Side() const;
    int SquareAt(QPoint place) const;

    authoring::CharacterEditor& editor_;
    QColor ink_;
    QColor paper_;
    int painted_ = -1;       ///< the square that the pointer painted last
    bool painting_ = false;  ///< whether it sets squares or clears them
};

}  // namespace fabula::ide
