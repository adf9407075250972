#pragma once

#include <QImage>

#include "store/adventure.h"

namespace fabula::ide {

/// What a record of Pictures or of Locations looks like: the picture as it is drawn; the image of the
/// location, from the adventure where pictures are kept there, else from its file, else what is drawn for
/// it. Null for other tables, and where there is none that can be shown.
QImage PictureOfRecord(store::Adventure& adventure, store::TableNum table, int key);

/// What is drawn as the picture of a number; null when there is none, or it can't be drawn.
QImage DrawnPicture(store::Adventure& adventure, int number);

}  // namespace fabula::ide
