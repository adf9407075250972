#include "ide/window/panes/findings_pane.h"

#include <QAbstractTableModel>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFont>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>

#include "ide/dialogs/help_pages.h"
#include "platform/error.h"
#include "qt/strings.h"

namespace fabula::ide {

using authoring::FindingKind;
using authoring::FindingLine;

/// The lines of the list, with a column each for the kind, the record and the sentence.
class FindingsModel final : public QAbstractTableModel {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    enum Column { kKind, kWhere, kWhat, kColumns };

    FindingsModel(const authoring::FindingsList& list, QObject* parent)
        : QAbstractTableModel(parent), list_(list) {}

    /// Rows are as high as those of the tables.
    void FitTo(const QFontMetrics& metrics) { rowHeight_ = metrics.height() * 3 / 2; }

    void Reset() {
        beginResetModel();
        endResetModel();
    }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(list_.Lines().size());
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : kColumns;
    }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    static QString TextOf(const FindingLine& line, int column);

    const authoring::FindingsList& list_;
    int rowHeight_ = 0;
};

QVariant FindingsModel::data(const QModelIndex& index, int role) const {
    if (index.row() >= rowCount()) return {};
    const FindingLine& line = list_.Lines()[static_cast<std::size_t>(index.row())];
    if (role == Qt::FontRole && line.off) {
        QFont font;
        font.setItalic(true);
        return font;
    }
    if (role == Qt::SizeHintRole) return QSize(0, rowHeight_);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    const QString text = TextOf(line, index.column());
    return role == Qt::ToolTipRole ? qt::TipOf(text) : text;
}

QString FindingsModel::TextOf(const FindingLine& line, int column) {
    if (column == kWhere) return qt::ToQt(line.where);
    if (column == kKind) {
        const QString code = qt::ToQt(line.code);
        return line.off ? tr("%1 (switched off)").arg(code) : code;
    }
    const QString sentence = qt::Translated(line.text);
    return line.reason.empty() ? sentence : QString("%1 (%2)").arg(sentence, qt::ToQt(line.reason));
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return section == kKind ? tr("Kind") : section == kWhere ? tr("Where") : tr("What");
}

namespace {

constexpr int kUsualLinesOfPane = 16;
constexpr int kFewestLinesOfPane = 8;
constexpr int kRowsThatTellWidths = 300;
constexpr int kWidestPlace = 44;  ///< in letters
constexpr int kMarginOfCell = 16;
constexpr int kLettersOfKind = 20;

/// How a kind is offered: "gap (3)", "gap (3, 1 switched off)", "gap (switched off)".
QString CaptionOf(const FindingKind& kind) {
    const QString code = qt::ToQt(kind.code);
    if (kind.switchedOff) return FindingsPane::tr("%1 (switched off)").arg(code);
    if (kind.off == 0) return QString("%1 (%2)").arg(code).arg(kind.told);
    return FindingsPane::tr("%1 (%2, %3 switched off)").arg(code).arg(kind.told).arg(kind.off);
}

}  // namespace

FindingsPane::FindingsPane(authoring::FindingsList& list, platform::Timers& timers,
                           platform::Dialogs& dialogs, Events events, QWidget* parent)
    : QWidget(parent),
      list_(list),
      dialogs_(dialogs),
      events_(std::move(events)),
      rest_(timers, [this] { Rested(); }),
      model_(new FindingsModel(list, this)),
      title_(new QLabel),
      remark_(new QLabel),
      kind_(new QComboBox),
      view_(new QTreeView),
      none_(new QLabel(tr("Nothing was found."))),
      offHere_(new QAction(tr("Switch Off at This Record..."), this)),
      offKind_(new QAction(tr("Switch Off This Kind in This Adventure..."), this)),
      on_(new QAction(tr("Switch On Again"), this)) {
    setObjectName("FindingsPane");
    setProperty(qt::kHelpPage, kUsesPage);
    setProperty(qt::kHelpAnchor, "findings");
    SetUpHead();
    SetUpList();
    setMinimumHeight(fontMetrics().lineSpacing() * kFewestLinesOfPane);
    setMaximumHeight(fontMetrics().lineSpacing() * kUsualLinesOfPane);
    QObject::connect(offHere_, &QAction::triggered, this, [this] {
        if (const FindingLine* line = Line())
            Switch([this, code = line->code, record = line->record] { list_.SwitchOff(code, record); });
    });
    QObject::connect(offKind_, &QAction::triggered, this,
                     [this] { Switch([this, kind = Kind()] { list_.SwitchOff(kind); }); });
    QObject::connect(on_, &QAction::triggered, this, [this] {
        const std::string kind = Kind();
        const FindingLine* line = Line();
        const auto record = list_.IsOff(kind) || !line ? std::nullopt : std::optional(line->record);
        Switch([this, kind, record] { list_.SwitchOn(kind, record); });
    });
}

