#include "ide/dialogs/records/record_dialog.h"

#include <QFormLayout>
#include <QScreen>
#include <QScrollArea>
#include <algorithm>

#include "ide/editors/layout.h"

namespace fabula::ide {
namespace {

constexpr int kColumnGap = 28;  ///< between columns
constexpr int kLettersOfAColumn = 74;
constexpr int kLinesToGrow = 6;  ///< more than a text field needs at least

}  // namespace

RecordDialog::RecordDialog(authoring::RecordScreen& screen, const QString& title, const char* helpPage,
                           QWidget* parent)
    : ScreenDialog(screen, title, helpPage, parent), record_(screen), columns_(nullptr) {
    auto* page = new QWidget;
    columns_ = new QBoxLayout(QBoxLayout::TopToBottom, page);
    columns_->setContentsMargins(kDialogMargin, kDialogMargin, kDialogMargin, kDialogMargin);
    BeginColumn();
    auto* scroll = new QScrollArea;
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    SetContents(scroll);
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
    columns_->setSpacing(sideBySide ? kColumnGap : form_->verticalSpacing());
}

void RecordDialog::resizeEvent(QResizeEvent* event) {
    Arrange();
    QDialog::resizeEvent(event);
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
    return SizeFor({WidthOfColumns() + 2 * kDialogMargin, height + kDialogMargin + 2});
}

void RecordDialog::AddControl(const QString& label, QWidget* control, const char* name) {
    AddToForm(*form_, label, control, name);
}

}  // namespace fabula::ide
