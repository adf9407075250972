#include "ide/drawing/character_grid.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "qt/picture_access.h"

namespace fabula::ide {
namespace {

constexpr int kSquares = pictures::kGlyphSide;
constexpr int kUsualSide = 36;
constexpr int kSmallestSide = 14;

}  // namespace

CharacterGrid::CharacterGrid(authoring::CharacterEditor& editor, QColor ink, QColor paper, QWidget* parent)
    : QWidget(parent), editor_(editor), ink_(ink), paper_(paper) {
    qt::ActAsPicture(*this);
    setObjectName("Squares");
    setAccessibleName(tr("Squares of the character"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Show();
}

QSize CharacterGrid::sizeHint() const {
    return QSize(kSquares, kSquares) * kUsualSide;
}

QSize CharacterGrid::minimumSizeHint() const {
    return QSize(kSquares, kSquares) * kSmallestSide;
}

int CharacterGrid::Side() const {
    return std::max(1, std::min(width(), height()) / kSquares);
}

QPoint CharacterGrid::PlaceOf(int square) const {
    return QPoint(square % kSquares, square / kSquares) * Side() + QPoint(Side(), Side()) / 2;
}

int CharacterGrid::SquareAt(QPoint place) const {
    const int column = place.x() / Side();
    const int row = place.y() / Side();
    const bool inside = place.x() >= 0 && place.y() >= 0 && column < kSquares && row < kSquares;
    return inside ? row * kSquares + column : -1;
}

/// Readers of the screen are told the square that the keyboard is on.
void CharacterGrid::Show() {
    const int square = editor_.Current();
    const QString told = tr("Row %1, column %2, %3")
                             .arg(square / kSquares + 1)
                             .arg(square % kSquares + 1)
                             .arg(editor_.Square(square) ? tr("ink") : tr("paper"));
    qt::TellAsDescription(*this, told);
    update();
}

void CharacterGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int side = Side();
    for (int square = 0; square < kSquares * kSquares; ++square) {
        const QRect place(QPoint(square % kSquares, square / kSquares) * side, QSize(side, side));
        painter.fillRect(place, Qt::gray);
        painter.fillRect(place.adjusted(0, 0, -1, -1), editor_.Square(square) ? ink_ : paper_);
        if (square != editor_.Current() || !hasFocus()) continue;
        for (const auto& [colour, inset] : {std::pair(Qt::white, 1), std::pair(Qt::black, 2)}) {
            painter.setPen(colour);
            painter.drawRect(place.adjusted(inset, inset, -inset - 2, -inset - 2));
        }
    }
}

void CharacterGrid::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            editor_.MoveCurrent(-1, 0);
            break;
        case Qt::Key_Right:
            editor_.MoveCurrent(1, 0);
            break;
        case Qt::Key_Up:
            editor_.MoveCurrent(0, -1);
            break;
        case Qt::Key_Down:
            editor_.MoveCurrent(0, 1);
            break;
        case Qt::Key_Space:
            editor_.ToggleCurrent();
            break;
        default:
            return QWidget::keyPressEvent(event);
    }
    changed();
}

void CharacterGrid::mousePressEvent(QMouseEvent* event) {
    const int square = SquareAt(event->position().toPoint());
    if (square < 0 || event->button() != Qt::LeftButton) return;
    editor_.Click(square);
    painted_ = square;
    painting_ = editor_.Square(square);
    changed();
}

/// With the button held, every square that is come to gets what the first one got.
void CharacterGrid::mouseMoveEvent(QMouseEvent* event) {
    const int square = SquareAt(event->position().toPoint());
    if (square < 0 || square == painted_ || !event->buttons().testFlag(Qt::LeftButton)) return;
    painted_ = square;
    if (editor_.Square(square) != painting_) editor_.Click(square);
    changed();
}

}  // namespace fabula::ide
