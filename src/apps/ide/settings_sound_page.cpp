#include "ide/settings_sound_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

#include "ide/edit_controls.h"
#include "qt/strings.h"

namespace fabula::ide {

using authoring::frmVelAdvSettings;

SettingsSoundPage::SettingsSoundPage(frmVelAdvSettings& screen, engine::SoundPlayer& player)
    : screen_(screen),
      player_(player),
      on_(new QCheckBox),
      device_(NewDropList(screen.cboDevice)),
      channel_(NewDropList(screen.cboChannel)),
      voice_(NewDropList(screen.cboVoice)),
      heard_(new QLabel) {
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setContentsMargins(16, 16, 16, 16);
    form->setVerticalSpacing(12);
    on_->setObjectName("chkSound");
    on_->setChecked(screen_.chkSound);
    ShowSwitch();
    connect(on_, &QCheckBox::toggled, this, [this] {
        Read();
        ShowSwitch();
    });
    form->addRow("", on_);
    AddToForm(*form, "&Device:", device_, "cboDevice");
    AddToForm(*form, "&Channel:", channel_, "cboChannel");
    AddToForm(*form, "&Voice:", voice_, "cboVoice");
    AddSlider(*form, "Vo&lume:", "sldVolume", &frmVelAdvSettings::sldVolume);
    AddSlider(*form, "&Balance:", "sldBalance", &frmVelAdvSettings::sldBalance);
    AddSlider(*form, "B&ass:", "sldBass", &frmVelAdvSettings::sldBass);
    form->addRow("", NewTest());
}

/// A value that no slider shows stays until the slider is moved.
void SettingsSoundPage::AddSlider(QFormLayout& form, const QString& label, const char* name, Value value) {
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(name);
    slider->setAccessibleName(PlainLabel(label));
    slider->setRange(0, frmVelAdvSettings::kLoudest);
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
    auto* button = NewButton("&Test Voice", "cmdTestVoice");
    connect(button, &QPushButton::clicked, this, [this] { TestVoice(); });
    heard_->setObjectName("lblHeard");
    heard_->setAccessibleName("Test of the voice");
    heard_->setTextFormat(Qt::PlainText);
    heard_->setWordWrap(true);
    heard_->setText("Plays one note with these settings.");
    column->addWidget(button, 0, Qt::AlignLeft);
    column->addWidget(heard_);
    return test;
}

void SettingsSoundPage::ShowSwitch() {
    on_->setText(qt::ToQt(screen_.SoundCaption()).prepend('&'));
    on_->setAccessibleName(PlainLabel(on_->text()));
}

void SettingsSoundPage::TestVoice() {
    Read();
    const bool sounds = screen_.cmdTestVoice(player_);
    heard_->setText(sounds ? "The note is played."
                           : "This computer has nothing that plays notes. The settings count as tested.");
}

void SettingsSoundPage::Read() {
    screen_.chkSound = on_->isChecked();
    screen_.cboDevice.index = device_->currentIndex();
    screen_.cboChannel.index = channel_->currentIndex();
    screen_.cboVoice.index = voice_->currentIndex();
}

}  // namespace fabula::ide
