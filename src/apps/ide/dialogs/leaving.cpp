#include "ide/dialogs/leaving.h"

namespace fabula::ide {

bool MayClose(bool changed, platform::Dialogs& dialogs, const std::function<void()>& update) {
    if (!changed) return true;
    switch (dialogs.AskLeaving("What was changed here is not stored yet.", "Close")) {
        case platform::Leaving::Store:
            update();
            return false;
        case platform::Leaving::Discard:
            return true;
        case platform::Leaving::KeepEditing:
            break;
    }
    return false;
}

}  // namespace fabula::ide
