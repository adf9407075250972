#pragma once

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QImage>

#include "platform/timers.h"
#include "player/panes/character_screen.h"
#include "player/panes/pane_keys.h"

namespace fabula::player {

/// A CharacterScreen on the screen: 256 pixels wide, each pixel a square of whole pixels of the display, as
/// large as the pane allows. What is typed goes to the handlers.
class CharacterPane final : public QAbstractScrollArea {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    CharacterPane(platform::Timers& timers, PaneHandlers handlers, QWidget* parent = nullptr);

    void StartGame(CharacterScreen screen);
    CharacterScreen& Screen() { return screen_; }

    /// Steps to the factor that the pane's width gives: -1 is one size smaller.
    void SetZoomSteps(int steps);
    void SetFlashing(bool allowed);

    /// Shows what has changed since the last call, the newest row in sight.
    void ShowChanges();

    /// Pixels of the display to one pixel of a character: at least kLeastFactor where the pane is wide
    /// enough, unless the player wants less.
    int Factor() const;
    static constexpr int kLeastFactor = 2;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    QSize sizeHint() const override;

  private:
    void ToggleFlash();
    void StartFlash();
    bool VisibleFlash() const;
    void FitScrollBar();
    int VisibleRows() const;
    std::size_t FirstRow() const;
    void DrawCaret(QPainter& painter, QPoint origin) const;
    QImage Render(std::size_t first, int rows) const;
    void Copy();
    void Paste();

    PaneHandlers handlers_;
    platform::Alarm flash_;
    CharacterScreen screen_;
    int zoomSteps_ = 0;
    bool flashAllowed_ = true;
    bool flashOn_ = false;
};

}  // namespace fabula::player
