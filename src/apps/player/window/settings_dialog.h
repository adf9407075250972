#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <string>
#include <vector>

#include "platform/timers.h"
#include "player/window/player_settings.h"

class QCheckBox;
class QComboBox;
class QFontComboBox;
class QSlider;
class QSpinBox;

namespace fabula::player {

class TextPane;

/// How the player wants games to look and to sound, with a sample that shows each change at once. Nothing
/// is changed but by OK.
class SettingsDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    SettingsDialog(const PlayerSettings& settings, const std::vector<std::string>& soundDevices,
                   platform::Timers& timers, QWidget* parent);

    /// The settings with what was chosen.
    PlayerSettings Chosen() const;

  private:
    QWidget* MakeText();
    QWidget* MakeColours();
    QWidget* MakeSound(const std::vector<std::string>& devices);
    QSpinBox* MakeNumber(const char* name, int least, int most, int value, const QString& zero);
    void ShowSample();

    PlayerSettings settings_;
    QCheckBox* ownFont_;
    QFontComboBox* font_;
    QSpinBox* size_;
    QSpinBox* width_;
    QSpinBox* lines_;
    QComboBox* theme_;
    QComboBox* colours_;
    QComboBox* device_;
    QSlider* volume_;
    TextPane* sample_;
};

}  // namespace fabula::player
