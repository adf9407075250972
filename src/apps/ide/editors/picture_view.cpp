#include "ide/editors/picture_view.h"

#include "qt/look/game_image.h"
#include "store/game_path.h"

namespace fabula::ide {
namespace {

// In lines of text.
constexpr int kWidestLines = 12;
constexpr int kHighestLines = 7;

}  // namespace

PictureView::PictureView(QWidget* parent) : QLabel(parent) {
    setObjectName("pictureView");
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    hide();
}

void PictureView::Show(const std::filesystem::path& gameFolder, std::string_view stored) {
    clear();
    setAccessibleName("");  // a text in place of the picture is read as it stands
    setVisible(!stored.empty());
    if (stored.empty()) return;
    const store::GamePath found = store::FindGameFile(gameFolder, stored);
    if (found.fault == store::GamePath::Fault::Outside)
        return setText(tr("The file lies outside of the game's folder."));
    if (found.fault == store::GamePath::Fault::Missing) return setText(tr("The file is missing."));
    const QImage image = qt::ReadImage(found.file);
    if (image.isNull()) return setText(tr("The file holds no picture that can be shown."));
    Show(image);
}

void PictureView::Show(const QImage& image) {
    clear();
    setVisible(!image.isNull());
    if (image.isNull()) return;
    const QSize most(kWidestLines * fontMetrics().lineSpacing(),
                     kHighestLines * fontMetrics().lineSpacing());
    const double density = devicePixelRatioF();
    QImage small = image.scaled((most * density).boundedTo(image.size() * density), Qt::KeepAspectRatio,
                                Qt::SmoothTransformation);
    small.setDevicePixelRatio(density);
    setPixmap(QPixmap::fromImage(small));
    setAccessibleName(tr("Picture"));
}

}  // namespace fabula::ide
