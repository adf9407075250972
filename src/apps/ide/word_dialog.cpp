#include "ide/word_dialog.h"

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

WordDialog::WordDialog(authoring::frmVelVocabulary& screen, QWidget* parent)
    : RecordDialog(screen, "Vocabulary Editor", "frmvelvocabulary.html", parent),
      screen_(screen),
      word_(new QLineEdit),
      types_(new QButtonGroup(this)),
      number_(new QLineEdit) {
    AddControl("&Word:", word_, "txtWord");
    if (screen_.ChoosesType()) AddTypes();
    AddControl("Word &#:", number_, "txtWordNum");
    auto* help = new QLabel(qt::ToQt(screen_.Help()));
    help->setTextFormat(Qt::PlainText);
    help->setWordWrap(true);
    form_->addRow(help);
    word_->setReadOnly(!screen_.EditsWord());
    number_->setReadOnly(!screen_.EditsWord());
    CheckOnLeave(word_, [this] { return screen_.LeaveTxtWord(); });
    CheckOnLeave(number_, [this] { return screen_.LeaveTxtWordNum(); });
    Show();
}

void WordDialog::AddTypes() {
    auto* group = new QWidget;
    auto* layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int type = 0; type < static_cast<int>(std::size(kTypes)); ++type) {
        auto* option = new QRadioButton(kTypes[type]);
        option->setObjectName(QString("optType%1").arg(type));
        option->setAccessibleName(PlainLabel(kTypes[type]));
        types_->addButton(option, type);
        layout->addWidget(option);
        connect(option, &QRadioButton::clicked, this, [this, type] {
            Read();
            screen_.ClickOptType(static_cast<condacts::WordType>(type));
            Show();
        });
    }
    group->setFocusProxy(types_->button(0));
    AddControl("Type:", group, "optType");
}

void WordDialog::Read() {
    screen_.txtWord = qt::FromQt(word_->text());
    screen_.txtWordNum = qt::FromQt(number_->text());
}

void WordDialog::Show() {
    word_->setText(qt::ToQt(screen_.txtWord));
    number_->setText(qt::ToQt(screen_.txtWordNum));
    if (!screen_.optType) return;
    if (auto* option = types_->button(*screen_.optType)) option->setChecked(true);
}

}  // namespace fabula::ide
