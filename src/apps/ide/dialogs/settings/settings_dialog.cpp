#include "ide/dialogs/settings/settings_dialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QScrollArea>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "ide/dialogs/settings/settings_game_page.h"
#include "ide/dialogs/settings/settings_sound_page.h"
#include "ide/editors/edit_controls.h"
#include "qt/strings.h"

namespace fabula::ide {

using authoring::SettingsScreen;

namespace {

constexpr int kPagesMargin = 12;

struct FieldCheck {
    const char* control;
    bool (SettingsScreen::*check)();
};

/// The fields that are checked when they are left.
constexpr FieldCheck kChecks[] = {
    {"name", &SettingsScreen::LeaveName},
    {"author", &SettingsScreen::LeaveAuthor},
    {"saveName", &SettingsScreen::LeaveSaveName},
    {"version", &SettingsScreen::LeaveVersion},
    {"startPlace", &SettingsScreen::LeaveStartPlace},
    {"maxObjects", &SettingsScreen::LeaveMaxObjects},
    {"maxWeight", &SettingsScreen::LeaveMaxWeight},
    {"font", &SettingsScreen::LeaveFont},
    {"fontSize", &SettingsScreen::LeaveFontSize},
    {"description", &SettingsScreen::LeaveDescription},
    {"contactInfo", &SettingsScreen::LeaveContactInfo},
};

}  // namespace

SettingsDialog::SettingsDialog(SettingsScreen& screen, engine::SoundPlayer& sound, QWidget* parent)
    : ScreenDialog(screen, qt::Translated(SettingsScreen::kCaption), "frmveladvsettings.html", parent),
      screen_(screen),
      pages_(new QTabWidget),
      game_(new SettingsGamePage(screen,
                                 [this](const std::function<void()>& work) {
                                     Guarded([&work] {
                                         work();
                                         return true;
                                     });
                                 })),
      soundPage_(new SettingsSoundPage(screen, sound)),
      source_(NewChoice(screen.source)) {
    pages_->setObjectName("pages");
    pages_->setDocumentMode(true);
    pages_->setAccessibleName(tr("Pages of the settings"));
    pages_->tabBar()->setAccessibleName(pages_->accessibleName());
    AddPage(game_, tr("Adventure Settings"));
    AddPage(soundPage_, tr("Sound"));
    AddPage(NewSourcePage(), tr("Source"));
    auto* frame = new QWidget;
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(kPagesMargin, kPagesMargin, kPagesMargin, 0);
    layout->addWidget(pages_);
    SetContents(frame);
    CheckFields();
    connect(pages_, &QTabWidget::currentChanged, this,
            [this](int page) { screen_.page = static_cast<authoring::SettingsPage>(page); });
    game_->findChild<QWidget*>("name")->setFocus();
}

/// Pages scroll where the screen is small.
void SettingsDialog::AddPage(QWidget* page, const QString& name) {
    auto* scroll = new QScrollArea;
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    pages_->addTab(scroll, name);
}

QWidget* SettingsDialog::NewSourcePage() {
    auto* page = new QWidget;
    auto* form = new QFormLayout(page);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setContentsMargins(16, 16, 16, 16);
    AddToForm(*form, tr("Sou&rce:"), source_, "source");
    return page;
}

void SettingsDialog::CheckFields() {
    for (const FieldCheck& field : kChecks)
        CheckOnLeave(findChild<QWidget*>(field.control),
                     [this, &field] { return (screen_.*field.check)(); });
}

QSize SettingsDialog::sizeHint() const {
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2;
    const int aboveThePage = kPagesMargin + pages_->tabBar()->sizeHint().height() + 2;
    return SizeFor(game_->sizeHint() + QSize(2 * kPagesMargin + scrollBar, aboveThePage));
}

void SettingsDialog::Read() {
    game_->Read();
    soundPage_->Read();
    screen_.source.index = source_->currentIndex();
}

}  // namespace fabula::ide
