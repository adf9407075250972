#include "ide/drawing/drawing_screens.h"

#include "ide/drawing/character_dialog.h"
#include "ide/drawing/picture_dialog.h"

namespace fabula::ide {
namespace {

/// A window of its own, such as the help, stays usable while the dialog is shown.
bool ShowDrawing(QDialog& dialog) {
    dialog.setWindowModality(Qt::WindowModal);
    dialog.exec();
    return true;
}

}  // namespace

bool OpenDrawingScreen(const authoring::ScreenRequest& request, authoring::ScreenContext& context,
                       platform::Settings& settings, QWidget* parent) {
    if (request.screen == authoring::Screen::Picture) {
        authoring::PictureEditor screen(context, request.key);
        PictureDialog dialog(screen, settings, parent);
        return ShowDrawing(dialog);
    }
    if (request.screen == authoring::Screen::Character) {
        authoring::CharacterEditor screen(context, request.key);
        CharacterDialog dialog(screen, parent);
        return ShowDrawing(dialog);
    }
    return false;
}

}  // namespace fabula::ide
