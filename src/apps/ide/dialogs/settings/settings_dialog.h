#pragma once

#include <QCoreApplication>

#include "authoring/settings/settings_screen.h"
#include "engine/sound_player.h"
#include "ide/dialogs/screen_dialog.h"

class QComboBox;
class QTabWidget;

namespace fabula::ide {

class SettingsGamePage;
class SettingsSoundPage;

/// The dialog of the settings, in three pages.
class SettingsDialog final : public ScreenDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    /// `sound` plays the note of Test Voice.
    SettingsDialog(authoring::SettingsScreen& screen, engine::SoundPlayer& sound,
                   QWidget* parent = nullptr);

    QSize sizeHint() const override;

  protected:
    void Read() override;
    /// The pages show what the screen changes when they ask for it.
    void Show() override {}
    bool Update() override { return screen_.Update(); }

  private:
    void AddPage(QWidget* page, const QString& name);
    QWidget* NewSourcePage();
    void CheckFields();

    authoring::SettingsScreen& screen_;
    QTabWidget* pages_;
    SettingsGamePage* game_;
    SettingsSoundPage* soundPage_;
    QComboBox* source_;
};

}  // namespace fabula::ide
