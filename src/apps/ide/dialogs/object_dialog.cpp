#include "ide/dialogs/object_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "qt/strings.h"

namespace fabula::ide {
namespace {

using authoring::InitialPlace;

/// In the order of InitialPlace.
constexpr const char* kPlaces[] = {"&Not created", "&Worn", "&Carried", "In a &room"};

}  // namespace

ObjectDialog::ObjectDialog(authoring::ObjectScreen& screen, QWidget* parent)
    : RecordDialog(screen, tr("Object %1").arg(screen.Key().key), "frmvelobjects.html", parent),
      screen_(screen),
      editing_(screen.Adventure()),
      description_(new MarkupEdit(editing_, {tr("&Description:"), "", true}, "description")),
      noun_(NewDropList(screen.noun)),
      adjective_(NewDropList(screen.adjective)),
      places_(new QButtonGroup(this)),
      room_(NewLocationList(screen.room)),
      container_(new QCheckBox(tr("Conta&iner"))),
      wearable_(new QCheckBox(tr("Wear and remo&ve"))),
      weight_(new QLineEdit) {
    form_->addRow(description_);
    description_->SetText(screen_.description);
    AddControl(tr("N&oun:"), noun_, "noun");
    AddControl(tr("Ad&jective:"), adjective_, "adjective");
    AddControl(tr("Initial location:"), NewPlaces(), "initialPlace");
    AddControl(tr("Roo&m:"), room_, "room");
    container_->setObjectName("container");
    container_->setAccessibleName(tr("Container"));
    wearable_->setObjectName("wearable");
    wearable_->setAccessibleName(tr("Wear and remove"));
    form_->addRow("", container_);
    form_->addRow("", wearable_);
    AddControl(tr("Wei&ght:"), weight_, "weight");
    for (QWidget* control : {static_cast<QWidget*>(adjective_), static_cast<QWidget*>(container_),
                             static_cast<QWidget*>(wearable_), static_cast<QWidget*>(weight_)})
        control->setEnabled(screen_.HasAttributes());
    connect(container_, &QCheckBox::clicked, this, [this] {
        Read();
        Guarded([this] { return screen_.ClickContainer(); });
        Show();
    });
    CheckOnLeave(&description_->Field(), [this] { return screen_.LeaveDescription(); });
    CheckOnLeave(room_, [this] { return screen_.LeaveRoom(); });
    CheckOnLeave(weight_, [this] { return screen_.LeaveWeight(); });
    Show();
}

QWidget* ObjectDialog::NewPlaces() {
    auto* group = new QWidget;
    auto* layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int place = 0; place < static_cast<int>(std::size(kPlaces)); ++place) {
        auto* option = new QRadioButton(tr(kPlaces[place]));
        option->setObjectName(QString("initialPlace%1").arg(place));
        option->setAccessibleName(PlainLabel(tr(kPlaces[place])));
        places_->addButton(option, place);
        layout->addWidget(option);
        connect(option, &QRadioButton::clicked, this, [this] {
            Read();
            Show();
        });
    }
    group->setFocusProxy(places_->button(0));
    return group;
}

void ObjectDialog::Read() {
    screen_.description = description_->Text();
    screen_.noun.index = noun_->currentIndex();
    screen_.adjective.index = adjective_->currentIndex();
    if (places_->checkedId() >= 0) screen_.initialPlace = static_cast<InitialPlace>(places_->checkedId());
    screen_.room.text = LocationTyped(*room_);
    screen_.container = container_->isChecked();
    screen_.wearable = wearable_->isChecked();
    screen_.weight = qt::FromQt(weight_->text());
}

void ObjectDialog::Show() {
    if (screen_.initialPlace) places_->button(static_cast<int>(*screen_.initialPlace))->setChecked(true);
    room_->setEnabled(screen_.initialPlace == InitialPlace::InRoom);
    container_->setChecked(screen_.container);
    wearable_->setChecked(screen_.wearable);
    weight_->setText(qt::ToQt(screen_.weight));
}

}  // namespace fabula::ide
