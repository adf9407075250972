#include "ide/dialogs/jobs/preview_dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "ide/editors/edit_controls.h"
#include "ide/printing/sheet_view.h"
#include "platform/error.h"
#include "qt/fitting_size.h"
#include "qt/help/help_request.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr int kPreviewMargin = 12;
constexpr QSize kPreviewSize(860, 700);

}  // namespace

PreviewDialog::PreviewDialog(listings::PrintPreview& preview, const PrintServices& services,
                             QWidget* parent)
    : ColumnDialog({"PrintPreview", qt::Translated(preview.Title()), "frmprintpreview.html"}, parent),
      preview_(preview),
      services_(services),
      place_(new QLabel(tr("Making the pages..."))),
      scroll_(new QScrollArea),
      sheet_(new SheetView) {
    auto* moves = new QHBoxLayout;
    first_ = AddButton(*moves, tr("&First"), "first", &PreviewDialog::First);
    previous_ = AddButton(*moves, tr("P&rev"), "previous", &PreviewDialog::Previous);
    next_ = AddButton(*moves, tr("&Next"), "next", &PreviewDialog::Next);
    last_ = AddButton(*moves, tr("&Last"), "last", &PreviewDialog::Last);
    moves->addStretch();
    place_->setObjectName("place");
    place_->setAccessibleDescription(tr("Page"));
    moves->addWidget(place_);
    auto* others = new QHBoxLayout;
    print_ = AddButton(*others, tr("&Print"), "print", &PreviewDialog::Print);
    plus_ = AddButton(*others, tr("Pl&us"), "plus", &PreviewDialog::Plus);
    minus_ = AddButton(*others, tr("&Minus"), "minus", &PreviewDialog::Minus);
    AddButton(*others, tr("Exit"), "exit", &PreviewDialog::Leave);
    others->addStretch();
    sheet_->setObjectName("sheet");
    scroll_->setObjectName("pages");
    scroll_->setAccessibleName(tr("The page"));
    scroll_->setWidget(sheet_);
    scroll_->setAlignment(Qt::AlignHCenter);
    scroll_->setBackgroundRole(QPalette::Dark);
    scroll_->installEventFilter(this);
    Column().setContentsMargins(kPreviewMargin, kPreviewMargin, kPreviewMargin, kPreviewMargin);
    Column().addLayout(moves);
    Column().addLayout(others);
    Column().addWidget(scroll_, 1);
    resize(qt::FittingSize(*this, kPreviewSize));
    ShowPage();
    scroll_->setFocus();
}

QPushButton* PreviewDialog::AddButton(QHBoxLayout& buttons, const QString& text, const char* name,
                                      void (PreviewDialog::*click)()) {
    auto* button = NewButton(text, name);
    buttons.addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, click] { (this->*click)(); });
    return button;
}

void PreviewDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (begun_) return;
    begun_ = true;
    // The window is drawn before the pages are made.
    QTimer::singleShot(0, this, [this] { Run(); });
}

void PreviewDialog::Run() {
    try {
        preview_.Run();
        made_ = true;
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
        return reject();
    }
    ShowPage();
}

/// The pane that scrolls would take these keys for itself.
bool PreviewDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && TakeKey(static_cast<QKeyEvent*>(event)->key())) return true;
    return QDialog::eventFilter(watched, event);
}

void PreviewDialog::keyPressEvent(QKeyEvent* event) {
    if (!TakeKey(event->key())) QDialog::keyPressEvent(event);
}

bool PreviewDialog::TakeKey(int key) {
    constexpr std::pair<Qt::Key, void (PreviewDialog::*)()> kKeys[] = {
        {Qt::Key_Home, &PreviewDialog::First},      {Qt::Key_End, &PreviewDialog::Last},
        {Qt::Key_PageUp, &PreviewDialog::Previous}, {Qt::Key_PageDown, &PreviewDialog::Next},
        {Qt::Key_Plus, &PreviewDialog::Plus},       {Qt::Key_Minus, &PreviewDialog::Minus},
    };
    for (const auto& [each, move] : kKeys) {
        if (each != key) continue;
        (this->*move)();
        return true;
    }
    return false;
}

void PreviewDialog::ShowPage() {
    first_->setEnabled(made_ && preview_.CanGoBack());
    previous_->setEnabled(made_ && preview_.CanGoBack());
    next_->setEnabled(made_ && preview_.CanGoOn());
    last_->setEnabled(made_ && preview_.CanGoOn());
    print_->setEnabled(made_);
    plus_->setEnabled(made_ && preview_.CanGrow());
    minus_->setEnabled(made_ && preview_.CanShrink());
    // A button that is switched off would lose the keyboard to its neighbour.
    const auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (button && !button->isEnabled()) scroll_->setFocus();
    if (!made_) return;
    place_->setText(
        tr("Page %1 of %2, %3 %").arg(preview_.Page()).arg(preview_.PageCount()).arg(preview_.Percent()));
    sheet_->Show(preview_.ShownSheet(), preview_.Pages().Columns(), preview_.Percent());
    scroll_->verticalScrollBar()->setValue(0);
}

void PreviewDialog::First() {
    preview_.First();
    ShowPage();
}

void PreviewDialog::Previous() {
    preview_.Previous();
    ShowPage();
}

void PreviewDialog::Next() {
    preview_.Next();
    ShowPage();
}

void PreviewDialog::Last() {
    preview_.Last();
    ShowPage();
}

void PreviewDialog::Plus() {
    preview_.Plus();
    ShowPage();
}

void PreviewDialog::Minus() {
    preview_.Minus();
    ShowPage();
}

void PreviewDialog::Print() {
    try {
        services_.print(preview_.Pages(), qt::ToQt(preview_.JobTitle()), this);
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
}

}  // namespace fabula::ide
