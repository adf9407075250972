#include "qt/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>

namespace fabula::qt {

FindBar::FindBar(std::function<void()> closed, QWidget* parent)
    : QWidget(parent), closed_(std::move(closed)), wanted_(new QLineEdit), row_(new QHBoxLayout(this)) {
    setObjectName("FindBar");
    row_->addWidget(wanted_, 1);
}

void FindBar::Ask() {
    show();
    wanted_->setFocus();
    wanted_->selectAll();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return Close();
    QWidget::keyPressEvent(event);
}

}  // namespace fabula::qt
