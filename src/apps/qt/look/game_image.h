#pragma once

#include <QByteArray>
#include <QImage>
#include <filesystem>

namespace fabula::qt {

/// The image that `bytes` hold, told from their first bytes: bmp, gif (its first picture), jpg or png.
/// Null when they hold none, are broken, or exceed a limit (platform/image_limits.h).
QImage DecodeImage(const QByteArray& bytes);

/// The image of a file, by the same rules; null when the file can't be read.
QImage ReadImage(const std::filesystem::path& file);

}  // namespace fabula::qt
