#pragma once

#include "authoring/document/screen_context.h"

namespace fabula::authoring {

/// What the settings said when their screen was opened.
struct SettingsBefore {
    bool graphics = false;
    bool charSets = false;
    bool graphicsInDb = false;
    int changes = 0;  ///< of the document, for telling whether the screen stored something
};

SettingsBefore ReadSettingsBefore(Document& document);

/// What an Update of the settings asks for in the rest of the adventure, to be called when their screen has
/// closed. It becomes part of the step of Undo that Update made.
///
/// - While pictures are kept in the adventure, the files of the default picture and the about picture are
///   copied into it where they were not yet, and those of the locations too when `graphics` or
///   `graphicsindb` was changed. Pictures that can't be read are listed in a report, and the others are
///   copied.
/// - When `graphicsindb` was switched off, the copies stay, but each counts as out of date: switching it on
///   again copies the files as they are then.
/// - When character sets were switched, the author is told that the program has to end.
///
/// False when the program has to end.
bool FollowSettings(ScreenContext& context, const SettingsBefore& before);

}  // namespace fabula::authoring
