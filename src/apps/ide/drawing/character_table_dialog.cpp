#include "ide/drawing/character_table_dialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

#include "ide/editors/edit_controls.h"
#include "ide/editors/layout.h"
#include "ide/editors/plane_image.h"
#include "platform/error.h"
#include "qt/fitting_size.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr int kScale = 3;

}  // namespace

CharacterTableDialog::CharacterTableDialog(authoring::CharacterSetScreen& screen,
                                           platform::Dialogs& dialogs,
                                           std::function<void(const authoring::ScreenRequest&)> open,
                                           QWidget* parent)
    : ColumnDialog({"", tr("Character Table"), "charactertable.html"}, parent),
      screen_(screen),
      dialogs_(dialogs),
      open_(std::move(open)),
      set_(new QComboBox),
      table_(new QListWidget),
      chosen_(new QLabel) {
    setSizeGripEnabled(true);
    set_->setObjectName("Set");
    for (const int set : screen.Sets())
        set_->addItem(qt::ToQt(screen.NameOf(set)), set);
    auto* label = new QLabel(tr("&Set:"));
    label->setBuddy(set_);
    set_->setAccessibleName(tr("Set"));
    table_->setObjectName("Characters");
    table_->setAccessibleName(tr("Characters of the set"));
    table_->setViewMode(QListView::IconMode);
    table_->setMovement(QListView::Static);
    table_->setResizeMode(QListView::Adjust);
    table_->setUniformItemSizes(true);
    table_->setIconSize(QSize(8, 8) * kScale);
    table_->setSpacing(2);
    table_->installEventFilter(this);
    chosen_->setObjectName("Chosen");
    auto* edit = NewButton(tr("&Edit"), "Edit");
    auto* font = NewButton(tr("&Take from a Font..."), "TakeFont");
    auto* exit = NewButton(tr("Exit"), "exit");
    auto* top = new QHBoxLayout;
    top->addWidget(label);
    top->addWidget(set_, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(chosen_, 1);
    for (QPushButton* button : {edit, font, exit})
        bottom->addWidget(button);
    Column().addLayout(top);
    Column().addWidget(table_, 1);
    Column().addLayout(bottom);
    set_->setCurrentIndex(set_->findData(screen.Set()));
    connect(set_, &QComboBox::currentIndexChanged, this, [this] {
        screen_.Show(set_->currentData().toInt());
        Show();
    });
    connect(table_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (showing_ || row < 0) return;
        screen_.Choose(static_cast<std::size_t>(row));
        chosen_->setText(table_->item(row)->toolTip());
    });
    connect(table_, &QListWidget::itemDoubleClicked, this, [this] { Open(); });
    connect(edit, &QPushButton::clicked, this, [this] { Open(); });
    connect(font, &QPushButton::clicked, this, [this] { TakeFont(); });
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    Show();
    table_->setFocus();
    resize(qt::FittingSize(*this, sizeHint().expandedTo({620, 480})));
}

bool CharacterTableDialog::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Open();
            return true;
        }
    }
    return QDialog::eventFilter(receiver, event);
}

void CharacterTableDialog::Show() {
    showing_ = true;
    table_->clear();
    const QColor ink = ColourOf(pictures::IndexToColour(screen_.Ink()));
    const QColor paper = ColourOf(pictures::IndexToColour(screen_.Paper()));
    for (const pictures::Character& character : screen_.Characters()) {
        const QPixmap picture = QPixmap::fromImage(ImageOfGlyph(character.glyph, ink, paper, kScale));
        // The icon stays as it is when its line is the current one.
        QIcon icon(picture);
        icon.addPixmap(picture, QIcon::Selected);
        auto* item = new QListWidgetItem(icon, QString::number(character.number), table_);
        item->setToolTip(tr("Character %1").arg(character.number));
    }
    table_->setCurrentRow(static_cast<int>(screen_.Chosen()));
    if (table_->currentItem()) chosen_->setText(table_->currentItem()->toolTip());
    showing_ = false;
}

void CharacterTableDialog::Open() {
    const auto request = screen_.Open();
    if (!request) return;
    open_(*request);
    screen_.Read();
    Show();
}

void CharacterTableDialog::TakeFont() {
    try {
        if (screen_.TakeFont()) Show();
    } catch (const Error& error) {
        dialogs_.Tell(error.what(), "Error");
    }
}

}  // namespace fabula::ide
