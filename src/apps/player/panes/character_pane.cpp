#include "player/panes/character_pane.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "player/panes/flash_time.h"
#include "qt/colours.h"
#include "qt/strings.h"

namespace fabula::player {

namespace {

constexpr int kSize = CharacterScreen::kCharacterSize;
/// The pane is scaled so that this many rows are in sight, when it is wide enough.
constexpr int kWantedRows = 16;

QRgb ToRgb(int number) {
    return qt::ToQt(text::ColourRGB(number)).rgb();
}

}  // namespace

CharacterPane::CharacterPane(platform::Timers& timers, PaneHandlers handlers, QWidget* parent)
    : QAbstractScrollArea(parent),
      handlers_(std::move(handlers)),
      flash_(timers, [this] { ToggleFlash(); }) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Game screen"));
    setAccessibleDescription(
        tr("The screen of a game that draws its own letters. The View menu shows it as plain text."));
}

void CharacterPane::StartGame(CharacterScreen screen) {
    screen_ = std::move(screen);
    flash_.Stop();
    flashOn_ = false;
    ShowChanges();
}

void CharacterPane::SetZoomSteps(int steps) {
    zoomSteps_ = steps;
    ShowChanges();
}

void CharacterPane::SetFlashing(bool allowed) {
    flashAllowed_ = allowed;
    flashOn_ = false;
    flash_.Stop();
    ShowChanges();
}

QSize CharacterPane::sizeHint() const {
    return {CharacterScreen::kWidth * 2, kWantedRows * kSize * 2};
}

int CharacterPane::Factor() const {
    const double ratio = devicePixelRatioF();
    const int byWidth = static_cast<int>(viewport()->width() * ratio) / CharacterScreen::kWidth;
    const int byHeight = static_cast<int>(viewport()->height() * ratio) / (kWantedRows * kSize);
    // Fewer rows in sight are better than letters that can't be read.
    const int fitting = std::max(std::min(byWidth, byHeight), std::min(byWidth, kLeastFactor));
    return std::clamp(fitting + zoomSteps_, 1, std::max(1, byWidth));
}

int CharacterPane::VisibleRows() const {
    return std::max(1, static_cast<int>(viewport()->height() * devicePixelRatioF()) / (kSize * Factor()));
}

std::size_t CharacterPane::FirstRow() const {
    return static_cast<std::size_t>(verticalScrollBar()->value());
}

void CharacterPane::FitScrollBar() {
    // A cleared screen begins at the top of the pane, with the rows before it above the edge.
    const int rows = static_cast<int>(screen_.Rows().size());
    const int last = std::max(rows - VisibleRows(), static_cast<int>(screen_.ScreenTop()));
    verticalScrollBar()->setRange(0, std::max(0, last));
    verticalScrollBar()->setPageStep(std::max(1, VisibleRows() - 1));
}

void CharacterPane::ShowChanges() {
    FitScrollBar();
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    StartFlash();
    viewport()->update();
}

bool CharacterPane::VisibleFlash() const {
    const auto& rows = screen_.Rows();
    const std::size_t first = std::min(FirstRow(), rows.size());
    return std::any_of(rows.begin() + static_cast<std::ptrdiff_t>(first), rows.end(), [](const auto& row) {
        return std::any_of(row.begin(), row.end(), [](const auto& cell) { return cell.flash; });
    });
}

void CharacterPane::StartFlash() {
    if (flashAllowed_ && !flash_.IsRunning() && VisibleFlash()) flash_.Start(kFlashTime);
}

void CharacterPane::ToggleFlash() {
    flashOn_ = !flashOn_ && flashAllowed_;
    viewport()->update();
    StartFlash();
}

QImage CharacterPane::Render(std::size_t first, int rows) const {
    QImage image(CharacterScreen::kWidth, rows * kSize, QImage::Format_RGB32);
    image.fill(ToRgb(screen_.Paper()));
    for (int row = 0; row < rows && first + row < screen_.Rows().size(); ++row) {
        const CharacterScreen::Row& cells = screen_.Rows()[first + row];
        for (int y = 0; y < kSize; ++y) {
            auto* pixel = reinterpret_cast<QRgb*>(image.scanLine(row * kSize + y));
            for (const CharacterScreen::Cell& cell : cells) {
                const bool swap = cell.flash && flashOn_;
                const QRgb ink = ToRgb(swap ? cell.paper : cell.ink);
                const QRgb paper = ToRgb(swap ? cell.ink : cell.paper);
                for (int x = 0; x < kSize; ++x)
                    *pixel++ = pictures::HasBit(cell.glyph, x, y) ? ink : paper;
            }
        }
    }
    return image;
}

void CharacterPane::DrawCaret(QPainter& painter, QPoint origin) const {
    const auto caret = screen_.Caret();
    if (!caret || !hasFocus()) return;
    const int size = kSize * Factor();
    const int column = std::min(caret->column, CharacterScreen::kColumns - 1);
    const int row = static_cast<int>(caret->row) - static_cast<int>(FirstRow());
    painter.fillRect(origin.x() + column * size, origin.y() + (row + 1) * size - Factor(), size, Factor(),
                     QColor(ToRgb(screen_.Ink())));
}

void CharacterPane::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), QColor(ToRgb(screen_.Paper())));
    const double ratio = devicePixelRatioF();
    const QImage image = Render(FirstRow(), VisibleRows());
    const QSize drawn = image.size() * Factor();
    const QSize room = (QSizeF(viewport()->size()) * ratio).toSize();
    const QPoint origin(std::max(0, (room.width() - drawn.width()) / 2),
                        std::max(0, (room.height() - drawn.height()) / 2));
    painter.scale(1 / ratio, 1 / ratio);
    painter.drawImage(QRect(origin, drawn), image);
    DrawCaret(painter, origin);
}

void CharacterPane::resizeEvent(QResizeEvent*) {
    ShowChanges();
}

void CharacterPane::wheelEvent(QWheelEvent* event) {
    // With Ctrl the window zooms.
    if ((event->modifiers() & Qt::ControlModifier) != 0) return event->ignore();
    QAbstractScrollArea::wheelEvent(event);
}

void CharacterPane::keyPressEvent(QKeyEvent* event) {
    const PaneKey key = MeaningOf(*event);
    switch (key) {
        case PaneKey::Text:
            return handlers_.type(qt::FromQt(event->text()));
        case PaneKey::Enter:
        case PaneKey::Backspace:
        case PaneKey::EraseLine:
        case PaneKey::Older:
        case PaneKey::Newer:
            return handlers_.press(key);
        case PaneKey::Copy:
            return Copy();
        case PaneKey::Paste:
            return Paste();
        case PaneKey::Move:
            switch (event->key()) {
                case Qt::Key_PageUp:
                    return verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
                case Qt::Key_PageDown:
                    return verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
                case Qt::Key_Home:
                    return verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
                case Qt::Key_End:
                    return verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
                default:
                    return event->ignore();
            }
        case PaneKey::SelectAll:
        case PaneKey::Other:
            return event->ignore();
    }
}

void CharacterPane::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->commitString().isEmpty()) handlers_.type(qt::FromQt(event->commitString()));
}

void CharacterPane::Copy() {
    QApplication::clipboard()->setText(qt::ToQt(screen_.Text(screen_.ScreenTop())));
}

void CharacterPane::Paste() {
    const QString pasted = QApplication::clipboard()->text().section('\n', 0, 0).simplified();
    if (!pasted.isEmpty()) handlers_.type(qt::FromQt(pasted));
}

}  // namespace fabula::player
