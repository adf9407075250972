#include "ide/record_dialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "ide/leave_check.h"
#include "platform/error.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr int kMargin = 16;
constexpr int kGap = 28;  ///< between columns
constexpr int kLettersOfAColumn = 74;
constexpr int kShortestList = 8;  ///< letters
constexpr int kLinesToGrow = 6;   ///< more than a text field needs at least

}  // namespace

RecordDialog::RecordDialog(authoring::RecordScreen& screen, const QString& title, const char* helpPage,
                           QWidget* parent)
    : QDialog(parent), record_(screen), columns_(nullptr), buttons_(new QHBoxLayout) {
    setWindowTitle(title);
    setProperty("helpPage", helpPage);
    setSizeGripEnabled(true);

    auto* page = new QWidget;
    columns_ = new QBoxLayout(QBoxLayout::TopToBottom, page);
    columns_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    BeginColumn();
    auto* scroll = new QScrollArea;
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);
    layout->addLayout(buttons_);
    buttons_->setContentsMargins(kMargin, 0, kMargin, kMargin);
    buttons_->setSpacing(8);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(key)), this);
        connect(shortcut, &QShortcut::activated, this, [this] { ClickUpdate(); });
    }
}

void RecordDialog::BeginColumn() {
    form_ = new QFormLayout;
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form_->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form_->setHorizontalSpacing(12);
    form_->setVerticalSpacing(10);
    columns_->addLayout(form_, 1);
}

/// Side by side, with a line of text that can be read in each.
int RecordDialog::WidthOfColumns() const {
    if (columns_->count() == 1) return kLettersOfAColumn * fontMetrics().averageCharWidth();
    return 2 * kLettersOfAColumn * fontMetrics().averageCharWidth();
}

void RecordDialog::Arrange() {
    const bool sideBySide = columns_->count() > 1 && width() >= WidthOfColumns();
    columns_->setDirection(sideBySide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    columns_->setSpacing(sideBySide ? kGap : form_->verticalSpacing());
}

void RecordDialog::resizeEvent(QResizeEvent* event) {
    Arrange();
    QDialog::resizeEvent(event);
}

void RecordDialog::setVisible(bool visible) {
    if (visible && !placed_) {
        placed_ = true;
        // Made last, they come last for the keyboard too.
        AddButtons();
        resize(sizeHint());
        FocusFirst();
    }
    QDialog::setVisible(visible);
}

void RecordDialog::AddButtons() {
    update_ = new QPushButton("&Update");
    update_->setObjectName("cmdUpdate");
    update_->setDefault(true);
    exit_ = new QPushButton("Exit");
    exit_->setObjectName("cmdExit");
    exit_->setAutoDefault(false);
    buttons_->addStretch();
    buttons_->addWidget(update_);
    buttons_->addWidget(exit_);
    connect(update_, &QPushButton::clicked, this, [this] { ClickUpdate(); });
    connect(exit_, &QPushButton::clicked, this, &QDialog::reject);
}

void RecordDialog::FocusFirst() {
    if (focusWidget()) return;
    for (QWidget* each = nextInFocusChain(); each != this; each = each->nextInFocusChain()) {
        if (each->isEnabled() && (each->focusPolicy() & Qt::TabFocus)) return each->setFocus();
    }
}

QSize RecordDialog::sizeHint() const {
    int height = 0;
    bool grows = false;
    const bool stacked = WidthOfColumns() > screen()->availableSize().width() * 9 / 10;
    for (int column = 0; column < columns_->count(); ++column) {
        const QLayout& form = *columns_->itemAt(column)->layout();
        height = stacked ? height + form.sizeHint().height() : std::max(height, form.sizeHint().height());
        grows = grows || (form.expandingDirections() & Qt::Vertical);
    }
    if (grows) height += kLinesToGrow * fontMetrics().lineSpacing();
    const QSize whole(WidthOfColumns() + 2 * kMargin,
                      height + buttons_->sizeHint().height() + 2 * kMargin + 2);
    return whole.boundedTo(screen()->availableSize() * 9 / 10);
}

void RecordDialog::AddControl(const QString& label, QWidget* control, const char* name) {
    control->setObjectName(name);
    if (control->accessibleName().isEmpty()) control->setAccessibleName(PlainLabel(label));
    auto* caption = new QLabel(label);
    caption->setBuddy(control);
    form_->addRow(caption, control);
}

void RecordDialog::CheckOnLeave(QWidget* control, std::function<bool()> check) {
    new LeaveCheck(*control, [this, check = std::move(check)] {
        Read();
        const bool passed = Guarded(check);
        Show();
        if (!passed) FocusRefused();
    });
}

bool RecordDialog::Guarded(const std::function<bool()>& work) {
    try {
        return work();
    } catch (const Error& error) {
        record_.Dialogs().Tell(error.what(), "Error");
        return false;
    }
}

void RecordDialog::FocusRefused() {
    const std::string_view name = record_.Refused();
    auto* control = findChild<QWidget*>(qt::ToQt(name));
    if (control != nullptr) control->setFocus();
}

void RecordDialog::ClickUpdate() {
    Read();
    bool failed = false;
    const bool stored = Guarded([this, &failed] {
        failed = true;
        const bool done = Update();
        failed = false;
        return done;
    });
    if (stored) return accept();
    Show();
    if (!failed) FocusRefused();
}

QString PlainLabel(QString label) {
    return label.remove('&').remove(':');
}

QPlainTextEdit* NewTextEdit(const std::string& text) {
    auto* edit = new QPlainTextEdit(qt::ToQt(text));
    edit->setTabChangesFocus(true);
    edit->setMinimumHeight(6 * edit->fontMetrics().lineSpacing());
    return edit;
}

QComboBox* NewDropList(const authoring::DropList& list) {
    auto* box = new QComboBox;
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(kShortestList);
    for (const authoring::ListItem& item : list.items)
        box->addItem(qt::ToQt(item.text), item.number);
    box->setCurrentIndex(list.index);
    return box;
}

QComboBox* NewLocationList(const authoring::ComboBox& box) {
    auto* list = new QComboBox;
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(kShortestList);
    for (const authoring::ListItem& item : box.items)
        list->addItem(QString("%1 - %2").arg(item.number).arg(qt::ToQt(item.text)), item.number);
    bool numeric = false;
    const int number = qt::ToQt(box.text).toInt(&numeric);
    const int index = numeric ? list->findData(number) : -1;
    list->setCurrentIndex(index);
    if (index < 0) list->setEditText(qt::ToQt(box.text));
    return list;
}

std::string LocationTyped(const QComboBox& list) {
    const int index = list.findText(list.currentText(), Qt::MatchFixedString);
    return qt::FromQt(index < 0 ? list.currentText() : list.itemData(index).toString());
}

}  // namespace fabula::ide
