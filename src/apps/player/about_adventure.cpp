#include "player/about_adventure.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "qt/game_image.h"
#include "qt/strings.h"
#include "store/adventure.h"
#include "store/game_path.h"
#include "text/line_ends.h"

namespace fabula::player {

namespace {

constexpr QSize kLargestPicture(480, 320);
constexpr int kTextWidth = 420;

/// A field that older files may lack; "" also for one blank, which stands for no value yet.
std::string TextOf(const store::Cursor& settings, const store::TableSchema& schema,
                   std::string_view field) {
    if (!schema.Find(field)) return {};
    std::string text(settings.Text(field));
    for (auto at = text.find(text::kLineEndMarker); at != std::string::npos;
         at = text.find(text::kLineEndMarker, at))
        text.replace(at, text::kLineEndMarker.size(), "\n");
    const auto end = text.find_last_not_of(' ');
    return text.substr(0, end == std::string::npos ? 0 : end + 1);
}

QImage PictureOf(store::Adventure& adventure, const store::Cursor& settings,
                 const store::TableSchema& schema) {
    if (schema.Find("graphicsindb") && settings.Truth("graphicsindb")) {
        if (!schema.Find("advpicgraphic")) return {};
        const text::Value value = settings.Field("advpicgraphic");
        const auto* bytes = std::get_if<text::Blob>(&value);
        if (bytes == nullptr) return {};
        return qt::DecodeImage(QByteArray(reinterpret_cast<const char*>(bytes->data()),
                                          static_cast<qsizetype>(bytes->size())));
    }
    const std::string path = TextOf(settings, schema, "advpicloc");
    if (path.empty()) return {};
    const store::GamePath found = store::FindGameFile(adventure.GameDir(), path);
    return found.fault == store::GamePath::Fault::None ? qt::ReadImage(found.file) : QImage();
}

QLabel* Line(const std::string& text, QWidget* parent) {
    auto* label = new QLabel(qt::ToQt(text), parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

}  // namespace

frmAboutAdventure frmAboutAdventure::Of(store::Adventure* adventure) {
    frmAboutAdventure about;
    if (adventure == nullptr) {
        about.name = "No Adventure Loaded";
        return about;
    }
    const store::Cursor& settings = adventure->OpenTable(store::TableNum::Adventure, "*");
    const store::TableSchema& schema = adventure->Schema(store::TableNum::Adventure);
    if (settings.Eof()) return about;
    about.name = TextOf(settings, schema, "advname");
    about.lines = {"Version: " + TextOf(settings, schema, "Version")};
    const std::string author = TextOf(settings, schema, "author");
    if (!author.empty()) about.lines.push_back("Written by " + author);
    about.description = TextOf(settings, schema, "advdesc");
    about.contact = TextOf(settings, schema, "advcontactinfo");
    about.picture = PictureOf(*adventure, settings, schema);
    return about;
}

void ShowAbout(const frmAboutAdventure& about, QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle("About this Adventure");
    auto* layout = new QVBoxLayout(&dialog);
    layout->setSpacing(10);
    layout->setContentsMargins(20, 20, 20, 16);
    if (!about.picture.isNull()) {
        auto* picture = new QLabel(&dialog);
        QImage shown = about.picture;
        if (shown.width() > kLargestPicture.width() || shown.height() > kLargestPicture.height())
            shown = shown.scaled(kLargestPicture, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        picture->setPixmap(QPixmap::fromImage(shown));
        picture->setAccessibleName("Picture of the adventure");
        layout->addWidget(picture, 0, Qt::AlignHCenter);
    }
    QLabel* name = Line(about.name, &dialog);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    large.setBold(true);
    name->setFont(large);
    name->setMinimumWidth(std::min(kTextWidth, parent == nullptr ? kTextWidth : parent->width() * 3 / 4));
    layout->addWidget(name);
    for (const std::string& line : about.lines)
        layout->addWidget(Line(line, &dialog));
    for (const std::string& text : {about.description, about.contact}) {
        if (!text.empty()) layout->addWidget(Line(text, &dialog));
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    dialog.exec();
}

}  // namespace fabula::player
