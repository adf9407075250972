#include "ide/dialogs/records/process_entry_dialog.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QFormLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include "ide/editors/cond_act_edit.h"
#include "ide/editors/layout.h"
#include "qt/look/wrapped_label.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr int kDefaultWidth = 720;
constexpr int kFewestLines = 4;  ///< of the field of the whole entry
constexpr int kMoreLines = 10;   ///< that it has room for at first
constexpr int kLettersOfAName = 10;
constexpr int kLettersOfANumber = 4;
constexpr int kBelowLabel = 4;

QLabel* MakeNote(const char* name, const QString& what, QWidget* parent) {
    auto* note = new QLabel(parent);
    note->setObjectName(name);
    note->setAccessibleDescription(what);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setMinimumHeight(note->fontMetrics().height());
    return note;
}

bool IsPlainEnter(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    return isEnter && (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

}  // namespace

ProcessEntryDialog::ProcessEntryDialog(authoring::ProcessEntryScreen& screen, QWidget* parent)
    : ScreenDialog(screen, qt::Translated(authoring::ProcessEntryScreen::kCaption), "frmvelcondact.html",
                   parent),
      screen_(screen),
      contents_(new QWidget) {
    setObjectName("ProcessEntryScreen");
    auto* column = new QVBoxLayout(contents_);
    column->setContentsMargins(kDialogMargin, kDialogMargin, kDialogMargin, kDialogMargin);
    column->setSpacing(12);
    column->addLayout(BuildEntry());
    column->addLayout(BuildCondAct());
    column->addLayout(BuildLine(), 1);
    auto* scroll = new QScrollArea;
    scroll->setWidget(contents_);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    SetContents(scroll);
    CheckFields();
    ShowRecord();
}

/// The line tells of its meaning and faults until it goes; what shows them must not have gone before.
ProcessEntryDialog::~ProcessEntryDialog() {
    delete line_;
}

QSize ProcessEntryDialog::sizeHint() const {
    const int moreLines = kMoreLines * line_->fontMetrics().lineSpacing();
    return SizeFor({kDefaultWidth, contents_->heightForWidth(kDefaultWidth) + moreLines});
}

void ProcessEntryDialog::reject() {
    if (!line_->HideOffers()) ScreenDialog::reject();
}

void ProcessEntryDialog::setVisible(bool visible) {
    if (visible && isWindow()) {
        // A new entry begins with its words.
        QWidget* const first = screen_.Key().isNew ? static_cast<QWidget*>(word1_) : line_;
        first->setFocus();
    }
    ScreenDialog::setVisible(visible);
}

bool ProcessEntryDialog::CloseList() {
    return line_->HideOffers();
}

std::optional<authoring::NamedRecord> ProcessEntryDialog::NamedAtCursor() {
    Read();
    const QWidget* const at = focusWidget();
    if (at == line_) return screen_.NamedInLine(line_->CursorByte());
    if (at == word1_) return screen_.NamedByWord(screen_.verb);
    if (at == word2_) return screen_.NamedByWord(screen_.noun);
    if (at == type_) return authoring::NamedByNumber(store::TableNum::ProcDesc, screen_.process);
    if (at == param1_.box) return screen_.NamedByParameter(0);
    if (at == param2_.box) return screen_.NamedByParameter(1);
    return std::nullopt;
}

QComboBox* ProcessEntryDialog::MakeWords(const QString& name, const QString& what,
                                         const authoring::DropList& list) {
    auto* box = new QComboBox(this);
    box->setObjectName(name);
    box->setAccessibleName(what);
    for (const authoring::ListItem& item : list.items)
        box->addItem(qt::ToQt(item.text), item.number);
    box->setCurrentIndex(list.index);
    return box;
}

QLayout* ProcessEntryDialog::BuildEntry() {
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(12);
    form->setVerticalSpacing(10);
    key_ = new QLabel(qt::Translated(screen_.recordKey), this);
    key_->setObjectName("recordKey");
    form->addRow(key_);
    type_ = new QLineEdit(this);
    type_->setObjectName("process");
    type_->setAccessibleName(tr("Process table number"));
    type_->setMaximumWidth(type_->fontMetrics().averageCharWidth() * 12);
    form->addRow(tr("Process &Table #:"), type_);
    word1_ = MakeWords("verb", tr("Verb"), screen_.verb);
    form->addRow(tr("&Verb:"), word1_);
    word2_ = MakeWords("noun", tr("Noun"), screen_.noun);
    form->addRow(tr("&Noun:"), word2_);
    return form;
}

ProcessEntryDialog::ParameterWidgets ProcessEntryDialog::MakeParameter(const QString& name) {
    auto* box = new QComboBox(this);
    box->setObjectName(name);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr);
    box->setMinimumContentsLength(kLettersOfANumber);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* label = new QLabel(this);
    label->setBuddy(box);
    connect(box, &QComboBox::activated, this,
            [box](int item) { box->setEditText(box->itemData(item).toString()); });
    return {label, box};
}

