#include "ide/dialogs/settings/colour_dialog.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "ide/dialogs/update_and_exit.h"
#include "ide/editors/layout.h"
#include "qt/colours.h"
#include "qt/strings.h"

namespace fabula::ide {

/// Framed, so that it can be told from any window.
QIcon ColourSwatch(int number, int height) {
    QPixmap patch(2 * height, height);
    patch.fill(Qt::gray);
    QPainter(&patch).fillRect(patch.rect().adjusted(1, 1, -1, -1), qt::ToQt(text::ColourRGB(number)));
    return patch;
}

ColourDialog::ColourDialog(authoring::ColourScreen& screen, QWidget* parent)
    : ColumnDialog({"", qt::Translated(screen.Caption()), "frmcolors.html"}, parent),
      screen_(screen),
      chosen_(new QButtonGroup(this)),
      current_(new QLabel) {
    auto* colours = new QHBoxLayout;
    colours->addWidget(NewColours(0, authoring::ColourScreen::kNormalColours));
    colours->addWidget(
        NewColours(authoring::ColourScreen::kFirstBright, authoring::ColourScreen::kBrightColours));
    current_->setObjectName("current");
    colours->setSpacing(16);
    auto* row = new QHBoxLayout;
    const auto [update, exit] = AddUpdateAndExit(*row);
    Column().setSpacing(12);
    Column().addLayout(colours);
    Column().addWidget(current_);
    Column().addLayout(row);
    connect(update, &QPushButton::clicked, this, &QDialog::accept);
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    ShowCurrent();
    chosen_->button(screen_.Current())->setFocus();
}

QWidget* ColourDialog::NewColours(int first, std::string_view caption) {
    auto* group = new QGroupBox(qt::Translated(caption));
    auto* layout = new QVBoxLayout(group);
    layout->setSpacing(4);
    const int size = fontMetrics().height();
    for (int number = first; number < first + authoring::ColourScreen::kFirstBright; ++number) {
        auto* colour = new QToolButton;
        colour->setText(qt::Translated(text::ColourName(number)));
        colour->setObjectName(QString("colour%1").arg(number));
        colour->setAccessibleName(colour->text());
        colour->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        colour->setIcon(ColourSwatch(number, size));
        colour->setIconSize({2 * size, size});
        colour->setAutoRaise(true);
        colour->setCheckable(true);
        colour->setFocusPolicy(Qt::StrongFocus);
        colour->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        colour->installEventFilter(this);
        layout->addWidget(colour);
        chosen_->addButton(colour, number);
        connect(colour, &QToolButton::clicked, this, [this, number] {
            screen_.Click(number);
            ShowCurrent();
        });
    }
    return group;
}

/// The first click of two has chosen the colour.
bool ColourDialog::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::MouseButtonDblClick) return QDialog::eventFilter(receiver, event);
    accept();
    return true;
}

void ColourDialog::ShowCurrent() {
    chosen_->button(screen_.Current())->setChecked(true);
    current_->setText(qt::Translated(screen_.CurrentLine()));
}

}  // namespace fabula::ide
