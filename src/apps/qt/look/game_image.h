#pragma once

#include <QByteArray>
#include <QImage>
#include <filesystem>

namespace fabula::qt {

/// The largest image file that is read, in bytes, and the largest image that is shown, in pixels a side.
inline constexpr qint64 kLargestImageFile = 32 * 1024 * 1024;
inline constexpr int kLargestImageSide = 8192;
inline constexpr qint64 kLargestImageArea = 32 * 1024 * 1024;

/// The image that `bytes` hold, told from their first bytes: bmp, gif (its first picture), jpg or png.
/// Null when they hold none, are broken, or exceed a limit.
QImage DecodeImage(const QByteArray& bytes);

/// The image of a file, by the same rules; null when the file can't be read.
QImage ReadImage(const std::filesystem::path& file);

}  // namespace fabula::qt
