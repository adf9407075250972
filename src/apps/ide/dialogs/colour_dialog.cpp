#include "ide/dialogs/colour_dialog.h"

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
#include "qt/strings.h"
#include "text/colours.h"

namespace fabula::ide {

/// Framed, so that it can be told from any window.
QIcon ColourSwatch(int number, int height) {
    const text::Rgb color = text::ColorRGB(number);
    QPixmap patch(2 * height, height);
    patch.fill(Qt::gray);
    QPainter(&patch).fillRect(patch.rect().adjusted(1, 1, -1, -1),
                              QColor(color.red, color.green, color.blue));
    return patch;
}

ColourDialog::ColourDialog(authoring::ColourScreen& screen, QWidget* parent)
    : QDialog(parent), screen_(screen), chosen_(new QButtonGroup(this)), current_(new QLabel) {
    setWindowTitle(qt::Translated(screen.Caption()));
    setProperty("helpPage", "frmcolors.html");
    auto* colors = new QHBoxLayout;
    colors->addWidget(NewColours(0, authoring::ColourScreen::kNormalColours));
    colors->addWidget(
        NewColours(authoring::ColourScreen::kFirstBright, authoring::ColourScreen::kBrightColours));
    current_->setObjectName("current");
    colors->setSpacing(16);
    auto* row = new QHBoxLayout;
    const auto [update, exit] = AddUpdateAndExit(*row);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kDialogMargin, kDialogMargin, kDialogMargin, kDialogMargin);
    layout->setSpacing(12);
    layout->addLayout(colors);
    layout->addWidget(current_);
    layout->addLayout(row);
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
        auto* color = new QToolButton;
        color->setText(qt::Translated(text::ColorName(number)));
        color->setObjectName(QString("colour%1").arg(number));
        color->setAccessibleName(color->text());
        color->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        color->setIcon(ColourSwatch(number, size));
        color->setIconSize({2 * size, size});
        color->setAutoRaise(true);
        color->setCheckable(true);
        color->setFocusPolicy(Qt::StrongFocus);
        color->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        color->installEventFilter(this);
        layout->addWidget(color);
        chosen_->addButton(color, number);
        connect(color, &QToolButton::clicked, this, [this, number] {
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
