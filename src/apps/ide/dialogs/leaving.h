#pragma once

#include <functional>

#include "platform/dialogs.h"

namespace fabula::ide {

/// Whether a dialog that Esc, Exit or its window's X would close may close at once. With changes the author
/// is asked: what is to be stored is stored by `update`, which closes the dialog itself or keeps it open
/// when a check refuses.
bool MayClose(bool changed, platform::Dialogs& dialogs, const std::function<void()>& update);

}  // namespace fabula::ide
