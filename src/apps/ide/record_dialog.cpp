#include "ide/record_dialog.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/error.h"
#include "qt/strings.h"

namespace fabula::ide {

RecordDialog::RecordDialog(authoring::RecordScreen& screen, const QString& title, const char* helpPage,
                           QWidget* parent)
    : QDialog(parent), form_(nullptr), record_(screen), update_(nullptr), exit_(nullptr) {
    setWindowTitle(title);
    setProperty("helpPage", helpPage);
    setSizeGripEnabled(true);

    auto* page = new QWidget;
    form_ = new QFormLayout(page);
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form_->setRowWrapPolicy(QFormLayout::WrapLongRows);
    auto* scroll = new QScrollArea;
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);

    update_ = new QPushButton("&Update");
    update_->setObjectName("cmdUpdate");
    update_->setDefault(true);
    exit_ = new QPushButton("Exit");
    exit_->setObjectName("cmdExit");
    exit_->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(update_);
    buttons->addWidget(exit_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(scroll);
    layout->addLayout(buttons);

    connect(update_, &QPushButton::clicked, this, [this] { ClickUpdate(); });
    connect(exit_, &QPushButton::clicked, this, &QDialog::reject);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(key)), this);
        connect(shortcut, &QShortcut::activated, this, [this] { ClickUpdate(); });
    }
}

QSize RecordDialog::sizeHint() const {
    const QSize form = form_->sizeHint();
    const int width = std::max(form.width(), 60 * fontMetrics().averageCharWidth());
    const QSize whole(width + 40, form.height() + update_->sizeHint().height() + 60);
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
    checks_.emplace_back(control, std::move(check));
    control->installEventFilter(this);
}

bool RecordDialog::Guarded(const std::function<bool()>& work) {
    try {
        return work();
    } catch (const Error& error) {
        record_.Dialogs().Tell(error.what(), "Error");
        return false;
    }
}

/// Where the focus goes is known only after the event.
bool RecordDialog::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            auto* control = static_cast<QWidget*>(object);
            QMetaObject::invokeMethod(
                this, [this, control] { CheckLeft(control); }, Qt::QueuedConnection);
        }
    }
    return QDialog::eventFilter(object, event);
}

void RecordDialog::CheckLeft(QWidget* control) {
    const QWidget* now = focusWidget();
    if (!isVisible() || now == control || now == update_ || now == exit_) return;
    for (const auto& [checked, check] : checks_) {
        if (checked != control) continue;
        Read();
        const bool passed = Guarded(check);
        Show();
        if (!passed) FocusRefused();
        return;
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
    list->setMinimumContentsLength(20);
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
