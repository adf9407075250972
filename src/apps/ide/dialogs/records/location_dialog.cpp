#include "ide/dialogs/records/location_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <algorithm>

#include "ide/editors/picture_view.h"
#include "ide/editors/record_picture.h"
#include "qt/look/wrapped_label.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

enum Column { kWord, kTo, kName, kColumns };

constexpr int kGap = 8;
constexpr int kShortestWord = 6;  ///< letters of a list of words

/// Edits a cell by a list in which something else may be typed too.
class ListDelegate final : public QStyledItemDelegate {
  public:
    using MakeList = std::function<QComboBox*(const std::string& text)>;
    ListDelegate(MakeList make, QObject* parent) : QStyledItemDelegate(parent), make_(std::move(make)) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex& index) const override {
        QComboBox* list = make_(qt::FromQt(index.data().toString()));
        list->setParent(parent);
        return list;
    }
    /// The cell may be narrower than what is edited in it.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex&) const override {
        QRect place = option.rect;
        place.setWidth(std::max(place.width(), editor->sizeHint().width()));
        editor->setGeometry(place);
    }
    void setEditorData(QWidget*, const QModelIndex&) const override {}  // made with its text
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
        model->setData(index, qt::ToQt(LocationTyped(*static_cast<QComboBox*>(editor))));
    }

  private:
    MakeList make_;
};

QComboBox* NewWordList(const authoring::ComboBox& box) {
    auto* list = new QComboBox;
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(kShortestWord);
    for (const authoring::ListItem& item : box.items)
        list->addItem(qt::ToQt(item.text), qt::ToQt(item.text));
    list->setEditText(qt::ToQt(box.text));
    return list;
}

void Name(QWidget* control, const char* name, const QString& accessibleName) {
    control->setObjectName(name);
    control->setAccessibleName(accessibleName);
}

}  // namespace

LocationDialog::LocationDialog(authoring::LocationScreen& screen, QWidget* parent)
    : RecordDialog(screen, {}, "frmvellocation.html", parent),
      screen_(screen),
      editing_(screen.Adventure()),
      shortDescription_(new MarkupEdit(
          editing_, {tr("&Short description:"), tr("Converted Short Description"), true, true},
          "shortDescription")),
      description_(new MarkupEdit(
          editing_, {tr("&Description:"), tr("Converted Location Description"), true}, "description")),
      rows_(new QTableWidget(0, kColumns)),
      word_(NewWordList(screen.exitWord)),
      location_(NewLocationList(screen.exitPlace)),
      andBack_(new QCheckBox(tr("and &back"))),
      whatAddDoes_(new qt::WrappedLabel(QString())),
      exits_(new QLineEdit),
      picture_(new QLineEdit),
      pictureView_(new PictureView) {
    form_->addRow(shortDescription_);
    form_->addRow(description_);
    BeginColumn();
    AddExits();
    AddPicture();
    AddNeighbours();
    CheckOnLeave(&shortDescription_->Field(), [this] { return screen_.LeaveShortDescription(); });
    CheckOnLeave(&description_->Field(), [this] { return screen_.LeaveDescription(); });
    CheckOnLeave(exits_, [this] { return screen_.LeaveExits(); });
    ShowRecord();
}

void LocationDialog::AddExits() {
    AddNewExit();
    rows_->setHorizontalHeaderLabels({tr("Exit"), tr("To"), tr("Leads to")});
    rows_->verticalHeader()->hide();
    const int letter = rows_->fontMetrics().averageCharWidth();
    rows_->setColumnWidth(kWord, 2 * kShortestWord * letter);
    rows_->setColumnWidth(kTo, 3 * kShortestWord * letter / 2);
    rows_->horizontalHeader()->setSectionResizeMode(kName, QHeaderView::Stretch);
    rows_->setWordWrap(false);
    rows_->verticalHeader()->setDefaultSectionSize(rows_->fontMetrics().height() * 3 / 2);
    rows_->setSelectionBehavior(QAbstractItemView::SelectRows);
    rows_->setTabKeyNavigation(false);
    rows_->setMinimumHeight(6 * rows_->fontMetrics().lineSpacing());
    rows_->setItemDelegateForColumn(kWord, new ListDelegate(
                                               [this](const std::string& text) {
                                                   return NewWordList({screen_.exitWord.items, text});
                                               },
                                               this));
    rows_->setItemDelegateForColumn(kTo, new ListDelegate(
                                             [this](const std::string& text) {
                                                 return NewLocationList({screen_.exitPlace.items, text});
                                             },
                                             this));
    connect(rows_, &QTableWidget::cellChanged, this, [this] { ReadRows(); });
    AddControl(tr("&Exits:"), rows_, "exitRows");
    AddControl(tr("As one &line:"), exits_, "exits");
    connect(exits_, &QLineEdit::textEdited, this, [this] {
        screen_.exits = qt::FromQt(exits_->text());
        ShowRows();
    });
}