QLayout* ProcessEntryDialog::BuildCondAct() {
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(kBelowLabel);
    condAct_ = new QComboBox(this);
    condAct_->setObjectName("condAct");
    condAct_->setAccessibleName(tr("Condition or action"));
    condAct_->setEditable(true);
    condAct_->setInsertPolicy(QComboBox::NoInsert);
    condAct_->setMinimumContentsLength(kLettersOfAName);
    for (const authoring::ListItem& item : screen_.condAct.items)
        condAct_->addItem(qt::ToQt(item.text));
    condAct_->completer()->setCompletionMode(QCompleter::PopupCompletion);
    condAct_->installEventFilter(this);
    connect(condAct_, &QComboBox::activated, this, [this] { ChooseCondAct(); });
    connect(condAct_->lineEdit(), &QLineEdit::returnPressed, this, [this] {
        if (CompleteCondAct()) ChooseCondAct();
    });
    auto* label = new QLabel(tr("&Cond/Act"), this);
    label->setBuddy(condAct_);
    param1_ = MakeParameter("parameter1");
    param2_ = MakeParameter("parameter2");
    for (const ParameterWidgets& parameter : {param1_, param2_})
        parameter.box->installEventFilter(this);
    add_ = new QPushButton(tr("&Add to Conditions/Actions"), this);
    add_->setObjectName("add");
    add_->setAutoDefault(false);
    connect(add_, &QPushButton::clicked, this, &ProcessEntryDialog::Add);
    grid->addWidget(label, 0, 0);
    grid->addWidget(param1_.label, 0, 1);
    grid->addWidget(param2_.label, 0, 2);
    grid->addWidget(condAct_, 1, 0);
    grid->addWidget(param1_.box, 1, 1);
    grid->addWidget(param2_.box, 1, 2);
    grid->addWidget(add_, 2, 1, 1, 2, Qt::AlignRight);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(2, 3);
    return grid;
}

QLayout* ProcessEntryDialog::BuildLine() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kBelowLabel);
    line_ = new CondActEdit(screen_.Help(), this);
    line_->setObjectName("line");
    line_->setAccessibleName(tr("Combined Condition/Actions"));
    line_->setMinimumHeight(line_->fontMetrics().lineSpacing() * kFewestLines);
    // It gives way to the notes below it before anything has to be scrolled.
    line_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    auto* label = new QLabel(tr("Com&bined Condition/Actions"), this);
    label->setBuddy(line_);
    explained_ = new QListWidget(this);
    explained_->setObjectName("explained");
    explained_->setAccessibleName(tr("Conditions and actions, one by one"));
    explained_->setSelectionMode(QAbstractItemView::NoSelection);
    explained_->setMinimumHeight(explained_->fontMetrics().lineSpacing() * kFewestLines);
    explained_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    connect(line_, &QPlainTextEdit::textChanged, this, [this] { Explain(); });
    meaning_ = MakeNote("meaning", tr("Meaning"), this);
    fault_ = MakeNote("fault", tr("Fault"), this);
    line_->onMeaning = [this](const QString& meaning) { meaning_->setText(meaning); };
    line_->onFault = [this](const QString& fault) { fault_->setText(fault); };
    line_->onNewMessage = [this](const std::string& text) { return NewMessage(text); };
    auto* help = new qt::WrappedLabel(qt::Translated(authoring::ProcessEntryScreen::kHelpLine), this);
    column->addWidget(label);
    column->addWidget(line_, 1);
    column->addWidget(explained_, 1);
    column->addWidget(meaning_);
    column->addWidget(fault_);
    column->addSpacing(kBelowLabel);
    column->addWidget(help);
    return column;
}

void ProcessEntryDialog::ShowParameter(const ParameterWidgets& widgets,
                                       const authoring::ParameterField& field) {
    widgets.label->setText(qt::Translated(field.label));
    widgets.box->setAccessibleName(qt::Translated(field.label));
    widgets.box->setEnabled(field.enabled);
    widgets.box->clear();
    for (const authoring::Completion& item : field.items)
        widgets.box->addItem(qt::ToQt(item.shown), qt::ToQt(item.insert));
    widgets.box->setCurrentIndex(-1);
    widgets.box->setEditText(qt::ToQt(field.text));
    widgets.box->view()->setMinimumWidth(widgets.box->view()->sizeHintForColumn(0) + 24);
}

void ProcessEntryDialog::Show() {
    type_->setText(qt::ToQt(screen_.process));
    condAct_->setEditText(qt::ToQt(screen_.condAct.text));
    ShowParameter(param1_, screen_.parameter1);
    ShowParameter(param2_, screen_.parameter2);
    const QString line = qt::ToQt(screen_.line);
    if (line == line_->toPlainText()) return;
    line_->setPlainText(line);
    line_->moveCursor(QTextCursor::End);
}

