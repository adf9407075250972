#include "qt/look/game_image.h"

#include <QBuffer>
#include <QImageReader>
#include <array>
#include <cstdint>
#include <string>

#include "platform/error.h"
#include "platform/image_limits.h"
#include "platform/whole_file.h"

namespace fabula::qt {

namespace {

struct Kind {
    const char* format;
    QByteArrayView begin;
};

const std::array<Kind, 4> kKinds = {{
    {"bmp", "BM"},
    {"gif", "GIF8"},
    {"jpg", "\xFF\xD8\xFF"},
    {"png", "\x89PNG\r\n\x1A\n"},
}};

const char* FormatOf(const QByteArray& bytes) {
    for (const Kind& kind : kKinds) {
        if (bytes.startsWith(kind.begin)) return kind.format;
    }
    return nullptr;
}

}  // namespace

QImage DecodeImage(const QByteArray& bytes) {
    const char* format = FormatOf(bytes);
    if (format == nullptr || static_cast<std::uintmax_t>(bytes.size()) > platform::kLargestImageFile)
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    // A reader that can't tell the size beforehand is stopped by its own limit of memory.
    if (!platform::IsImageWithinLimits(size.width(), size.height())) return {};
    return reader.read();
}

QImage ReadImage(const std::filesystem::path& path) {
    try {
        const std::string bytes =
            platform::ReadWholeFile(path, platform::kLargestImageFile, "read an image");
        return DecodeImage(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
    } catch (const Error&) {
        return {};  // it is shown as no image, whatever the reason
    }
}

}  // namespace fabula::qt
