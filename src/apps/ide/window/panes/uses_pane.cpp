#include "ide/window/panes/uses_pane.h"

#include <QFont>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr int kLinesInSight = 7;

}  // namespace

UsesPane::UsesPane(std::function<void(const authoring::Jump& jump)> chosen, QWidget* parent)
    : QWidget(parent), chosen_(std::move(chosen)), title_(new QLabel), list_(new QListWidget) {
    setObjectName("UsesPane");
    title_->setObjectName("UsesTitle");
    title_->setTextFormat(Qt::PlainText);
    title_->setContentsMargins(8, 4, 8, 2);
    list_->setObjectName("UsesList");
    list_->setAccessibleName(tr("Uses of the selected record"));
    list_->setUniformItemSizes(true);
    list_->setFrameShape(QFrame::NoFrame);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(title_);
    column->addWidget(list_);
    setFixedHeight(fontMetrics().lineSpacing() * (kLinesInSight + 2));
    QObject::connect(list_, &QListWidget::itemActivated, this, [this] {
        const int row = list_->currentRow();
        if (row < 0 || row >= static_cast<int>(lines_.size())) return;
        // The list is filled anew by the jump.
        const authoring::Jump jump = lines_[static_cast<std::size_t>(row)].jump;
        chosen_(jump);
    });
}

void UsesPane::Show(const std::string& title, std::vector<authoring::JumpLine> lines) {
    lines_ = std::move(lines);
    title_->setText(qt::Translated(title));
    list_->clear();
    for (const authoring::JumpLine& line : lines_) {
        auto* item = new QListWidgetItem(qt::ToQt(line.text), list_);
        if (!line.possible) continue;
        QFont font = item->font();
        font.setItalic(true);
        item->setFont(font);
    }
    if (!lines_.empty()) list_->setCurrentRow(0);
}

void UsesPane::Focus() {
    list_->setFocus(Qt::OtherFocusReason);
}

}  // namespace fabula::ide
