#include "ide/screens.h"

namespace fabula::ide {

void OpenScreen(const authoring::ScreenRequest&, authoring::Session&, QWidget*) {}

}  // namespace fabula::ide
