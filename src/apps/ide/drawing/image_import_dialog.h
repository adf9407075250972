#pragma once

#include <QCoreApplication>
#include <filesystem>
#include <optional>

#include "ide/dialogs/column_dialog.h"
#include "pictures/cell_image.h"
#include "platform/dialogs.h"

class QCheckBox;
class QLabel;

namespace fabula::ide {

/// The images that can be drawn after or turned into commands, for the dialog that asks for a file.
inline constexpr const char* kImageFilter = "Images(png,bmp,jpg)|*.png;*.bmp;*.jpg;*.jpeg|All Files|*.*";

/// An image that was made a picture of, and how the picture takes it.
struct ImportedImage {
    pictures::CellImage image;
    bool asDrawstring = false;
};

/// Shows what a picture made of an image looks like, with and without dithering, before it is taken.
class ImageImportDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit ImageImportDialog(pictures::Image image, QWidget* parent = nullptr);

    const ImportedImage& Chosen() const { return chosen_; }

  private:
    void Fit();

    pictures::Image image_;
    ImportedImage chosen_;
    QLabel* preview_;
    QLabel* size_;
    QCheckBox* dithering_;
    QCheckBox* asDrawstring_;
};

/// Asks for an image file and shows the dialog; nullopt when the author would rather not. Throws
/// fabula::Error when the file can't be read.
std::optional<ImportedImage> AskImage(platform::Dialogs& dialogs, const std::filesystem::path& folder,
                                      QWidget* parent);

}  // namespace fabula::ide
