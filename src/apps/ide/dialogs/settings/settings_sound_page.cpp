#include "ide/dialogs/settings/settings_sound_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

#include "ide/editors/edit_controls.h"
#include "qt/strings.h"

namespace fabula::ide {

using authoring::SettingsScreen;

SettingsSoundPage::SettingsSoundPage(SettingsScreen& screen, engine::SoundPlayer& player)
    : screen_(screen),
      player_(player),
      on_(new QCheckBox),
      device_(NewDropList(screen.device)),
      channel_(NewDropList(screen.channel)),
      voice_(NewDropList(screen.voice)),
      heard_(new QLabel) {
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setContentsMargins(16, 16, 16, 16);
    form->setVerticalSpacing(12);
    on_->setObjectName("sound");
    on_->setChecked(screen_.sound);
    ShowSwitch();
    connect(on_, &QCheckBox::toggled, this, [this] {
        Read();
        ShowSwitch();
    });
    form->addRow("", on_);
    AddToForm(*form, tr("&Device:"), device_, "device");
    AddToForm(*form, tr("&Channel:"), channel_, "channel");
    AddToForm(*form, tr("&Voice:"), voice_, "voice");
    AddSlider(*form, tr("Vo&lume:"), "volume", &SettingsScreen::volume);
    AddSlider(*form, tr("&Balance:"), "balance", &SettingsScreen::balance);
    AddSlider(*form, tr("B&ass:"), "bass", &SettingsScreen::bass);
    form->addRow("", NewTest());
}

/// A value that no slider shows stays until the slider is moved.
void SettingsSoundPage::AddSlider(QFormLayout& form, const QString& label, const char* name, Value value) {
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(name);
    slider->setAccessibleName(PlainLabel(label));
    slider->setRange(0, SettingsScreen::kLoudest);
    slider->setPageStep(16);
    slider->setValue(screen_.*value);
    auto* number = new QLabel(QString::number(slider->value()));
    number->setMinimumWidth(number->fontMetrics().horizontalAdvance("0000"));
    number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(slider, &QSlider::valueChanged, this, [this, value, number](int moved) {
        screen_.*value = moved;
        number->setNum(moved);
    });
    auto* row = new QHBoxLayout;
    row->addWidget(slider, 1);
    row->addWidget(number);
    auto* caption = new QLabel(label);
    caption->setBuddy(slider);
    form.addRow(caption, row);
}

QWidget* SettingsSoundPage::NewTest() {
    auto* test = new QWidget;
    auto* column = new QVBoxLayout(test);
    column->setContentsMargins(0, 0, 0, 0);
    auto* button = NewButton(tr("&Test Voice"), "testVoice");
    connect(button, &QPushButton::clicked, this, [this] { TestVoice(); });
    heard_->setObjectName("heard");
    heard_->setAccessibleDescription(tr("Test of the voice"));
    heard_->setTextFormat(Qt::PlainText);
    heard_->setWordWrap(true);
    heard_->setText(tr("Plays one note with these settings."));
    column->addWidget(button, 0, Qt::AlignLeft);
    column->addWidget(heard_);
    return test;
}

void SettingsSoundPage::ShowSwitch() {
    on_->setText(qt::Translated(screen_.SoundCaption()).prepend('&'));
    on_->setAccessibleName(PlainLabel(on_->text()));
}

void SettingsSoundPage::TestVoice() {
    Read();
    const bool sounds = screen_.TestVoice(player_);
    heard_->setText(sounds
                        ? tr("The note is played.")
                        : tr("This computer has nothing that plays notes. The settings count as tested."));
}

void SettingsSoundPage::Read() {
    screen_.sound = on_->isChecked();
    screen_.device.index = device_->currentIndex();
    screen_.channel.index = channel_->currentIndex();
    screen_.voice.index = voice_->currentIndex();
}

}  // namespace fabula::ide
