#include "qt/look/game_image.h"

#include <QBuffer>
#include <QFile>

#include <gtest/gtest.h>

#include "platform/image_limits.h"
#include "qt/strings.h"
#include "support/temp_folder.h"

namespace fabula::qt {
namespace {

QByteArray ImageAs(const char* format, QSize size = {4, 3}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// One red pixel.
QByteArray SmallGif() {
    return QByteArray::fromBase64("R0lGODlhAQABAIABAP8AAP///yH5BAEAAAEALAAAAAABAAEAAAICRAEAOw==");
}

TEST(DecodeImage, ReadsTheFourKindsByTheirFirstBytes) {
    EXPECT_EQ(DecodeImage(ImageAs("bmp")).size(), QSize(4, 3));
    EXPECT_EQ(DecodeImage(ImageAs("jpg")).size(), QSize(4, 3));
    EXPECT_EQ(DecodeImage(ImageAs("png")).size(), QSize(4, 3));
    EXPECT_EQ(DecodeImage(SmallGif()).size(), QSize(1, 1));
}

TEST(DecodeImage, OtherKindsAreNotRead) {
    EXPECT_TRUE(DecodeImage(ImageAs("xpm")).isNull());
    EXPECT_TRUE(DecodeImage(ImageAs("ppm")).isNull());
    EXPECT_TRUE(DecodeImage("<svg xmlns='http://www.w3.org/2000/svg' width='4' height='3'/>").isNull());
    EXPECT_TRUE(DecodeImage("").isNull());
}

TEST(DecodeImage, BrokenImagesAreNull) {
    EXPECT_TRUE(DecodeImage("BM").isNull());
    EXPECT_TRUE(DecodeImage(ImageAs("png").left(20)).isNull());
    EXPECT_TRUE(DecodeImage("GIF89a and no more").isNull());
}

TEST(DecodeImage, ImageThatClaimsAHugeSizeIsNotRead) {
    QByteArray bytes = ImageAs("bmp");
    bytes.replace(18, 4, QByteArray::fromHex("00000010"));
    EXPECT_TRUE(DecodeImage(bytes).isNull());
    EXPECT_TRUE(DecodeImage(ImageAs("png", {platform::kLargestImageSide + 1, 1})).isNull());
    EXPECT_FALSE(DecodeImage(ImageAs("png", {platform::kLargestImageSide, 1})).isNull());
}

TEST(ReadImage, FileThatIsTooLargeIsNotRead) {
    const test::TempFolder folder;
    QFile file(PathToQt(folder / "large.bmp"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(ImageAs("bmp"));
    file.close();
    EXPECT_FALSE(ReadImage(folder / "large.bmp").isNull());
    ASSERT_TRUE(file.resize(platform::kLargestImageFile + 1));
    EXPECT_TRUE(ReadImage(folder / "large.bmp").isNull());
}

TEST(ReadImage, FileThatIsNotThereIsNull) {
    EXPECT_TRUE(ReadImage("/no/such/file.bmp").isNull());
}

}  // namespace
}  // namespace fabula::qt
