#include "player/window/settings_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include "player/panes/text_pane.h"
#include "qt/fitting_size.h"
#include "qt/help/help_request.h"
#include "qt/strings.h"

namespace fabula::player {

namespace {

constexpr int kSampleHeight = 150;

QComboBox* MakeChoice(const char* name, const QStringList& texts, int chosen) {
    auto* box = new QComboBox;
    box->setObjectName(name);
    box->addItems(texts);
    box->setCurrentIndex(chosen);
    return box;
}

}  // namespace

SettingsDialog::SettingsDialog(const PlayerSettings& settings, const std::vector<std::string>& soundDevices,
                               platform::Timers& timers, QWidget* parent)
    : QDialog(parent),
      settings_(settings),
      sample_(new TextPane(timers, {[](const auto&) {}, [](auto) {}})) {
    setObjectName("playerSettings");
    setProperty(qt::kHelpPage, "frmvelengmain.html");
    setWindowTitle(tr("Settings"));
    setWindowModality(Qt::WindowModal);
    sample_->setObjectName("Sample");
    sample_->setAccessibleName(tr("Sample"));
    sample_->setAccessibleDescription(tr("A text as games will look"));
    sample_->setReadOnly(true);
    sample_->setMinimumHeight(kSampleHeight);
    // What does not fit the screen scrolls; the buttons stay in sight.
    auto* groups = new QWidget;
    auto* column = new QVBoxLayout(groups);
    column->addWidget(MakeText());
    column->addWidget(MakeColours());
    column->addWidget(sample_, 1);
    column->addWidget(MakeSound(soundDevices));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(groups);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(scroll, 1);
    rows->addWidget(buttons);
    const QSize whole = groups->sizeHint() + QSize(0, buttons->sizeHint().height() + 3 * rows->spacing());
    const QSize edges(4 * rows->contentsMargins().left() + scroll->verticalScrollBar()->sizeHint().width(),
                      2 * rows->contentsMargins().top());
    resize(qt::FittingSize(*this, whole + edges));
    const engine::TextStyle style = TextLook().style;
    sample_->StartGame({.style = style});
    sample_->Write("You are standing at the foot of a tower.", style, {});
    sample_->EndLine();
    sample_->Write("What now? ", style, {});
    sample_->ShowInput("CLIMB THE TOWER", {});
    ShowSample();
}

QSpinBox* SettingsDialog::MakeNumber(const char* name, int least, int most, int value,
                                     const QString& zero) {
    auto* box = new QSpinBox;
    box->setObjectName(name);
    box->setRange(least, most);
    box->setSpecialValueText(zero);
    box->setValue(value);
    QObject::connect(box, &QSpinBox::valueChanged, this, [this] { ShowSample(); });
    return box;
}

QWidget* SettingsDialog::MakeText() {
    const TextChoice& text = settings_.text;
    auto* group = new QGroupBox(tr("Text"));
    auto* form = new QFormLayout(group);
    ownFont_ = new QCheckBox(tr("The game's &own font"));
    ownFont_->setObjectName("OwnFont");
    ownFont_->setChecked(text.family.isEmpty());
    font_ = new QFontComboBox;
    font_->setObjectName("Font");
    font_->setEditable(false);
    if (!text.family.isEmpty()) font_->setCurrentFont(QFont(text.family));
    font_->setEnabled(!text.family.isEmpty());
    QObject::connect(ownFont_, &QCheckBox::toggled, this, [this](bool own) {
        font_->setEnabled(!own);
        ShowSample();
    });
    QObject::connect(font_, &QFontComboBox::currentFontChanged, this, [this] { ShowSample(); });
    size_ =
        MakeNumber("FontSize", PlayerSettings::kLeastPoints - 1, PlayerSettings::kMostPoints,
                   text.points > 0 ? text.points : PlayerSettings::kLeastPoints - 1, tr("The game's own"));
    width_ = MakeNumber("LineWidth", PlayerSettings::kLeastColumns - 1, PlayerSettings::kMostColumns,
                        text.columns > 0 ? text.columns : PlayerSettings::kLeastColumns - 1,
                        tr("The game's own"));
    lines_ =
        MakeNumber("KeptLines", PlayerSettings::kLeastLines, PlayerSettings::kMostLines, text.lines, {});
    lines_->setSingleStep(PlayerSettings::kLeastLines);
    form->addRow(QString(), ownFont_);
    form->addRow(tr("&Font"), font_);
    form->addRow(tr("&Size in points"), size_);
    form->addRow(tr("Line &width in letters"), width_);
    form->addRow(tr("&Lines kept to look back at"), lines_);
    return group;
}

QWidget* SettingsDialog::MakeColours() {
    auto* group = new QGroupBox(tr("Colours"));
    auto* form = new QFormLayout(group);
    theme_ =
        MakeChoice("Theme", {tr("System"), tr("Light"), tr("Dark")}, static_cast<int>(settings_.theme));
    colours_ = MakeChoice(
        "Colours", {tr("As the windows"), tr("The game's own"), tr("Dark on light"), tr("Light on dark")},
        static_cast<int>(settings_.colours));
    for (QComboBox* box : {theme_, colours_})
        QObject::connect(box, &QComboBox::currentIndexChanged, this, [this] { ShowSample(); });
    form->addRow(tr("&Theme of the windows"), theme_);
    form->addRow(tr("&Colours of the text"), colours_);
    return group;
}

QWidget* SettingsDialog::MakeSound(const std::vector<std::string>& devices) {
    auto* group = new QGroupBox(tr("Sound"));
    auto* form = new QFormLayout(group);
    device_ = new QComboBox;
    device_->setObjectName("SoundDevice");
    device_->addItem(tr("The game's own"));
    for (const std::string& device : devices)
        device_->addItem(qt::ToQt(device));
    const QString chosen = qt::ToQt(settings_.sound.device);
    // A device that is not there today stays the player's choice.
    if (!chosen.isEmpty() && device_->findText(chosen) < 0) device_->addItem(chosen);
    if (!chosen.isEmpty()) device_->setCurrentText(chosen);
    volume_ = new QSlider(Qt::Horizontal);
    volume_->setObjectName("Volume");
    volume_->setRange(0, 100);
    volume_->setPageStep(10);
    volume_->setValue(settings_.sound.volume);
    form->addRow(tr("&Device"), device_);
    form->addRow(tr("&Volume"), volume_);
    return group;
}

PlayerSettings SettingsDialog::Chosen() const {
    PlayerSettings chosen = settings_;
    chosen.text.family = ownFont_->isChecked() ? QString() : font_->currentFont().family();
    chosen.text.points = size_->value() < PlayerSettings::kLeastPoints ? 0 : size_->value();
    chosen.text.columns = width_->value() < PlayerSettings::kLeastColumns ? 0 : width_->value();
    chosen.text.lines = lines_->value();
    chosen.theme = static_cast<qt::Theme>(theme_->currentIndex());
    chosen.colours = static_cast<Colours>(colours_->currentIndex());
    chosen.sound.device = device_->currentIndex() == 0 ? "" : qt::FromQt(device_->currentText());
    chosen.sound.volume = volume_->value();
    return chosen;
}

void SettingsDialog::ShowSample() {
    const ScreenLook look = Chosen().Look();
    sample_->SetPage(look.page);
    sample_->SetZoom(look.zoom);
    sample_->SetChoice(look.text);
}

}  // namespace fabula::player
