#include "ide/dialogs/settings/setup_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "authoring/settings/setup_texts.h"
#include "ide/dialogs/option_focus.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

using store::AdventureKind;
using store::AdventureSetup;

constexpr int kSetupMargin = 20;
constexpr int kLettersOfALine = 54;
constexpr int kLinesOfAnExplanation = 3;

struct KindOption {
    AdventureKind kind;
    const char* name;
    const char* text;
};

constexpr KindOption kKinds[] = {
    {AdventureKind::Fabula, "fabula", "&Fabula"},
    {AdventureKind::Vel, "vel", "&VEL"},
    {AdventureKind::Marlo, "marlo", "&Marlo"},
};

}  // namespace

SetupDialog::SetupDialog(AdventureSetup& setup, QWidget* parent)
    : ColumnDialog({"adventureSetup", qt::Translated(authoring::kSetupTitle), "frmsetup.html"}, parent),
      setup_(setup),
      explanation_(new QLabel),
      starter_(new QCheckBox(tr("&Begin with the words and entries that most games have"))) {
    Column().setContentsMargins(kSetupMargin, kSetupMargin, kSetupMargin, kSetupMargin);
    Column().setSpacing(6);
    AddTypes(Column());
    AddGraphics(Column());
    AddCharSets(Column());

    explanation_->setObjectName("explanation");
    explanation_->setAccessibleDescription(tr("Explanation"));
    explanation_->setTextFormat(Qt::PlainText);
    explanation_->setWordWrap(true);
    explanation_->setMargin(10);
    explanation_->setFrameShape(QFrame::StyledPanel);
    explanation_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    explanation_->setMinimumWidth(fontMetrics().averageCharWidth() * kLettersOfALine);
    explanation_->setMinimumHeight(fontMetrics().lineSpacing() * kLinesOfAnExplanation + 2 * 10);
    Column().addWidget(explanation_, 1);
    starter_->setObjectName("starter");
    starter_->setAccessibleName(starter_->text().remove('&'));
    starter_->setChecked(true);
    Column().addSpacing(6);
    Column().addWidget(starter_);

    auto* buttons = new QDialogButtonBox;
    auto* execute = buttons->addButton(tr("&Execute"), QDialogButtonBox::AcceptRole);
    execute->setObjectName("execute");
    execute->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel)->setObjectName("exit");
    QObject::connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    Column().addSpacing(12);
    Column().addWidget(buttons);
    Show();
    for (const Option& option : options_) {
        if (!option.button->isChecked()) continue;
        option.button->setFocus();
        Explain(option.button);
        break;
    }
}

void SetupDialog::AskForExisting() {
    starter_->setChecked(false);
    starter_->hide();
    findChild<QPushButton*>("exit")->hide();
}

bool SetupDialog::Starter() const {
    return starter_->isChecked();
}

QBoxLayout* SetupDialog::AddGroup(QBoxLayout& column, const QString& title) {
    auto* heading = new QLabel(title);
    QFont font = heading->font();
    font.setWeight(QFont::DemiBold);
    heading->setFont(font);
    column.addWidget(heading);
    // Buttons that share a parent are one group.
    auto* group = new QWidget;
    group->setAccessibleName(title);
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 10);
    row->setSpacing(24);
    column.addWidget(group);
    return row;
}

QRadioButton* SetupDialog::AddOption(QBoxLayout& row, const char* name, const QString& text,
                                     const QString& group, std::string_view explanation) {
    auto* button = new QRadioButton(text);
    button->setObjectName(name);
    button->setAccessibleName(group + ": " + QString(text).remove('&'));
    button->setAccessibleDescription(qt::Translated(explanation));
    button->setToolTip(qt::Translated(explanation));
    button->installEventFilter(this);
    row.addWidget(button);
    options_.push_back({button, explanation});
    return button;
}

void SetupDialog::AddTypes(QBoxLayout& column) {
    QBoxLayout* row = AddGroup(column, tr("Adventure Type"));
    for (const KindOption& option : kKinds) {
        auto* button = AddOption(*row, option.name, tr(option.text), tr("Adventure Type"),
                                 authoring::ExplainType(option.kind));
        button->setChecked(setup_.Type() == option.kind);
        QObject::connect(button, &QRadioButton::clicked, this, [this, kind = option.kind] {
            setup_.ChooseType(kind);
            Show();
        });
    }
    row->addStretch(1);
}

void SetupDialog::AddGraphics(QBoxLayout& column) {
    QBoxLayout* row = AddGroup(column, tr("Graphics Type"));
    auto* on =
        AddOption(*row, "graphic", tr("&Graphic"), tr("Graphics Type"), authoring::ExplainGraphics(true));
    auto* off = AddOption(*row, "nonGraphic", tr("N&on-Graphic"), tr("Graphics Type"),
                          authoring::ExplainGraphics(false));
    (setup_.Graphics() ? on : off)->setChecked(true);
    QObject::connect(on, &QRadioButton::clicked, this, [this] { setup_.ChooseGraphics(true); });
    QObject::connect(off, &QRadioButton::clicked, this, [this] { setup_.ChooseGraphics(false); });
    row->addStretch(1);
}

void SetupDialog::AddCharSets(QBoxLayout& column) {
    QBoxLayout* row = AddGroup(column, tr("Use Character Sets:"));
    charSetsYes_ = AddOption(*row, "charSetsYes", tr("&Yes"), tr("Use Character Sets"),
                             authoring::ExplainCharSets(true));
    charSetsNo_ = AddOption(*row, "charSetsNo", tr("&No"), tr("Use Character Sets"),
                            authoring::ExplainCharSets(false));
    QObject::connect(charSetsYes_, &QRadioButton::clicked, this, [this] { setup_.ChooseCharSets(true); });
    QObject::connect(charSetsNo_, &QRadioButton::clicked, this, [this] { setup_.ChooseCharSets(false); });
    row->addStretch(1);
}

void SetupDialog::Show() {
    (setup_.CharSets() ? charSetsYes_ : charSetsNo_)->setChecked(true);
    charSetsNo_->setEnabled(setup_.Type() != AdventureKind::Marlo);
    for (const Option& option : options_)
        TabToChosen(*option.button);
}

bool SetupDialog::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::Enter) Explain(receiver);
    return QDialog::eventFilter(receiver, event);
}

void SetupDialog::Explain(const QObject* option) {
    for (const Option& known : options_) {
        if (known.button == option) explanation_->setText(qt::Translated(known.explanation));
    }
}

}  // namespace fabula::ide
