#include "ide/dialogs/records/quick_list_dialog.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include "ide/dialogs/help_pages.h"
#include "qt/fitting_size.h"
#include "qt/help/help_request.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr int kQuickListMargin = 8;
constexpr QSize kQuickListSize(640, 420);

bool GoesThroughLines(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

}  // namespace

QuickListDialog::QuickListDialog(const QString& title, const QString& hint, Search search, QWidget* parent)
    : ColumnDialog({"QuickListDialog", title, kMainWindowPage}, parent),
      search_(std::move(search)),
      typed_(new QLineEdit),
      list_(new QListWidget),
      nothing_(new QLabel(tr("Nothing found."))) {
    resize(qt::FittingSize(*this, kQuickListSize));
    typed_->setObjectName("QuickLine");
    typed_->setPlaceholderText(hint);
    typed_->setAccessibleName(title);
    typed_->installEventFilter(this);
    list_->setObjectName("QuickList");
    list_->setAccessibleName(tr("What fits"));
    list_->setUniformItemSizes(true);
    Column().setContentsMargins(kQuickListMargin, kQuickListMargin, kQuickListMargin, kQuickListMargin);
    Column().addWidget(typed_);
    Column().addWidget(list_);
    nothing_->setObjectName("QuickNothing");
    Column().addWidget(nothing_);
    connect(typed_, &QLineEdit::textChanged, this, [this] { Fill(); });
    connect(typed_, &QLineEdit::returnPressed, this, [this] {
        if (list_->currentRow() >= 0) accept();
    });
    connect(list_, &QListWidget::itemActivated, this, &QDialog::accept);
    Fill();
}

std::optional<std::size_t> QuickListDialog::Chosen() const {
    if (list_->currentRow() < 0) return std::nullopt;
    return static_cast<std::size_t>(list_->currentRow());
}

void QuickListDialog::Fill() {
    list_->clear();
    for (const std::string& line : search_(qt::FromQt(typed_->text())))
        list_->addItem(qt::ToQt(line));
    if (list_->count() > 0) list_->setCurrentRow(0);
    nothing_->setVisible(list_->count() == 0);
}

bool QuickListDialog::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver == typed_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (GoesThroughLines(key->key())) return QApplication::sendEvent(list_, event);
    }
    return QDialog::eventFilter(receiver, event);
}

}  // namespace fabula::ide
