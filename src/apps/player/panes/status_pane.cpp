#include "player/panes/status_pane.h"

#include <QAccessible>
#include <QLabel>
#include <QPainter>

#include "qt/strings.h"

namespace fabula::player {

namespace {

/// One line that is cut, with dots, rather than widening the window.
class StatusLabel final : public QLabel {
  public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QRect room = contentsRect();
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
    }
};

}  // namespace

StatusPane::StatusPane(QWidget* parent) : QStatusBar(parent) {
    setObjectName("statusLine");
    setSizeGripEnabled(false);
    setContentsMargins(0, 0, 6, 0);
    const auto label = [this](const char* name, const char* spoken) {
        auto* made = new StatusLabel(this);
        made->setObjectName(name);
        made->setTextFormat(Qt::PlainText);
        made->setAccessibleName(qt::Translated(spoken));
        made->setAccessibleDescription(qt::Translated(spoken));
        made->setContentsMargins(4, 0, 4, 0);
        return made;
    };
    status_ = label("status", "Status");
    status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    command_ = label("command", "Command");
    location_ = label("location", "Location");
    script_ = label("Status1", "Script");
    sound_ = label("Status2", "Sound");
    addWidget(status_, 1);
    for (QLabel* field : {command_, location_, script_, sound_})
        addPermanentWidget(field);
    for (QLabel* field : {command_, location_, script_, sound_})
        field->hide();
}

void StatusPane::Announce(QLabel& label, const QString& text) {
    if (label.text() == text) return;
    label.setText(text);
    // What is said is the text; while there is none, what would be told here.
    label.setAccessibleName(text.isEmpty() ? label.accessibleDescription() : QString());
    if (text.isEmpty()) return;
    QAccessibleEvent changed(&label, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
    QAccessibleEvent said(&label, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

void StatusPane::Tell(const std::string& sentence) {
    Announce(*status_, qt::Translated(sentence));
    status_->setToolTip(sentence.empty() ? QString() : qt::TipOf(qt::Translated(sentence)));
}

void StatusPane::Show(engine::StatusField field, const std::string& text) {
    QLabel* label = nullptr;
    switch (field) {
        case engine::StatusField::Script:
            label = script_;
            break;
        case engine::StatusField::Sound:
            label = sound_;
            break;
        case engine::StatusField::Command:
            label = command_;
            break;
        case engine::StatusField::Location:
            label = location_;
            break;
    }
    const bool ofTheGame = label == command_ || label == location_;
    const QString shown = ofTheGame ? qt::ToQt(text) : qt::Translated(text);
    Announce(*label, shown);
    label->setToolTip(text.empty() ? QString() : qt::TipOf(shown));
    label->setVisible(!text.empty());
}

}  // namespace fabula::player
