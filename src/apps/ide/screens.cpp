#include "ide/screens.h"

namespace fabula::ide {

bool OpenScreen(const authoring::ScreenRequest&, authoring::Session&, QWidget*) {
    return false;
}

}  // namespace fabula::ide