void ProcessEntryDialog::ShowOpened() {
    key_->setText(qt::Translated(screen_.recordKey));
    word1_->setCurrentIndex(screen_.verb.index);
    word2_->setCurrentIndex(screen_.noun.index);
}

/// One condition or action to a line, coloured by kind, with what it means.
void ProcessEntryDialog::Explain() {
    explained_->clear();
    for (const authoring::ExplainedCondAct& each :
         screen_.Help().Explain(qt::FromQt(line_->toPlainText()))) {
        const QString meaning = qt::Translated(each.meaning);
        const QString shown =
            meaning.isEmpty() ? qt::ToQt(each.text) : QString("%1    %2").arg(qt::ToQt(each.text), meaning);
        auto* item = new QListWidgetItem(shown, explained_);
        item->setToolTip(qt::TipOf(shown));
        if (!each.isAction && !each.isFault) item->setForeground(palette().color(QPalette::Link));
        if (each.isFault) item->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    }
}

void ProcessEntryDialog::Read() {
    screen_.process = qt::FromQt(type_->text());
    screen_.verb.index = word1_->currentIndex();
    screen_.noun.index = word2_->currentIndex();
    screen_.condAct.text = qt::FromQt(condAct_->currentText());
    screen_.parameter1.text = qt::FromQt(param1_.box->currentText());
    screen_.parameter2.text = qt::FromQt(param2_.box->currentText());
    screen_.line = qt::FromQt(line_->toPlainText());
}

std::optional<condacts::MessageNumber> ProcessEntryDialog::NewMessage(const std::string& text) {
    std::optional<condacts::MessageNumber> number;
    Guarded([&] {
        number = screen_.AddMessage(text);
        return number.has_value();
    });
    return number;
}

void ProcessEntryDialog::CheckFields() {
    CheckInside(type_, [this] { return screen_.LeaveProcess(); });
    CheckInside(condAct_, [this] { return LeaveCondAct(); });
    CheckInside(param1_.box, [this] { return screen_.LeaveParameter1(); });
    CheckInside(param2_.box, [this] { return screen_.LeaveParameter2(); });
    CheckInside(line_, [this] { return screen_.LeaveLine(); });
}

/// Beside the rows the focus may leave for something else than a field: an entry that is begun can wait.
void ProcessEntryDialog::CheckInside(QWidget* field, const std::function<bool()>& check) {
    CheckOnLeave(field, [this, check] { return !isAncestorOf(window()->focusWidget()) || check(); });
}

/// The fields of parameters open only now: Tab has passed over them.
bool ProcessEntryDialog::LeaveCondAct() {
    if (!screen_.LeaveCondAct()) return false;
    Show();
    if (add_->hasFocus() && param1_.box->isEnabled()) param1_.box->setFocus();
    return true;
}

/// A name that opens parameters hands on to the first.
void ProcessEntryDialog::ChooseCondAct() {
    Read();
    const bool fits = Guarded([this] { return screen_.LeaveCondAct(); });
    Show();
    if (!fits) condAct_->setFocus();
    if (param1_.box->isEnabled()) param1_.box->setFocus();
}

/// Makes the beginning of a name the first name that begins so; false where there is nothing to be made.
bool ProcessEntryDialog::CompleteCondAct() {
    const QString typed = condAct_->currentText();
    const QString first = condAct_->completer()->currentCompletion();
    if (typed.isEmpty() || first.isEmpty() || condAct_->findText(typed, Qt::MatchFixedString) >= 0)
        return false;
    condAct_->setEditText(first);
    return true;
}

/// Enter goes on from field to field, and adds behind the last: the default button would store the entry.
bool ProcessEntryDialog::Enter(const QObject* field) {
    if (static_cast<const QComboBox*>(field)->currentText().isEmpty()) return false;
    if (field == condAct_) {
        CompleteCondAct();
        ChooseCondAct();
        return true;
    }
    const bool second = param2_.box->isEnabled() && param2_.box->currentText().isEmpty();
    second ? param2_.box->setFocus() : Add();
    return true;
}

/// Keys and the wheel would step through the closed list of names, and each step would choose one.
bool ProcessEntryDialog::eventFilter(QObject* receiver, QEvent* event) {
    if (IsPlainEnter(*event) && receiver->inherits("QComboBox")) return Enter(receiver);
    if (receiver != condAct_ || condAct_->view()->isVisible()) return false;
    if (event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down && key != Qt::Key_PageUp && key != Qt::Key_PageDown)
        return false;
    condAct_->showPopup();
    return true;
}

void ProcessEntryDialog::Add() {
    Read();
    const bool added = Guarded([this] { return screen_.Add(); });
    Show();
    if (added) condAct_->setFocus();
}

}  // namespace fabula::ide