QSize FindingsPane::sizeHint() const {
    return {0, maximumHeight()};
}

void FindingsPane::SetUpHead() {
    title_->setObjectName("FindingsTitle");
    title_->setTextFormat(Qt::PlainText);
    title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    remark_->setObjectName("FindingsRemark");
    remark_->setTextFormat(Qt::PlainText);
    remark_->setWordWrap(true);
    kind_->setObjectName("FindingsKind");
    kind_->setAccessibleName(tr("Kind of findings"));
    kind_->setAccessibleDescription(kind_->accessibleName());  // no label tells it
    kind_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    kind_->setMinimumContentsLength(kLettersOfKind);
    auto* menu = new QMenu(this);
    menu->addActions({offHere_, offKind_, on_});
    auto* button = new QPushButton(tr("Switch Off"));
    button->setObjectName("FindingsSwitch");
    button->setToolTip(tr("Switch a finding off in the adventure, or on again"));
    button->setAccessibleName(button->text());
    button->setMenu(menu);
    // The arrow of the menu takes room that the text does not know of.
    button->setMinimumWidth(button->sizeHint().width() + button->fontMetrics().averageCharWidth() * 2);
    QObject::connect(kind_, &QComboBox::currentIndexChanged, this, [this] {
        if (filling_) return;
        list_.Choose(qt::FromQt(kind_->currentData().toString()));
        Show();
    });
    auto* head = new QHBoxLayout;
    head->setContentsMargins(8, 4, 8, 2);
    head->setSpacing(8);
    head->addWidget(title_, 1);
    head->addWidget(kind_);
    head->addWidget(button);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(head);
    column->addWidget(remark_);
    column->addWidget(none_, 1);
    column->addWidget(view_, 1);
    remark_->setContentsMargins(8, 0, 8, 4);
    none_->setObjectName("FindingsNone");
    none_->setAlignment(Qt::AlignCenter);
}

void FindingsPane::SetUpList() {
    view_->setObjectName("FindingsList");
    view_->setAccessibleName(tr("Findings"));
    view_->setModel(model_);
    view_->setRootIsDecorated(false);
    view_->setUniformRowHeights(true);
    view_->setAllColumnsShowFocus(true);
    view_->setFrameShape(QFrame::NoFrame);
    view_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view_->header()->setStretchLastSection(false);
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);
    view_->addActions({offHere_, offKind_, on_});
    QObject::connect(view_, &QTreeView::activated, this, [this] {
        const FindingLine* line = Line();
        if (!line) return;
        // The list may be filled anew by the jump.
        const authoring::Jump jump = line->jump;
        events_.chosen(jump);
    });
    QObject::connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (filling_) return;
        const FindingLine* line = Line();
        current_ = line ? std::optional(*line) : std::nullopt;
        row_ = view_->currentIndex().row();
        ShowActions();
    });
}

void FindingsPane::Open() {
    show();
    if (!list_.IsCurrent() || !list_.IsOfOpenAdventure()) Read();
    Show();
}

void FindingsPane::Follow() {
    if (isHidden()) return rest_.Stop();
    if (!list_.IsOfOpenAdventure()) {
        Read();
        return Show();
    }
    if (list_.IsCurrent()) {
        rest_.Stop();
        // An adventure may have become one that can't be changed.
        return ShowActions();
    }
    rest_.Start(kRest);
}

void FindingsPane::Rested() {
    // What is at work may have changed the adventure by half.
    if (QApplication::activeModalWidget()) return rest_.Start(kRest);
    Read();
    Show();
}

