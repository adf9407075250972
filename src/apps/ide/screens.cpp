#include "ide/screens.h"

#include "authoring/frm_both_messages.h"
#include "authoring/frm_flags.h"
#include "authoring/frm_vel_cond_act.h"
#include "authoring/frm_vel_location.h"
#include "authoring/frm_vel_objects.h"
#include "authoring/frm_vel_vocabulary.h"
#include "ide/flag_dialog.h"
#include "ide/location_dialog.h"
#include "ide/object_dialog.h"
#include "ide/process_entry_dialog.h"
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

}  // namespace

bool OpenScreen(const authoring::ScreenRequest& request, authoring::Session& session, QWidget* parent) {
    switch (request.screen) {
        case Screen::Location:
            ShowRecord<LocationDialog, authoring::frmVelLocation>(session, request.key, parent);
            return true;
        case Screen::Object:
            ShowRecord<ObjectDialog, authoring::frmVelObjects>(session, request.key, parent);
            return true;
        case Screen::Word:
            ShowRecord<WordDialog, authoring::frmVelVocabulary>(session, request.key, parent);
            return true;
        case Screen::Flag:
            ShowRecord<FlagDialog, authoring::frmFlags>(session, request.key, parent);
            return true;
        case Screen::Text:
            ShowText(session, request.key, parent);
            return true;
        case Screen::ProcessEntry:
            ShowProcessEntry(session, request, parent);
            return true;
        case Screen::Settings:
            break;
    }
    return false;
}

}  // namespace fabula::ide
