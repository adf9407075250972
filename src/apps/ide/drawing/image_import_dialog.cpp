#include "ide/drawing/image_import_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "pictures/drawstring.h"
#include "pictures/files/image_reader.h"

namespace fabula::ide {
namespace {

constexpr int kPreviewScale = 2;

QPixmap PixmapOf(const pictures::Image& image) {
    QImage pixels(image.width, image.height, QImage::Format_RGB32);
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x)
            pixels.setPixel(x, y, 0xFF000000U | static_cast<QRgb>(image.At(x, y)));
    }
    return QPixmap::fromImage(pixels.scaled(pixels.size() * kPreviewScale));
}

}  // namespace

ImageImportDialog::ImageImportDialog(pictures::Image image, QWidget* parent)
    : ColumnDialog({"", tr("Import Image"), "pictureeditor.html"}, parent),
      image_(std::move(image)),
      preview_(new QLabel),
      size_(new QLabel),
      dithering_(new QCheckBox(tr("&Mix colours that the palette lacks"))),
      asDrawstring_(new QCheckBox(tr("Make a &drawstring that draws it"))) {
    preview_->setObjectName("Preview");
    preview_->setAccessibleName(tr("The picture that the image becomes"));
    size_->setObjectName("DrawstringSize");
    dithering_->setObjectName("Dithering");
    asDrawstring_->setObjectName("AsDrawstring");
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (QCheckBox* box : {dithering_, asDrawstring_})
        connect(box, &QCheckBox::toggled, this, [this] { Fit(); });
    Column().addWidget(preview_, 1, Qt::AlignCenter);
    Column().addWidget(dithering_);
    Column().addWidget(asDrawstring_);
    Column().addWidget(size_);
    Column().addWidget(buttons);
    Fit();
}

void ImageImportDialog::Fit() {
    const bool mixed = dithering_->isChecked();
    chosen_ = {FitToCells(image_, mixed ? pictures::Dithering::On : pictures::Dithering::Off),
               asDrawstring_->isChecked()};
    preview_->setPixmap(PixmapOf(chosen_.image.ToImage()));
    const std::string text = DrawstringOf(chosen_.image, 7);
    const auto isWord = [](const std::string& word) { return !pictures::ParameterValue(word); };
    const auto words = pictures::DrawstringWords(text);
    size_->setText(tr("The drawstring would have %1 commands.")
                       .arg(std::count_if(words.begin(), words.end(), isWord)));
}

std::optional<ImportedImage> AskImage(platform::Dialogs& dialogs, const std::filesystem::path& folder,
                                      QWidget* parent) {
    platform::FileQuestion question;
    question.title = "Import Image";
    question.filter = kImageFilter;
    question.start = folder;
    const auto file = dialogs.ChooseFile(question);
    if (!file) return std::nullopt;
    ImageImportDialog dialog(pictures::ReadImage(*file), parent);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.Chosen();
}

}  // namespace fabula::ide