void FindingsPane::Read() {
    rest_.Stop();
    try {
        list_.Read();
    } catch (const Error& error) {
        dialogs_.Tell(error.what(), "Error");
    }
}

void FindingsPane::Show() {
    filling_ = true;
    title_->setText(qt::Translated(list_.Title()));
    const std::string remark = list_.Remark();
    remark_->setText(qt::Translated(remark));
    remark_->setVisible(!remark.empty());
    ShowKinds();
    model_->FitTo(view_->fontMetrics());
    model_->Reset();
    const bool empty = list_.Lines().empty();
    // The keyboard does not go with the list that becomes empty.
    if (empty && view_->hasFocus()) kind_->setFocus();
    view_->setVisible(!empty);
    none_->setVisible(empty);
    const int row = current_ ? list_.Near(*current_, row_) : empty ? -1 : 0;
    if (row >= 0) view_->setCurrentIndex(model_->index(row, 0));
    filling_ = false;
    PlaceColumns();
    ShowActions();
}

void FindingsPane::ShowKinds() {
    kind_->clear();
    int told = 0;
    for (const FindingKind& kind : list_.Kinds())
        told += kind.told;
    kind_->addItem(tr("All kinds (%1)").arg(told), QString());
    for (const FindingKind& kind : list_.Kinds()) {
        kind_->addItem(CaptionOf(kind), qt::ToQt(kind.code));
        kind_->setItemData(kind_->count() - 1, qt::TipOf(qt::Translated(kind.meaning)), Qt::ToolTipRole);
    }
    kind_->setCurrentIndex(std::max(0, kind_->findData(qt::ToQt(list_.Chosen()))));
}

void FindingsPane::ShowActions() {
    const FindingLine* line = Line();
    const std::string kind = Kind();
    const bool can = list_.CanSwitch();
    const bool off = list_.IsOff(kind);
    offHere_->setEnabled(can && line && !line->off);
    offKind_->setEnabled(can && !kind.empty() && !off);
    on_->setEnabled(can && (off || (line && line->off)));
}

/// The sentence takes the room that is left, or as much as it needs.
void FindingsPane::PlaceColumns() {
    const QFontMetrics metrics = view_->fontMetrics();
    int widths[FindingsModel::kColumns] = {};
    for (int column = 0; column < FindingsModel::kColumns; ++column) {
        widths[column] = view_->header()->sectionSizeHint(column);
        for (int row = 0; row < std::min(model_->rowCount(), kRowsThatTellWidths); ++row) {
            const QString text = model_->index(row, column).data().toString();
            widths[column] = std::max(widths[column], metrics.horizontalAdvance(text) + kMarginOfCell);
        }
    }
    int& where = widths[FindingsModel::kWhere];
    int& what = widths[FindingsModel::kWhat];
    const int room = view_->viewport()->width() - widths[FindingsModel::kKind];
    where = std::min(where, std::max(room - what, metrics.averageCharWidth() * kWidestPlace));
    what = std::max(what, room - where);
    for (int column = 0; column < FindingsModel::kColumns; ++column)
        view_->setColumnWidth(column, widths[column]);
}

const FindingLine* FindingsPane::Line() const {
    const int row = view_->currentIndex().row();
    const bool known = row >= 0 && row < static_cast<int>(list_.Lines().size());
    return known ? &list_.Lines()[static_cast<std::size_t>(row)] : nullptr;
}

/// The kind of the current line, or the one that is shown.
std::string FindingsPane::Kind() const {
    const FindingLine* line = Line();
    return line ? std::string(line->code) : list_.Chosen();
}

void FindingsPane::Switch(const std::function<void()>& change) {
    if (!events_.leaves()) return;
    try {
        change();
    } catch (const Error& error) {
        dialogs_.Tell(error.what(), "Error");
    }
    events_.switched();
    Show();
}

void FindingsPane::Focus() {
    if (list_.Lines().empty()) return kind_->setFocus(Qt::OtherFocusReason);
    view_->setFocus(Qt::OtherFocusReason);
}

void FindingsPane::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return events_.left();
    QWidget::keyPressEvent(event);
}

void FindingsPane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    PlaceColumns();
}

}  // namespace fabula::ide
