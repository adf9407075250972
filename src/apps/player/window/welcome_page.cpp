#include "player/window/welcome_page.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/strings.h"

namespace fabula::player {

WelcomePage::WelcomePage(std::function<void()> choose, Open open, QWidget* parent)
    : QScrollArea(parent), open_(std::move(open)) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(tr("Start"));
    auto* page = new QWidget;
    auto* title = new QLabel("Fabula");
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 2.2);
    large.setWeight(QFont::DemiBold);
    title->setFont(large);
    auto* hint = new QLabel(tr("Load a game and play it."));
    auto* load = new QPushButton(tr("Load a Game..."));
    load->setDefault(true);
    load->setMinimumHeight(load->sizeHint().height() * 5 / 4);
    QObject::connect(load, &QPushButton::clicked, this, std::move(choose));
    setFocusProxy(load);

    column_ = new QVBoxLayout(page);
    column_->setSpacing(8);
    column_->addStretch(2);
    for (QWidget* line : {static_cast<QWidget*>(title), static_cast<QWidget*>(hint)})
        column_->addWidget(line, 0, Qt::AlignHCenter);
    column_->addSpacing(8);
    column_->addWidget(load, 0, Qt::AlignHCenter);
    column_->addSpacing(16);
    column_->addStretch(3);
    setWidget(page);
}

void WelcomePage::ShowRecent(const std::vector<std::filesystem::path>& files) {
    delete recent_;
    recent_ = new QWidget;
    auto* list = new QVBoxLayout(recent_);
    list->setSpacing(0);
    if (!files.empty()) list->addWidget(new QLabel(tr("Recent games"), recent_), 0, Qt::AlignHCenter);
    for (const std::filesystem::path& file : files) {
        auto* button = new QPushButton(qt::PathToQt(file.stem()).replace('&', "&&"), recent_);
        button->setFlat(true);
        button->setToolTip(qt::TipOf(qt::PathToQt(file)));
        button->setAccessibleName(tr("Load %1").arg(qt::PathToQt(file.stem())));
        QFont underlined = button->font();
        underlined.setUnderline(true);
        button->setFont(underlined);
        QObject::connect(button, &QPushButton::clicked, this, [this, file] { open_(file); });
        list->addWidget(button, 0, Qt::AlignHCenter);
    }
    column_->insertWidget(column_->count() - 1, recent_, 0, Qt::AlignHCenter);
}

}  // namespace fabula::player
