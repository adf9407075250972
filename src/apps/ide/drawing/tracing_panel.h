#pragma once

#include <QCoreApplication>
#include <QGroupBox>
#include <functional>
#include <optional>

#include "authoring/drawing/tracing_image.h"
#include "ide/drawing/picture_canvas.h"
#include "platform/dialogs.h"

class QPushButton;
class QSlider;
class QSpinBox;

namespace fabula::ide {

/// What lies under the picture to be traced: its file, how strongly it shows, its place and its width. Kept
/// in the author's settings at each change.
class TracingPanel final : public QGroupBox {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `settings` and `dialogs` outlive it.
    TracingPanel(platform::Settings& settings, std::filesystem::path adventure, int picture,
                 platform::Dialogs& dialogs, QWidget* parent = nullptr);

    std::function<void(std::optional<Tracing>)> changed = [](const std::optional<Tracing>&) {};

    /// Shows the one that is remembered. A file that has gone is passed over.
    void Begin();

  private:
    void Choose();
    bool Load(const std::filesystem::path& file);
    void Remove();
    void ReadControls();
    void ShowControls();
    void Tell();

    platform::Settings& settings_;
    std::filesystem::path adventure_;
    int picture_;
    platform::Dialogs& dialogs_;
    std::optional<authoring::TracingImage> tracing_;
    QImage image_;
    QSlider* strength_;
    QSpinBox* left_;
    QSpinBox* top_;
    QSpinBox* width_;
    QPushButton* remove_;
    bool showing_ = false;
};

}  // namespace fabula::ide
