#include "ide/screens.h"

#include "authoring/frm_both_messages.h"
#include "authoring/frm_flags.h"
#include "authoring/frm_vel_adv_settings.h"
#include "authoring/frm_vel_cond_act.h"
#include "authoring/frm_vel_location.h"
#include "authoring/frm_vel_objects.h"
#include "authoring/frm_vel_vocabulary.h"
#include "ide/flag_dialog.h"
#include "ide/location_dialog.h"
#include "ide/object_dialog.h"
#include "ide/process_entry_dialog.h"
#include "ide/settings_dialog.h"
#include "ide/text_dialog.h"
#include "ide/word_dialog.h"

namespace fabula::ide {
namespace {

using authoring::Screen;

/// A window of its own, such as the help, stays usable while the dialog is shown.
void Show(QDialog& dialog) {
    dialog.setWindowModality(Qt::WindowModal);
    dialog.exec();
}

template <typename Dialog, typename Logic>
void ShowRecord(authoring::Session& session, authoring::ScreenKey key, QWidget* parent) {
    Logic screen(session, key);
    Dialog dialog(screen, parent);
    Show(dialog);
}

void ShowText(authoring::Session& session, authoring::ScreenKey key, QWidget* parent) {
    authoring::frmBothMessages screen(session, key);
    const authoring::TextEditing editing(session.document.Adventure());
    TextDialog dialog(screen, editing, session.dialogs, parent);
    Show(dialog);
}

void ShowProcessEntry(authoring::Session& session, const authoring::ScreenRequest& request,
                      QWidget* parent) {
    authoring::frmVelCondAct screen(session, request);
    ProcessEntryDialog dialog(screen, parent);
    Show(dialog);
}

void ShowSettings(authoring::Session& session, const SoundTest& sound, QWidget* parent) {
    authoring::frmVelAdvSettings screen(session, sound.devices());
    SettingsDialog dialog(screen, sound.player, parent);
    Show(dialog);
}

}  // namespace

void OpenScreen(const authoring::ScreenRequest& request, authoring::Session& session,
                const SoundTest& sound, QWidget* parent) {
    switch (request.screen) {
        case Screen::Location:
            return ShowRecord<LocationDialog, authoring::frmVelLocation>(session, request.key, parent);
        case Screen::Object:
            return ShowRecord<ObjectDialog, authoring::frmVelObjects>(session, request.key, parent);
        case Screen::Word:
            return ShowRecord<WordDialog, authoring::frmVelVocabulary>(session, request.key, parent);
        case Screen::Flag:
            return ShowRecord<FlagDialog, authoring::frmFlags>(session, request.key, parent);
        case Screen::Text:
            return ShowText(session, request.key, parent);
        case Screen::ProcessEntry:
            return ShowProcessEntry(session, request, parent);
        case Screen::Settings:
            return ShowSettings(session, sound, parent);
    }
}

}  // namespace fabula::ide
