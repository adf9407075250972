#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QLabel>
#include <filesystem>
#include <string_view>

namespace fabula::ide {

/// Shows the picture of a record in small, or says in words why it can't. Without a picture it takes no
/// room. The file is read within the limits of qt/look/game_image.h, and only in the game's folder.
class PictureView final : public QLabel {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit PictureView(QWidget* parent = nullptr);

    /// `stored` is the path as the record holds it; "" for none.
    void Show(const std::filesystem::path& gameFolder, std::string_view stored);
    /// An image that is at hand; a null one for none.
    void Show(const QImage& image);
};

}  // namespace fabula::ide