/// Above the others: in a pane it is in sight without scrolling.
void LocationDialog::AddNewExit() {
    Name(word_, "exitWord", tr("Exit word"));
    Name(location_, "exitPlace", tr("Location that the exit leads to"));
    Name(andBack_, "andBack", tr("and back"));
    andBack_->setToolTip(tr("The other location gets an exit in the opposite direction"));
    word_->lineEdit()->setPlaceholderText(tr("Word"));
    location_->lineEdit()->setPlaceholderText(tr("Number or name"));
    auto* add = NewButton(tr("&Add"), "add");
    auto* remove = NewButton(tr("&Remove"), "remove");
    connect(add, &QPushButton::clicked, this, [this] { AddExit(); });
    word_->installEventFilter(this);
    location_->installEventFilter(this);
    connect(remove, &QPushButton::clicked, this, [this] { RemoveRow(); });
    auto* adding = new QGridLayout;
    adding->setSpacing(kGap);
    adding->addWidget(word_, 0, 0, 1, 2);
    adding->addWidget(location_, 0, 2, 1, 2);
    adding->addWidget(add, 1, 0);
    adding->addWidget(remove, 1, 1);
    adding->addWidget(andBack_, 1, 2);
    adding->addWidget(whatAddDoes_, 2, 0, 1, 4);
    adding->setColumnStretch(3, 1);
    form_->addRow(tr("New exit:"), adding);

    whatAddDoes_->setObjectName("whatAddDoes");
    whatAddDoes_->setAccessibleDescription(tr("What becomes of the exit that is typed"));
    whatAddDoes_->setTextFormat(Qt::PlainText);
    for (const QComboBox* box : {word_, location_})
        connect(box, &QComboBox::editTextChanged, this, [this] { ReadNewExit(); });
    connect(andBack_, &QCheckBox::clicked, this, [this](bool on) {
        screen_.SetAndBack(on);
        ShowNewExit();
    });
}

void LocationDialog::ReadNewExit() {
    if (showing_) return;
    screen_.exitWord.text = qt::FromQt(word_->currentText());
    screen_.exitPlace.text = LocationTyped(*location_);
    ShowNewExit();
}

/// What is told of the exit is told of the fields that it is typed into, for who listens to them.
void LocationDialog::ShowNewExit() {
    andBack_->setChecked(screen_.AndBack());
    const QString told = qt::ToQt(screen_.WhatAddDoes());
    whatAddDoes_->setText(told);
    whatAddDoes_->setVisible(!told.isEmpty());
    for (QComboBox* box : {word_, location_}) {
        box->setAccessibleDescription(told);
        box->lineEdit()->setAccessibleDescription(told);
    }
}

void LocationDialog::AddPicture() {
    auto* choose = NewButton(tr("&Choose..."), "choosePicture");
    auto* clear = NewButton(tr("&No picture"), "clearPicture");
    picture_->setReadOnly(true);
    AddControl(tr("&Picture:"), picture_, "picture");
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(kGap);
    buttons->addWidget(choose);
    buttons->addWidget(clear);
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * kGap);
    row->addLayout(buttons);
    row->setAlignment(buttons, Qt::AlignTop);
    row->addWidget(pictureView_, 1, Qt::AlignTop);
    row->addStretch();
    form_->addRow("", row);
    connect(choose, &QPushButton::clicked, this, [this] {
        Guarded([this] {
            screen_.ChoosePicture();
            return true;
        });
        ShowPicture();
    });
    connect(clear, &QPushButton::clicked, this, [this] {
        screen_.ClearPicture();
        ShowPicture();
    });
}

/// A location without an image of its own shows what is drawn for it.
void LocationDialog::ShowDrawing() {
    if (!screen_.picture.empty() || !screen_.Adventure().GraphicsOn()) return;
    pictureView_->Show(DrawnPicture(screen_.Adventure(), screen_.Key().key));
}

void LocationDialog::ShowPicture() {
    // Each check shows the fields again; a picture is read when it is another one.
    if (picture_->text() == qt::ToQt(screen_.picture)) return;
    picture_->setText(qt::ToQt(screen_.picture));
    pictureView_->Show(screen_.Adventure().GameDir(), screen_.picture);
    ShowDrawing();
}

void LocationDialog::AddNeighbours() {
    auto* list = new QListWidget;
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setMinimumHeight(3 * list->fontMetrics().lineSpacing());
    list->setMaximumHeight(5 * list->fontMetrics().lineSpacing());
    AddControl(tr("Leads &here:"), list, "leadsHere");
    neighbours_ = list;
}

void LocationDialog::ShowNeighbours() {
    neighbours_->clear();
    for (const authoring::Neighbour& from : screen_.LeadsHere()) {
        neighbours_->addItem(
            tr("%1 - %2, by %3").arg(from.location.value).arg(qt::ToQt(from.name), qt::ToQt(from.word)));
    }
    if (screen_.LeadsHere().empty()) neighbours_->addItem(tr("No exit leads here."));
}

