#include "ide/object_dialog.h"

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

ObjectDialog::ObjectDialog(authoring::frmVelObjects& screen, QWidget* parent)
    : RecordDialog(screen, QString("Object %1").arg(screen.Key().key), "frmvelobjects.html", parent),
      screen_(screen),
      editing_(screen.Adventure()),
      description_(new MarkupEdit(editing_, {"&Description:", "", true}, "txtObjDesc")),
      noun_(NewDropList(screen.cboObjWord)),
      adjective_(NewDropList(screen.cboAdjective)),
      places_(new QButtonGroup(this)),
      room_(NewLocationList(screen.cboInRoom)),
      container_(new QCheckBox("Conta&iner")),
      wearable_(new QCheckBox("Wear and remo&ve")),
      weight_(new QLineEdit) {
    form_->addRow(description_);
    description_->SetText(screen_.txtObjDesc);
    AddControl("N&oun:", noun_, "cboObjWord");
    AddControl("Ad&jective:", adjective_, "cboAdjective");
    AddControl("Initial location:", NewPlaces(), "optInitiaLloc");
    AddControl("Roo&m:", room_, "cboInRoom");
    container_->setObjectName("chkContainer");
    container_->setAccessibleName("Container");
    wearable_->setObjectName("chkWearRemove");
    wearable_->setAccessibleName("Wear and remove");
    form_->addRow("", container_);
    form_->addRow("", wearable_);
    AddControl("Wei&ght:", weight_, "txtWeight");
    for (QWidget* control : {static_cast<QWidget*>(adjective_), static_cast<QWidget*>(container_),
                             static_cast<QWidget*>(wearable_), static_cast<QWidget*>(weight_)})
        control->setEnabled(screen_.HasAttributes());
    connect(container_, &QCheckBox::clicked, this, [this] {
        Read();
        Guarded([this] { return screen_.ClickChkContainer(); });
        Show();
    });
    CheckOnLeave(&description_->Field(), [this] { return screen_.LeaveTxtObjDesc(); });
    CheckOnLeave(room_, [this] { return screen_.LeaveCboInRoom(); });
    CheckOnLeave(weight_, [this] { return screen_.LeaveTxtWeight(); });
    Show();
}

QWidget* ObjectDialog::NewPlaces() {
    auto* group = new QWidget;
    auto* layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int place = 0; place < static_cast<int>(std::size(kPlaces)); ++place) {
        auto* option = new QRadioButton(kPlaces[place]);
        option->setObjectName(QString("optInitiaLloc%1").arg(place));
        option->setAccessibleName(PlainLabel(kPlaces[place]));
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
    screen_.txtObjDesc = description_->Text();
    screen_.cboObjWord.index = noun_->currentIndex();
    screen_.cboAdjective.index = adjective_->currentIndex();
    if (places_->checkedId() >= 0) screen_.optInitiaLloc = static_cast<InitialPlace>(places_->checkedId());
    screen_.cboInRoom.text = LocationTyped(*room_);
    screen_.chkContainer = container_->isChecked();
    screen_.chkWearRemove = wearable_->isChecked();
    screen_.txtWeight = qt::FromQt(weight_->text());
}

void ObjectDialog::Show() {
    if (screen_.optInitiaLloc) places_->button(static_cast<int>(*screen_.optInitiaLloc))->setChecked(true);
    room_->setEnabled(screen_.optInitiaLloc == InitialPlace::InRoom);
    container_->setChecked(screen_.chkContainer);
    wearable_->setChecked(screen_.chkWearRemove);
    weight_->setText(qt::ToQt(screen_.txtWeight));
}

}  // namespace fabula::ide
