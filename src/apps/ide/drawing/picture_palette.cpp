#include "ide/drawing/picture_palette.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPixmap>
#include <QScrollArea>
#include <QSpinBox>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "ide/dialogs/settings/colour_dialog.h"
#include "ide/editors/edit_controls.h"
#include "ide/editors/plane_image.h"
#include "pictures/drawing.h"
#include "platform/error.h"
#include "qt/strings.h"
#include "text/colours.h"

namespace fabula::ide {
namespace {

constexpr int kColours = 8;
constexpr QSize kThumbnail(64, 44);
constexpr int kPaletteGap = 4;

QIcon PatternIcon(const pictures::Glyph& glyph) {
    QImage image(16, 16, QImage::Format_RGB32);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x)
            image.setPixelColor(x, y, pictures::HasBit(glyph, x % 8, y % 8) ? Qt::black : Qt::white);
    }
    return QPixmap::fromImage(image);
}

/// A picture in small; an empty icon for one that can't be drawn.
QIcon Thumbnail(const pictures::PictureBook& book, int number) {
    try {
        const QImage image = ImageOfPlane(pictures::DrawPicture(book, number).colour);
        return QPixmap::fromImage(image.scaled(kThumbnail, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    } catch (const Error&) {
        QPixmap none(kThumbnail);
        none.fill(Qt::gray);
        return none;
    }
}

std::string NumberOf(const QComboBox& list) {
    return std::to_string(list.currentData().toInt());
}

}  // namespace

PicturePalette::PicturePalette(const authoring::PictureEditor& editor, QWidget* parent)
    : QTabWidget(parent), editor_(editor) {
    setObjectName("Palette");
    tabBar()->setAccessibleName(tr("Palette"));
    setDocumentMode(true);
    // Narrow ones shorten their titles.
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideRight);
    BeginPage(tr("Draw"));
    AddDrawing();
    AddColours();
    AddSteps();
    EndPage();
    BeginPage(tr("Patterns"));
    AddPatterns();
    AddText();
    AddSubroutines();
    EndPage();
    Show();
}

void PicturePalette::BeginPage(const QString& title) {
    auto* page = new QWidget;
    groups_ = new QVBoxLayout(page);
    groups_->setContentsMargins(0, kPaletteGap, kPaletteGap, 0);
    groups_->setSpacing(kPaletteGap);
    title_ = title;
}

void PicturePalette::EndPage() {
    groups_->addStretch();
    AddPage(groups_->parentWidget(), title_);
}