std::optional<authoring::NamedRecord> LocationDialog::NamedAtCursor() {
    using authoring::NamedByNumber;
    Read();
    const QWidget* const at = focusWidget();
    if (at == word_) return screen_.NamedWordOf(screen_.exitWord.text);
    if (at == location_) return NamedByNumber(store::TableNum::Locations, screen_.exitPlace.text);
    if (at == exits_)
        return screen_.NamedInExits(qt::FromQt(exits_->text().left(exits_->cursorPosition())).size());
    if (at == neighbours_) {
        const int row = neighbours_->currentRow();
        if (row < 0 || row >= static_cast<int>(screen_.LeadsHere().size())) return std::nullopt;
        return authoring::NamedRecord{store::TableNum::Locations,
                                      screen_.LeadsHere()[static_cast<std::size_t>(row)].location.value};
    }
    const QTableWidgetItem* cell = at == rows_ ? rows_->currentItem() : nullptr;
    if (cell == nullptr) return std::nullopt;
    if (cell->column() == kWord) return screen_.NamedWordOf(qt::FromQt(cell->text()));
    return NamedByNumber(store::TableNum::Locations, qt::FromQt(rows_->item(cell->row(), kTo)->text()));
}

void LocationDialog::AddExit() {
    Read();
    if (Guarded([this] { return screen_.Add(); })) {
        Show();
        word_->setFocus();
        return;
    }
    if (auto* refused = findChild<QWidget*>(qt::ToQt(screen_.Refused()))) refused->setFocus();
}

/// Enter in the line of an exit that is begun adds the exit: the default button would close the dialog.
bool LocationDialog::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return RecordDialog::eventFilter(receiver, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    const bool isPlain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool begun = !word_->currentText().isEmpty() || !location_->currentText().isEmpty();
    if (!isEnter || !isPlain || !begun) return RecordDialog::eventFilter(receiver, event);
    AddExit();
    return true;
}

void LocationDialog::RemoveRow() {
    std::vector<authoring::ExitRow> rows = screen_.Exits();
    const int row = rows_->currentRow();
    if (row < 0 || row >= static_cast<int>(rows.size())) return;
    rows.erase(rows.begin() + row);
    screen_.SetExits(rows);
    Show();
    rows_->setCurrentCell(std::min(row, rows_->rowCount() - 1), kWord);
}

/// The line takes what was typed into a row.
void LocationDialog::ReadRows() {
    if (showing_) return;
    std::vector<authoring::ExitRow> rows;
    for (int row = 0; row < rows_->rowCount(); ++row) {
        rows.push_back({qt::FromQt(rows_->item(row, kWord)->text().simplified()),
                        qt::FromQt(rows_->item(row, kTo)->text().simplified()), ""});
    }
    screen_.SetExits(rows);
    exits_->setText(qt::ToQt(screen_.exits));
    // The row is being edited until the event is over.
    QMetaObject::invokeMethod(
        this, [this] { ShowRows(); }, Qt::QueuedConnection);
}

void LocationDialog::ShowRows() {
    showing_ = true;
    const std::vector<authoring::ExitRow> exits = screen_.Exits();
    rows_->setRowCount(static_cast<int>(exits.size()));
    for (int row = 0; row < rows_->rowCount(); ++row) {
        const authoring::ExitRow& exit = exits[static_cast<std::size_t>(row)];
        rows_->setItem(row, kWord, new QTableWidgetItem(qt::ToQt(exit.word)));
        rows_->setItem(row, kTo, new QTableWidgetItem(qt::ToQt(exit.location)));
        auto* name = new QTableWidgetItem(qt::ToQt(exit.name));
        name->setFlags(name->flags() & ~Qt::ItemIsEditable);
        rows_->setItem(row, kName, name);
    }
    showing_ = false;
}

void LocationDialog::Read() {
    screen_.shortDescription = shortDescription_->Text();
    screen_.description = description_->Text();
    screen_.exits = qt::FromQt(exits_->text());
    screen_.exitWord.text = qt::FromQt(word_->currentText());
    screen_.exitPlace.text = LocationTyped(*location_);
}

void LocationDialog::ShowOpened() {
    setWindowTitle(tr("Location %1").arg(screen_.Key().key));
    shortDescription_->SetText(screen_.shortDescription);
    description_->SetText(screen_.description);
    picture_->setText(qt::ToQt(screen_.picture));
    pictureView_->Show(screen_.Adventure().GameDir(), screen_.picture);
    ShowDrawing();
    ShowNeighbours();
}

void LocationDialog::Show() {
    showing_ = true;
    exits_->setText(qt::ToQt(screen_.exits));
    if (screen_.exitWord.text.empty()) word_->clearEditText();
    if (screen_.exitPlace.text.empty()) location_->clearEditText();
    // What is to be made is offered from now on.
    for (int item = location_->count(); item < static_cast<int>(screen_.exitPlace.items.size()); ++item) {
        const authoring::ListItem& made = screen_.exitPlace.items[static_cast<std::size_t>(item)];
        location_->addItem(QString("%1 - %2").arg(made.number).arg(qt::ToQt(made.text)), made.number);
    }
    showing_ = false;
    ShowNewExit();
    ShowPicture();
    ShowRows();
}

}  // namespace fabula::ide
