#include "ide/dialogs/settings/settings_game_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "authoring/settings/colour_screen.h"
#include "ide/dialogs/settings/colour_dialog.h"
#include "ide/editors/edit_controls.h"
#include "ide/editors/font_sample_label.h"
#include "ide/editors/layout.h"
#include "qt/strings.h"
#include "text/colours.h"
#include "text/encoding/utf8.h"

namespace fabula::ide {

using authoring::SettingsScreen;

namespace {

constexpr int kBetweenColumns = 32;
constexpr int kLettersOfASettingsColumn = 40;  ///< a column is not less wide
constexpr int kLettersOfALineEdit = 17;        ///< for which a QLineEdit asks for room

int WidthOfColumns(int column) {
    return 2 * (column + kDialogMargin) + kBetweenColumns;
}

QLineEdit* NewLine(const std::string& text) {
    auto* line = new QLineEdit(qt::ToQt(text));
    line->setMaxLength(static_cast<int>(SettingsScreen::kLongestText));
    return line;
}

QCheckBox* NewSwitch(const QString& text, const char* name, bool on) {
    auto* box = new QCheckBox(text);
    box->setObjectName(name);
    box->setAccessibleName(PlainLabel(text));
    box->setChecked(on);
    return box;
}

/// How wide a line has to be for all of its text to be seen.
int WholeWidth(const QLineEdit& line) {
    const int frame =
        line.sizeHint().width() - kLettersOfALineEdit * line.fontMetrics().horizontalAdvance('x');
    return line.fontMetrics().horizontalAdvance(line.text()) + frame;
}

/// Lists are as wide as the form and not as their longest line.
void KeepNarrow(QComboBox& list) {
    list.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list.setMinimumContentsLength(10);
}

QVBoxLayout* NewColumn(QWidget& column) {
    auto* layout = new QVBoxLayout(&column);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

QLabel* NewNote(const QString& text, const char* name) {
    auto* note = new QLabel(text);
    note->setObjectName(name);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    return note;
}

}  // namespace

SettingsGamePage::SettingsGamePage(SettingsScreen& screen, Guard guard)
    : screen_(screen),
      guard_(std::move(guard)),
      columns_(new QBoxLayout(QBoxLayout::LeftToRight, this)),
      left_(new QWidget),
      right_(new QWidget),
      name_(NewLine(screen.name)),
      author_(NewLine(screen.author)),
      saveName_(NewLine(screen.saveName)),
      version_(NewLine(screen.version)),
      type_(NewDropList(screen.type)),
      start_(NewLocationList(screen.startPlace)),
      objects_(NewLine(screen.maxObjects)),
      weight_(NewLine(screen.maxWeight)),
      charSets_(NewSwitch(tr("&Char. Sets"), "charSets", screen.charSets)),
      font_(NewDropList(screen.font)),
      fontSize_(NewDropList(screen.fontSize)),
      printWidth_(NewDropList(screen.printWidth)),
      sample_(new FontSampleLabel(screen.Adventure())),
      graphics_(NewSwitch(tr("Pictu&res"), "graphics", screen.graphics)),
      graphicsInDb_(NewSwitch(tr("Pictures in the data&base"), "graphicsInDb", screen.graphicsInDb)),
      description_(NewTextEdit(screen.description)),
      count_(NewNote("", "count")),
      contact_(NewTextEdit(screen.contactInfo)) {
    columns_->setContentsMargins(kDialogMargin, kDialogMargin, kDialogMargin, kDialogMargin);
    columns_->setSpacing(kBetweenColumns);
    columns_->addWidget(left_, 1);
    columns_->addWidget(right_, 1);
    auto* left = NewColumn(*left_);
    AddGame(*NewForm(*left, tr("Game")));
    AddAbout(*left);
    left->addStretch(1);
    auto* right = NewColumn(*right_);
    AddLook(*NewForm(*right, tr("Look")));
    AddSwitches(*NewForm(*right, tr("Pictures")));
    right->addStretch(1);
    for (QComboBox* list : {type_, start_, font_, fontSize_, printWidth_})
        KeepNarrow(*list);
    ShowSample();
    ShowCount();
    besideLabels_ = WidthBesideLabels();
}

/// A form behind its heading.
QFormLayout* SettingsGamePage::NewForm(QVBoxLayout& column, const QString& heading) {
    auto* title = new QLabel(heading);
    QFont font = title->font();
    font.setWeight(QFont::DemiBold);
    title->setFont(font);
    if (column.count() > 0) column.addSpacing(kDialogMargin);
    column.addWidget(title);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    column.addLayout(form);
    forms_.push_back(form);
    return form;
}

void SettingsGamePage::AddGame(QFormLayout& form) {
    AddToForm(form, tr("Adventure &name:"), name_, "name");
    AddToForm(form, tr("Au&thor:"), author_, "author");
    AddToForm(form, tr("&Save name:"), saveName_, "saveName");
    AddToForm(form, tr("&Version:"), version_, "version");
    if (!screen_.Ifid().empty()) {
        // It is there to be read and copied.
        ifid_ = new QLineEdit(qt::ToQt(screen_.Ifid()));
        ifid_->setReadOnly(true);
        ifid_->setCursorPosition(0);
        AddToForm(form, tr("IFID:"), ifid_, "ifid");
    }
    AddToForm(form, tr("T&ype:"), type_, "type");
    // The note is written for a caption, in which an ampersand is doubled.
    form.addRow(NewNote(qt::Translated(screen_.TypeNote()).replace("&&", "&"), "typeNote"));
    AddToForm(form, tr("Start &location:"), start_, "startPlace");
    // A place may be called by more than a line shows.
    const auto tell = [start = start_](const QString& place) {
        start->setToolTip(qt::TipOf(place));
        start->setAccessibleDescription(place);
    };
    tell(start_->currentText());
    connect(start_, &QComboBox::currentTextChanged, start_, tell);
    AddToForm(form, tr("Maximum &objects:"), objects_, "maxObjects");
    AddToForm(form, tr("Maximum &weight:"), weight_, "maxWeight");
    weight_->setEnabled(screen_.HasWeights());
}

void SettingsGamePage::AddLook(QFormLayout& form) {
    AddColour(form, tr("&Paper:"), "paper", &SettingsScreen::paper, false);
    AddColour(form, tr("&Ink:"), "ink", &SettingsScreen::ink, true);
    form.addRow(charSets_);
    AddToForm(form, tr("&Font:"), font_, "font");
    AddToForm(form, tr("Font si&ze:"), fontSize_, "fontSize");
    sample_->setObjectName("FontTest");
    sample_->setAccessibleDescription(tr("Sample of the font"));
    form.addRow(sample_);
    AddToForm(form, tr("Print wi&dth:"), printWidth_, "printWidth");
    printWidth_->setEnabled(screen_.HasPrintWidth());
    for (const QComboBox* list : {font_, fontSize_}) {
        connect(list, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] {
            Read();
            ShowSample();
        });
    }
    connect(charSets_, &QCheckBox::toggled, this, [this](bool on) {
        Read();
        screen_.ClickCharSets(on);
        const QSignalBlocker quiet(font_);
        font_->clear();
        for (const authoring::ListItem& item : screen_.font.items)
            font_->addItem(qt::ToQt(item.text), item.number);
        font_->setCurrentIndex(screen_.font.index);
        ShowSample();
    });
}

void SettingsGamePage::AddColour(QFormLayout& form, const QString& label, const char* name, Colour colour,
                                 bool ink) {
    auto* button = NewButton("", name);
    const auto show = [this, button, colour, caption = PlainLabel(label)] {
        const int size = button->fontMetrics().height();
        const QString chosen = qt::Translated(text::ColourName(screen_.*colour));
        button->setText(" " + chosen);
        button->setAccessibleName(caption + ": " + chosen);
        button->setIcon(ColourSwatch(screen_.*colour, size));
        button->setIconSize({2 * size, size});
    };
    show();
    connect(button, &QPushButton::clicked, this, [this, colour, ink, show] {
        authoring::ColourScreen colours(
            ink ? authoring::ColourScreen::Purpose::Ink : authoring::ColourScreen::Purpose::Paper,
            screen_.*colour);
        ColourDialog dialog(colours, this);
        if (dialog.exec() != QDialog::Accepted) return;
        screen_.*colour = colours.Update();
        show();
        ShowSample();
    });
    AddToForm(form, label, button, name);
}

void SettingsGamePage::AddSwitches(QFormLayout& form) {
    form.addRow(graphics_);
    form.addRow(graphicsInDb_);
    AddPicture(form, {tr("D&efault picture:"), "defaultPicture", tr("C&hoose..."), "choosePicture",
                      tr("No picture"), "clearPicture", &SettingsScreen::defaultPicture,
                      &SettingsScreen::ChoosePicture, &SettingsScreen::ClearPicture});
    if (!screen_.HasAboutPicture()) return;
    AddPicture(form, {tr("&About picture:"), "aboutPicture", tr("Choose..."), "chooseAboutPicture",
                      tr("No picture"), "clearAboutPicture", &SettingsScreen::aboutPicture,
                      &SettingsScreen::ChooseAboutPicture, &SettingsScreen::ClearAboutPicture});
}

void SettingsGamePage::AddPicture(QFormLayout& form, const PictureRow& row) {
    auto* line = new QLineEdit(qt::ToQt(screen_.*row.path));
    line->setReadOnly(true);
    line->setPlaceholderText(tr("No picture"));
    AddToForm(form, row.label, line, row.line);
    auto* choose = NewButton(row.chooseText, row.choose);
    auto* clear = NewButton(row.clearText, row.clear);
    for (QPushButton* button : {choose, clear})
        button->setAccessibleName(PlainLabel(row.label) + ": " + PlainLabel(button->text()));
    const auto show = [this, line, path = row.path] { line->setText(qt::ToQt(screen_.*path)); };
    connect(choose, &QPushButton::clicked, this, [this, show, get = row.get] {
        guard_([this, get] { (screen_.*get)(); });
        show();
    });
    connect(clear, &QPushButton::clicked, this, [this, show, forget = row.forget] {
        (screen_.*forget)();
        show();
    });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(choose);
    buttons->addWidget(clear);
    buttons->addStretch(1);
    form.addRow("", buttons);
}

/// Texts of several lines have their labels above them, always.
void SettingsGamePage::AddAbout(QVBoxLayout& column) {
    QFormLayout& form = *NewForm(column, tr("About this Adventure"));
    forms_.pop_back();
    form.setRowWrapPolicy(QFormLayout::WrapAllRows);
    description_->setEnabled(screen_.HasAdvDesc());
    contact_->setEnabled(screen_.HasContactInfo());
    AddToForm(form, tr("&Game description:"), description_, "description");
    form.addRow(count_);
    AddToForm(form, tr("Contact infor&mation:"), contact_, "contactInfo");
    for (QPlainTextEdit* edit : {description_, contact_})
        edit->setMaximumHeight(6 * edit->fontMetrics().lineSpacing());
    connect(description_, &QPlainTextEdit::textChanged, this, [this] { ShowCount(); });
}

void SettingsGamePage::ShowSample() {
    sample_->ShowSample(screen_.FontTest());
}

void SettingsGamePage::ShowCount() {
    const auto count = text::Length(qt::FromQt(TextIn(*description_)));
    count_->setText(tr("%1 of %2 characters").arg(count).arg(SettingsScreen::kLongestText));
}

void SettingsGamePage::Read() {
    screen_.name = qt::FromQt(name_->text());
    screen_.author = qt::FromQt(author_->text());
    screen_.saveName = qt::FromQt(saveName_->text());
    screen_.version = qt::FromQt(version_->text());
    screen_.type.index = type_->currentIndex();
    screen_.startPlace.text = LocationTyped(*start_);
    screen_.maxObjects = qt::FromQt(objects_->text());
    screen_.maxWeight = qt::FromQt(weight_->text());
    screen_.font.index = font_->currentIndex();
    screen_.fontSize.index = fontSize_->currentIndex();
    screen_.printWidth.index = printWidth_->currentIndex();
    screen_.graphics = graphics_->isChecked();
    screen_.graphicsInDb = graphicsInDb_->isChecked();
    screen_.description = qt::FromQt(TextIn(*description_));
    screen_.contactInfo = qt::FromQt(TextIn(*contact_));
}

int SettingsGamePage::WidthOfColumn() const {
    return std::max({kLettersOfASettingsColumn * fontMetrics().averageCharWidth(),
                     left_->minimumSizeHint().width(), right_->minimumSizeHint().width()});
}

/// The width of a column in which the whole IFID is seen beside its label.
int SettingsGamePage::WidthBesideLabels() const {
    if (ifid_ == nullptr) return WidthOfColumn();
    ifid_->setMinimumWidth(WholeWidth(*ifid_));
    const int width = WidthOfColumn();
    ifid_->setMinimumWidth(0);
    for (QFormLayout* form : forms_)
        form->invalidate();
    return width;
}

QSize SettingsGamePage::sizeHint() const {
    return {WidthOfColumns(std::max(WidthOfColumn(), besideLabels_)), QWidget::sizeHint().height()};
}

void SettingsGamePage::resizeEvent(QResizeEvent* event) {
    const bool both = width() >= WidthOfColumns(WidthOfColumn());
    columns_->setDirection(both ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    const bool narrow = !both && width() < besideLabels_ + 2 * kDialogMargin;
    for (QFormLayout* form : forms_)
        form->setRowWrapPolicy(narrow ? QFormLayout::WrapAllRows : QFormLayout::DontWrapRows);
    QWidget::resizeEvent(event);
}

}  // namespace fabula::ide
