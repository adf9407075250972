#include "ide/dialogs/records/new_locations_dialog.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "ide/dialogs/update_and_exit.h"
#include "ide/editors/layout.h"
#include "platform/error.h"
#include "qt/look/wrapped_label.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr int kLettersOfALocation = 10;

}  // namespace

NewLocationsDialog::NewLocationsDialog(authoring::NewLocationsScreen& screen, platform::Dialogs& dialogs,
                                       QWidget* parent)
    : ColumnDialog(
          {"NewLocationsScreen", qt::Translated(authoring::NewLocationsScreen::kTitle), "frmnewlocs.html"},
          parent),
      screen_(screen),
      dialogs_(dialogs) {
    auto* told = new qt::WrappedLabel(
        tr("Some of the pictures draw others by GOSUB. Which location does each go to? The "
           "GOSUBs follow. Exit leaves all as it was loaded."));
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(MakeLines());
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    const auto [update, exit] = AddUpdateAndExit(*row, "E&xit");
    Column().setSpacing(10);
    Column().addWidget(told);
    Column().addWidget(scroll, 1);
    Column().addLayout(row);
    QObject::connect(update, &QPushButton::clicked, this, [this] { ClickUpdate(); });
    QObject::connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    if (!fields_.empty()) fields_.front()->setFocus();
}

QWidget* NewLocationsDialog::MakeLines() {
    auto* lines = new QWidget;
    auto* form = new QFormLayout(lines);
    for (const auto& line : screen_.lines) {
        auto* field = new QLineEdit(qt::ToQt(line.goesTo));
        field->setObjectName(QString("goesTo%1").arg(line.number));
        field->setMaximumWidth(fontMetrics().averageCharWidth() * kLettersOfALocation);
        const QString text =
            line.loaded ? tr("Picture %1 goes to:") : tr("Picture %1, drawn by GOSUB, goes to:");
        field->setAccessibleName(text.arg(line.number).remove(':'));
        form->addRow(text.arg(line.number), field);
        fields_.push_back(field);
    }
    return lines;
}

void NewLocationsDialog::ClickUpdate() {
    for (std::size_t i = 0; i < fields_.size(); ++i)
        screen_.lines[i].goesTo = qt::FromQt(fields_[i]->text());
    try {
        if (screen_.Update()) accept();
    } catch (const Error& error) {
        dialogs_.Tell(error.what(), "Error");
    }
}

}  // namespace fabula::ide
