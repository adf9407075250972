#include "ide/dialogs/records/word_dialog.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "qt/strings.h"

namespace fabula::ide {
namespace {

/// With a mnemonic each.
constexpr const char* kTypes[] = {"&Verb",        "Adver&b",      "N&oun",   "Ad&jective",
                                  "Pre&position", "&Conjugation", "P&ronoun"};

}  // namespace

WordDialog::WordDialog(authoring::WordScreen& screen, QWidget* parent)
    : RecordDialog(screen, tr("Vocabulary Editor"), "frmvelvocabulary.html", parent),
      screen_(screen),
      word_(new QLineEdit),
      types_(new QButtonGroup(this)),
      number_(new QLineEdit) {
    AddControl(tr("&Word:"), word_, "word");
    if (screen_.ChoosesType()) AddTypes();
    AddControl(tr("Word &#:"), number_, "number");
    auto* help = new QLabel(qt::Translated(screen_.Help()));
    help->setTextFormat(Qt::PlainText);
    help->setWordWrap(true);
    form_->addRow(help);
    number_->setReadOnly(!screen_.EditsNumber());
    CheckOnLeave(word_, [this] { return screen_.LeaveWord(); });
    CheckOnLeave(number_, [this] { return screen_.LeaveNumber(); });
    Show();
}

void WordDialog::AddTypes() {
    auto* group = new QWidget;
    auto* layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int type = 0; type < static_cast<int>(std::size(kTypes)); ++type) {
        auto* option = new QRadioButton(tr(kTypes[type]));
        option->setObjectName(QString("type%1").arg(type));
        option->setAccessibleName(PlainLabel(tr(kTypes[type])));
        types_->addButton(option, type);
        layout->addWidget(option);
        connect(option, &QRadioButton::clicked, this, [this, type] {
            Read();
            screen_.ClickType(static_cast<condacts::WordType>(type));
            Show();
        });
    }
    group->setFocusProxy(types_->button(0));
    AddControl(tr("Type:"), group, "type");
}

void WordDialog::Read() {
    screen_.word = qt::FromQt(word_->text());
    screen_.number = qt::FromQt(number_->text());
}

void WordDialog::Show() {
    word_->setText(qt::ToQt(screen_.word));
    number_->setText(qt::ToQt(screen_.number));
    if (!screen_.type) return;
    if (auto* option = types_->button(*screen_.type)) option->setChecked(true);
}

}  // namespace fabula::ide
