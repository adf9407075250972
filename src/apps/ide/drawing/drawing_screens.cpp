#include "ide/drawing/drawing_screens.h"

#include "ide/drawing/character_dialog.h"
#include "ide/drawing/picture_dialog.h"

namespace fabula::ide {

bool OpenDrawingScreen(const authoring::ScreenRequest& request, authoring::ScreenContext& context,
                       platform::Settings& settings, QWidget* parent) {
    if (request.screen == authoring::Screen::Picture) {
        authoring::PictureEditor screen(context, request.key);
        PictureDialog dialog(screen, settings, parent);
        dialog.exec();
        return true;
    }
    if (request.screen == authoring::Screen::Character) {
        authoring::CharacterEditor screen(context, request.key);
        CharacterDialog dialog(screen, parent);
        dialog.exec();
        return true;
    }
    return false;
}

}  // namespace fabula::ide