void PicturePalette::AddPage(QWidget* contents, const QString& title) {
    auto* scroll = new QScrollArea;
    scroll->setWidget(contents);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumWidth(contents->minimumSizeHint().width() +
                            style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    addTab(scroll, title);
}

QGridLayout* PicturePalette::AddGroup(const QString& title) {
    auto* group = new QGroupBox(title);
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(6, 2, 6, 4);
    grid->setSpacing(3);
    groups_->addWidget(group);
    return grid;
}

QToolButton* PicturePalette::AddButton(QGridLayout& grid, const char* word, const QString& text,
                                       const QString& tip, std::function<std::string()> line, int columns) {
    auto* button =
        AddToolButton(grid, QString("Do%1").arg(word), text, QString("%1: %2").arg(word, tip), columns);
    connect(button, &QToolButton::clicked, this, [this, line = std::move(line)] { commanded(line()); });
    return button;
}

void PicturePalette::AddDrawing() {
    struct Entry {
        const char* word;
        const char* text;
        const char* tip;
    };
    static constexpr Entry kEntries[] = {
        {"LINE", "Line", "draw the guide line"},
        {"PLOT", "Point", "one point at the key cursor"},
        {"BLOCK", "Block", "paint the cells between the two cursors in the paper colour"},
        {"ABSMOVE", "Mark", "go to the key cursor and mark it"},
        {"RELMOVE", "Move", "go to the key cursor and draw nothing"},
        {"RPLOT", "Freehand", "each key draws a point beside the last one"},
        {"FILL", "Fill", "fill from the key cursor line by line"},
        {"QFILL", "Fill all", "fill every corner from the key cursor"},
    };
    QGridLayout* grid = AddGroup(tr("Draw"));
    for (const Entry& entry : kEntries) {
        auto* button = AddButton(*grid, entry.word, tr(entry.text), tr(entry.tip),
                                 [word = std::string(entry.word)] { return word; });
        if (std::string_view(entry.word) != "RPLOT") continue;
        button->setCheckable(true);
        marks_.emplace_back(button, [this] { return editor_.RPlotOn(); });
    }
}

void PicturePalette::AddColours() {
    QGridLayout* grid = AddGroup(tr("Colours"));
    grid->setSpacing(1);
    AddColourRow(*grid, "INK", tr("Ink"), 0);
    AddColourRow(*grid, "PAPER", tr("Paper"), 1);
    AddSwitches(*AddGroup(tr("Switches")));
}

void PicturePalette::AddColourRow(QGridLayout& grid, const char* word, const QString& label, int row) {
    auto* caption = new QLabel(label);
    grid.addWidget(caption, 2 * row, 0, 1, kColours + 1);
    const bool isInk = row == 0;
    for (int number = 0; number <= pictures::kTransparent; ++number) {
        auto* button = new QToolButton;
        const QString name =
            number == pictures::kTransparent ? tr("transparent") : qt::Translated(text::ColourName(number));
        button->setObjectName(QString("%1%2").arg(word).arg(number));
        button->setAccessibleName(QString("%1 %2").arg(label, name));
        button->setToolTip(QString("%1 %2: %3").arg(word).arg(number).arg(name));
        if (number == pictures::kTransparent)
            button->setText("8");
        else
            button->setIcon(ColourSwatch(number, 12));
        button->setIconSize({16, 12});
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setMinimumWidth(1);
        grid.addWidget(button, 2 * row + 1, number);
        const std::string line = std::string(word) + " " + std::to_string(number);
        connect(button, &QToolButton::clicked, this, [this, line] { commanded(line); });
        marks_.emplace_back(button, [this, isInk, number] {
            return (isInk ? editor_.State().ink : editor_.State().paper) == number;
        });
    }
}

void PicturePalette::AddSwitches(QGridLayout& grid) {
    struct Switch {
        const char* word;
        const char* text;
        const char* tip;
        bool (*isOn)(const authoring::PictureEditor& editor);
    };
    static constexpr Switch kSwitches[] = {
        {"BRIGHT", "Bright", "the bright ink", [](const auto& e) { return e.State().bright != 0; }},
        {"INVERSE", "Inverse", "draw in the paper colour", [](const auto& e) { return e.Inverse(); }},
        {"OVER", "Over", "draw by exclusive or", [](const auto& e) { return e.Over(); }},
        {"FLASH", "Flash", "changes no point", [](const auto& e) { return e.State().flash != 0; }},
    };
    for (const Switch& entry : kSwitches) {
        auto* button = AddButton(grid, entry.word, tr(entry.text), tr(entry.tip), [this, &entry] {
            return std::string(entry.word) + (entry.isOn(editor_) ? " 0" : " 1");
        });
        button->setCheckable(true);
        marks_.emplace_back(button, [this, &entry] { return entry.isOn(editor_); });
    }
    auto* gridButton =
        AddButton(grid, "GRID", tr("Grid"), tr("show the cells"), [] { return std::string("GRID"); });
    gridButton->setCheckable(true);
    marks_.emplace_back(gridButton, [this] { return editor_.GridOn(); });
}

QComboBox* PicturePalette::AddList(QGridLayout& grid, const char* name, const QString& caption, int row,
                                   int column) {
    auto* list = new QComboBox;
    list->setObjectName(name);
    list->setAccessibleName(caption);
    list->setToolTip(caption);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(2);
    list->setIconSize({16, 16});
    grid.addWidget(list, row, column);
    return list;
}

QSpinBox* PicturePalette::AddNumber(QGridLayout& grid, const char* name, const QString& caption, int row,
                                    int column, int lowest, int highest) {
    auto* number = new QSpinBox;
    number->setObjectName(name);
    number->setAccessibleName(caption);
    number->setToolTip(caption);
    number->setRange(lowest, highest);
    grid.addWidget(number, row, column);
    return number;
}

void PicturePalette::AddPatterns() {
    QGridLayout* grid = AddGroup(tr("Patterns"));
    firstShade_ = AddList(*grid, "FirstShade", tr("First shade"), 0, 0);
    secondShade_ = AddList(*grid, "SecondShade", tr("Second shade"), 0, 1);
    for (QComboBox* list : {firstShade_, secondShade_}) {
        for (int shade = 0; shade < pictures::kShades; ++shade) {
            const pictures::Character* found = editor_.Book().characters.FindFirst(shade);
            list->addItem(found ? PatternIcon(found->glyph) : QIcon(), QString::number(shade), shade);
        }
    }
    AddButton(*grid, "SHADE", tr("Shade"), tr("fill with two shades laid over one another"),
              [this] { return "SHADE " + NumberOf(*firstShade_) + " " + NumberOf(*secondShade_); });
    shadeByte_ = AddNumber(*grid, "ShadeByte", tr("Shade byte of the shades by columns"), 1, 0, 1, 255);
    shadeByte_->setValue(129);
    const auto byColumns = [this](const char* word) {
        return std::string(word) + " " + std::to_string(shadeByte_->value());
    };
    columnShade_ = AddButton(*grid, "QSHADE", tr("QShade"), tr("fill with the shade byte, by columns"),
                             [byColumns] { return byColumns("QSHADE"); });
    columnShade_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    AddButton(*grid, "BSHADE", tr("BShade"), tr("the same as QSHADE"),
              [byColumns] { return byColumns("BSHADE"); });
    connect(shadeByte_, &QSpinBox::valueChanged, this, [this] { ShowShadeByte(); });
    ShowShadeByte();
}

void PicturePalette::ShowShadeByte() {
    columnShade_->setIcon(PatternIcon(pictures::MarloShadePattern(shadeByte_->value())));
}

void PicturePalette::AddText() {
    QGridLayout* grid = AddGroup(tr("Text"));
    set_ = AddList(*grid, "TextSet", tr("Character set"), 0, 0);
    character_ = AddList(*grid, "TextCharacter", tr("Character"), 0, 1);
    for (const int number : editor_.Book().characters.Sets())
        set_->addItem(QString::number(number), number);
    connect(set_, &QComboBox::currentIndexChanged, this, [this] { FillCharacters(); });
    FillCharacters();
    AddButton(*grid, "TEXT", tr("Text"), tr("the character, in the cell of the key cursor"),
              [this] { return "TEXT " + NumberOf(*set_) + " " + NumberOf(*character_); });
}

void PicturePalette::FillCharacters() {
    character_->clear();
    for (const pictures::Character* character :
         editor_.Book().characters.OfSet(set_->currentData().toInt())) {
        if (character->number < pictures::kFirstCharacter) continue;
        character_->addItem(QPixmap::fromImage(ImageOfGlyph(character->glyph, Qt::black, Qt::white, 2)),
                            QString::number(character->number), character->number);
    }
}

void PicturePalette::AddSubroutines() {
    QGridLayout* grid = AddGroup(tr("Other pictures"));
    subroutine_ = AddList(*grid, "SubroutinePicture", tr("Picture"), 0, 0);
    subroutine_->setIconSize(kThumbnail);
    for (const auto& [number, picture] : editor_.Book().pictures) {
        if (picture.kind == pictures::PictureKind::Subroutine && number != editor_.Key().key)
            subroutine_->addItem(Thumbnail(editor_.Book(), number), QString::number(number), number);
    }
    scale_ = AddNumber(*grid, "SubroutineScale", tr("Scale in eighths, 0 for its own size"), 0, 1, 0, 7);
    auto* button = AddButton(*grid, "GOSUB", tr("Draw it"), tr("draw the other picture"), [this] {
        return "GOSUB " + std::to_string(scale_->value()) + " " + NumberOf(*subroutine_);
    });
    const bool any = subroutine_->count() > 0;
    for (QWidget* part :
         {static_cast<QWidget*>(subroutine_), static_cast<QWidget*>(scale_), static_cast<QWidget*>(button)})
        part->setEnabled(any);
}

void PicturePalette::AddSteps() {
    struct Entry {
        const char* word;
        const char* text;
        const char* tip;
    };
    static constexpr Entry kEntries[] = {
        {"START", "Start", "go to the empty picture"},
        {"PREV", "Back", "go back by one command (Page Up)"},
        {"NEXT", "Next", "draw the next command (Page Down)"},
        {"REDRAW", "Draw all", "draw the whole picture"},
        {"DELETE", "Delete", "delete the command in front"},
        {"DELNEXT", "Delete next", "delete the command behind"},
        {"CLEAR", "Clear", "empty the whole picture"},
    };
    QGridLayout* grid = AddGroup(tr("Steps"));
    for (const Entry& entry : kEntries) {
        AddButton(*grid, entry.word, tr(entry.text), tr(entry.tip),
                  [word = std::string(entry.word)] { return word; });
    }
}

void PicturePalette::Show() {
    for (const auto& [button, isOn] : marks_)
        button->setChecked(isOn());
}

}  // namespace fabula::ide
