#include "ide/dialogs/screens.h"

#include "authoring/screens/flag_screen.h"
#include "authoring/screens/location_screen.h"
#include "authoring/screens/message_screen.h"
#include "authoring/screens/object_screen.h"
#include "authoring/screens/process_entry_screen.h"
#include "authoring/screens/word_screen.h"
#include "authoring/settings/settings_screen.h"
#include "ide/dialogs/flag_dialog.h"
#include "ide/dialogs/location_dialog.h"
#include "ide/dialogs/message_dialog.h"
#include "ide/dialogs/object_dialog.h"
#include "ide/dialogs/process_entry_dialog.h"
#include "ide/dialogs/settings_dialog.h"
#include "ide/dialogs/word_dialog.h"

namespace fabula::ide {
namespace {

using authoring::Screen;

/// A window of its own, such as the help, stays usable while the dialog is shown.
void Show(QDialog& dialog) {
    dialog.setWindowModality(Qt::WindowModal);
    dialog.exec();
}

template <typename Dialog, typename Logic>
void ShowRecord(authoring::ScreenContext& context, authoring::ScreenKey key, QWidget* parent) {
    Logic screen(context, key);
    Dialog dialog(screen, parent);
    Show(dialog);
}

void ShowText(authoring::ScreenContext& context, authoring::ScreenKey key, QWidget* parent) {
    authoring::MessageScreen screen(context, key);
    const authoring::TextEditing editing(context.document.Adventure());
    MessageDialog dialog(screen, editing, context.dialogs, parent);
    Show(dialog);
}

void ShowProcessEntry(authoring::ScreenContext& context, const authoring::ScreenRequest& request,
                      QWidget* parent) {
    authoring::ProcessEntryScreen screen(context, request);
    ProcessEntryDialog dialog(screen, parent);
    Show(dialog);
}

void ShowSettings(authoring::ScreenContext& context, const SoundTest& sound, QWidget* parent) {
    authoring::SettingsScreen screen(context, sound.devices());
    SettingsDialog dialog(screen, sound.player, parent);
    Show(dialog);
}

}  // namespace

void OpenScreen(const authoring::ScreenRequest& request, authoring::ScreenContext& context,
                const SoundTest& sound, QWidget* parent) {
    switch (request.screen) {
        case Screen::Location:
            return ShowRecord<LocationDialog, authoring::LocationScreen>(context, request.key, parent);
        case Screen::Object:
            return ShowRecord<ObjectDialog, authoring::ObjectScreen>(context, request.key, parent);
        case Screen::Word:
            return ShowRecord<WordDialog, authoring::WordScreen>(context, request.key, parent);
        case Screen::Flag:
            return ShowRecord<FlagDialog, authoring::FlagScreen>(context, request.key, parent);
        case Screen::Text:
            return ShowText(context, request.key, parent);
        case Screen::ProcessEntry:
            return ShowProcessEntry(context, request, parent);
        case Screen::Settings:
            return ShowSettings(context, sound, parent);
        case Screen::Picture:
        case Screen::Character:
            return;
    }
}

}  // namespace fabula::ide
