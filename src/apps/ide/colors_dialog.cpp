#include "ide/colors_dialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/strings.h"
#include "text/colours.h"

namespace fabula::ide {
namespace {

QIcon Swatch(int number, int size) {
    const text::Rgb color = text::ColorRGB(number);
    QPixmap square(2 * size, size);
    square.fill(QColor(color.red, color.green, color.blue));
    return square;
}

}  // namespace

ColorsDialog::ColorsDialog(authoring::frmColors& screen, QWidget* parent)
    : QDialog(parent), screen_(screen), current_(new QLabel) {
    setWindowTitle(qt::ToQt(screen.Caption()));
    setProperty("helpPage", "frmcolors.html");
    auto* colors = new QHBoxLayout;
    colors->addWidget(NewColors(0, authoring::frmColors::kNormalColors));
    colors->addWidget(NewColors(authoring::frmColors::kFirstBright, authoring::frmColors::kBrightColors));
    current_->setObjectName("lblCurrent");
    auto* update = new QPushButton("&Update");
    update->setObjectName("cmdUpdate");
    update->setDefault(true);
    auto* exit = new QPushButton("Exit");
    exit->setObjectName("cmdExit");
    exit->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(update);
    buttons->addWidget(exit);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(colors);
    layout->addWidget(current_);
    layout->addLayout(buttons);
    connect(update, &QPushButton::clicked, this, &QDialog::accept);
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    ShowCurrent();
}

QWidget* ColorsDialog::NewColors(int first, std::string_view caption) {
    auto* group = new QGroupBox(qt::ToQt(caption));
    auto* layout = new QVBoxLayout(group);
    const int size = fontMetrics().height();
    for (int number = first; number < first + authoring::frmColors::kFirstBright; ++number) {
        auto* color = new QPushButton(qt::ToQt(text::ColorName(number)));
        color->setObjectName(QString("lblColor%1").arg(number));
        color->setAccessibleName(color->text());
        color->setIcon(Swatch(number, size));
        color->setIconSize({2 * size, size});
        color->setStyleSheet("text-align: left; padding: 4px;");
        color->setAutoDefault(false);
        layout->addWidget(color);
        connect(color, &QPushButton::clicked, this, [this, number] {
            screen_.Click(number);
            ShowCurrent();
        });
    }
    return group;
}

void ColorsDialog::ShowCurrent() {
    current_->setText(qt::ToQt(screen_.CurrentLine()));
}

}  // namespace fabula::ide
