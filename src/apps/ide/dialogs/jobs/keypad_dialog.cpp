#include "ide/dialogs/jobs/keypad_dialog.h"

#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ide/editors/layout.h"
#include "listings/pages/print_screen.h"
#include "qt/help/help_request.h"
#include "qt/strings.h"

namespace fabula::ide {

KeypadDialog::KeypadDialog(platform::Person& person, QWidget* parent)
    : ColumnDialog({"KeypadSize", qt::Translated(listings::kKeypadTitle), "frmtempsize.html"}, parent),
      person_(person) {
    auto* frame = new QGroupBox(qt::Translated(listings::kKeypadFrame));
    auto* sizes = new QVBoxLayout(frame);
    for (const listings::KeypadSize& size : listings::kKeypadSizes) {
        auto* button = new QRadioButton(qt::Translated(size.text));
        button->setObjectName(QString("size%1").arg(sizes_.size() + 1));
        sizes->addWidget(button);
        sizes_.push_back(button);
    }
    sizes_.front()->setChecked(true);
    Column().addWidget(frame);
    auto* go = new QPushButton(tr("&Continue"));
    go->setObjectName("continue");
    go->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(go);
    Column().addLayout(buttons);
    connect(go, &QPushButton::clicked, this, [this] { ClickContinue(); });
    sizes_.front()->setFocus();
}

void KeypadDialog::ClickContinue() {
    std::size_t chosen = 0;
    while (chosen + 1 < sizes_.size() && !sizes_[chosen]->isChecked())
        ++chosen;
    const auto name = listings::TemplateOfSize(chosen, person_);
    if (!name) return reject();
    templateName_ = *name;
    accept();
}

}  // namespace fabula::ide
