#include "ide/window/grid/find_bar.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "qt/look/icons.h"
#include "qt/strings.h"

namespace fabula::ide {

FindBar::FindBar(Events events, QWidget* parent)
    : qt::FindBar(events.closed, parent), events_(std::move(events)), fields_(new QComboBox) {
    Wanted().setObjectName("FindBox");
    Wanted().setAccessibleName(tr("Text to find"));
    Wanted().setPlaceholderText(tr("Find"));
    Wanted().setClearButtonEnabled(true);
    fields_->setObjectName("ComboBox");
    fields_->setAccessibleName(tr("Field to find in"));
    fields_->setAccessibleDescription(fields_->accessibleName());  // no label tells it
    fields_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto* in = new QLabel(tr("in"));
    const auto button = [](const char* name, const char* icon, const QString& text) {
        auto* made = new QToolButton;
        made->setObjectName(name);
        made->setIcon(qt::IconOf(icon));
        made->setToolTip(text);
        made->setAccessibleName(text);
        made->setAutoRaise(true);
        made->setFocusPolicy(Qt::TabFocus);
        return made;
    };
    auto* next = button("FindNextButton", "find-next", tr("Find next"));
    auto* leave = button("FindClose", "close", tr("Close the find bar"));

    Row().setContentsMargins(8, 6, 8, 6);
    Row().addWidget(in);
    Row().addWidget(fields_);
    Row().addWidget(next);
    Row().addWidget(leave);

    QObject::connect(&Wanted(), &QLineEdit::textChanged, this, [this] { Tell(); });
    QObject::connect(&Wanted(), &QLineEdit::returnPressed, this, [this] { events_.find(); });
    QObject::connect(fields_, &QComboBox::currentIndexChanged, this, [this] { Tell(); });
    QObject::connect(next, &QToolButton::clicked, this, [this] { events_.find(); });
    QObject::connect(leave, &QToolButton::clicked, this, [this] { Close(); });
}

void FindBar::Tell() {
    if (filling_) return;
    const int field = fields_->currentIndex();
    events_.changed(qt::FromQt(Wanted().text()),
                    field < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(field)));
}

void FindBar::ShowFields(const authoring::FindBox& box) {
    filling_ = true;
    fields_->clear();
    for (const authoring::FindField& field : box.Fields())
        fields_->addItem(qt::Translated(field.title));
    fields_->setCurrentIndex(box.Chosen() ? static_cast<int>(*box.Chosen()) : -1);
    Wanted().setText(qt::ToQt(box.text));
    filling_ = false;
}

}  // namespace fabula::ide
