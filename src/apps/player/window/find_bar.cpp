#include "player/window/find_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace fabula::player {

FindBar::FindBar(Handlers handlers, QWidget* parent)
    : QWidget(parent), handlers_(std::move(handlers)), wanted_(new QLineEdit), answer_(new QLabel) {
    setObjectName("FindBar");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 6, 12, 6);
    auto* label = new QLabel(tr("Fi&nd:"));
    label->setBuddy(wanted_);
    wanted_->setObjectName("FindText");
    wanted_->setAccessibleName(tr("Words to find in the text"));
    answer_->setObjectName("FindAnswer");
    const auto button = [&](const char* name, const QString& text, std::function<void()> act) {
        auto* made = new QPushButton(text);
        made->setObjectName(name);
        QObject::connect(made, &QPushButton::clicked, this, std::move(act));
        return made;
    };
    row->addWidget(label);
    row->addWidget(wanted_, 1);
    row->addWidget(answer_);
    row->addWidget(button("FindUp", tr("&Before"), [this] { Find(true); }));
    row->addWidget(button("FindDown", tr("Ne&xt"), [this] { Find(false); }));
    row->addWidget(button("FindClose", tr("&Close"), [this] { Close(); }));
    QObject::connect(wanted_, &QLineEdit::returnPressed, this, [this] { Find(true); });
    hide();
}

void FindBar::Open() {
    show();
    wanted_->setFocus();
    wanted_->selectAll();
}

void FindBar::Find(bool backwards) {
    if (wanted_->text().isEmpty()) return Open();
    const bool found = handlers_.find(wanted_->text(), backwards);
    const QString answer = found ? QString() : tr("Not found.");
    if (answer == answer_->text()) return;
    answer_->setText(answer);
    if (found) return;
    QAccessibleEvent said(answer_, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

void FindBar::Close() {
    hide();
    handlers_.closed();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return Close();
    QWidget::keyPressEvent(event);
}

}  // namespace fabula::player
