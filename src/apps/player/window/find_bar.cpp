#include "player/window/find_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace fabula::player {

FindBar::FindBar(Handlers handlers, QWidget* parent)
    : qt::FindBar(
          [this] {
              hide();
              handlers_.closed();
          },
          parent),
      handlers_(std::move(handlers)),
      answer_(new QLabel) {
    Row().setContentsMargins(12, 6, 12, 6);
    auto* label = new QLabel(tr("Fi&nd:"));
    label->setBuddy(&Wanted());
    Wanted().setObjectName("FindText");
    Wanted().setAccessibleName(tr("Words to find in the text"));
    answer_->setObjectName("FindAnswer");
    const auto button = [&](const char* name, const QString& text, std::function<void()> act) {
        auto* made = new QPushButton(text);
        made->setObjectName(name);
        QObject::connect(made, &QPushButton::clicked, this, std::move(act));
        return made;
    };
    Row().insertWidget(0, label);
    Row().addWidget(answer_);
    Row().addWidget(button("FindUp", tr("&Before"), [this] { Find(true); }));
    Row().addWidget(button("FindDown", tr("Ne&xt"), [this] { Find(false); }));
    Row().addWidget(button("FindClose", tr("&Close"), [this] { Close(); }));
    QObject::connect(&Wanted(), &QLineEdit::returnPressed, this, [this] { Find(true); });
    hide();
}

void FindBar::Find(bool backwards) {
    if (Wanted().text().isEmpty()) return Ask();
    const bool found = handlers_.find(Wanted().text(), backwards);
    const QString answer = found ? QString() : tr("Not found.");
    if (answer == answer_->text()) return;
    answer_->setText(answer);
    if (found) return;
    QAccessibleEvent said(answer_, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

}  // namespace fabula::player
