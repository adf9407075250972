#include "player/window/about_adventure.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "qt/help/help_request.h"
#include "qt/look/game_image.h"
#include "qt/strings.h"
#include "store/adventure.h"
#include "store/game_path.h"
#include "store/ifid.h"
#include "text/line_ends.h"

namespace fabula::player {

namespace {

constexpr QSize kLargestPicture(480, 320);
constexpr int kWidth = 540;

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

QWidget* PageOf(const AboutAdventure& about) {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setSpacing(10);
    layout->setContentsMargins(20, 20, 20, 16);
    if (!about.picture.isNull()) {
        auto* picture = new QLabel(page);
        QImage shown = about.picture;
        if (shown.width() > kLargestPicture.width() || shown.height() > kLargestPicture.height())
            shown = shown.scaled(kLargestPicture, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        picture->setPixmap(QPixmap::fromImage(shown));
        picture->setAccessibleName(qt::Translated("Picture of the adventure"));
        layout->addWidget(picture, 0, Qt::AlignHCenter);
    }
    QLabel* name = Line(about.name, page);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    large.setBold(true);
    name->setFont(large);
    layout->addWidget(name);
    for (const std::string& line : about.lines)
        layout->addWidget(Line(qt::FromQt(qt::Translated(line)), page));
    for (const std::string& text : {about.description, about.contact}) {
        if (!text.empty()) layout->addWidget(Line(text, page));
    }
    layout->addStretch();
    return page;
}

}  // namespace

AboutAdventure AboutAdventure::Of(store::Adventure* adventure) {
    AboutAdventure about;
    if (adventure == nullptr) {
        about.name = qt::FromQt(qt::Translated("No Adventure Loaded"));
        return about;
    }
    const store::Cursor& settings = adventure->OpenTable(store::TableNum::Adventure, "*");
    const store::TableSchema& schema = adventure->Schema(store::TableNum::Adventure);
    if (settings.Eof()) return about;
    about.name = TextOf(settings, schema, "advname");
    about.lines = {"Version: " + TextOf(settings, schema, "Version")};
    const std::string author = TextOf(settings, schema, "author");
    if (!author.empty()) about.lines.push_back("Written by " + author);
    const std::string ifid = store::IfidOf(*adventure);
    if (!ifid.empty()) about.lines.push_back("IFID: " + ifid);
    about.description = TextOf(settings, schema, "advdesc");
    about.contact = TextOf(settings, schema, "advcontactinfo");
    about.picture = PictureOf(*adventure, settings, schema);
    return about;
}

void ShowAbout(const AboutAdventure& about, QWidget* parent) {
    QDialog dialog(parent);
    dialog.setObjectName("aboutAdventure");
    dialog.setProperty(qt::kHelpPage, "frmaboutadventure.html");
    dialog.setWindowModality(Qt::WindowModal);  // the help can be read beside it
    dialog.setWindowTitle(qt::Translated("About this Adventure"));
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setAccessibleName(qt::Translated("About this Adventure"));
    QWidget* page = PageOf(about);
    area->setWidget(page);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->setContentsMargins(16, 0, 16, 16);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    layout->addWidget(buttons);
    const QSize screen = dialog.screen()->availableSize() * 4 / 5;
    const int width = std::min(kWidth, screen.width());
    const int height = page->layout()->totalHeightForWidth(width) + buttons->sizeHint().height();
    dialog.resize(width, std::min(height + layout->spacing(), screen.height()));
    dialog.exec();
}

}  // namespace fabula::player
