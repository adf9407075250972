#pragma once

#include <QCoreApplication>
#include <QWidget>

#include "authoring/settings/settings_screen.h"
#include "engine/sound_player.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;

namespace fabula::ide {

/// The settings' page of the sound.
class SettingsSoundPage final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `player` plays the note of Test Voice.
    SettingsSoundPage(authoring::SettingsScreen& screen, engine::SoundPlayer& player);

    /// Writes the controls into the screen.
    void Read();

  private:
    using Value = int authoring::SettingsScreen::*;

    void AddSlider(QFormLayout& form, const QString& label, const char* name, Value value);
    QWidget* NewTest();
    void ShowSwitch();
    void TestVoice();

    authoring::SettingsScreen& screen_;
    engine::SoundPlayer& player_;
    QCheckBox* on_;
    QComboBox* device_;
    QComboBox* channel_;
    QComboBox* voice_;
    QLabel* heard_;
};

}  // namespace fabula::ide
