#include "ide/drawing/command_list.h"

#include <QAbstractListModel>
#include <QColor>
#include <QCoreApplication>
#include <QFont>

#include "qt/strings.h"

namespace fabula::ide {

class CommandListModel final : public QAbstractListModel {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    CommandListModel(const authoring::PictureEditor& editor, QObject* parent)
        : QAbstractListModel(parent), editor_(editor) {}

    void Reset() {
        beginResetModel();
        endResetModel();
    }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(editor_.Commands().size()) + 1;
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::EditRole && index.row() > 0)
            return qt::ToQt(editor_.CommandText(static_cast<std::size_t>(index.row() - 1)));
        if (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != Qt::AccessibleTextRole) return {};
        if (index.row() == 0) return tr("START    The empty picture");
        const auto command = static_cast<std::size_t>(index.row() - 1);
        const auto& fault = editor_.Fault();
        QString text = qt::ToQt(editor_.CommandText(command));
        if (fault && fault->command == editor_.Commands()[command])
            return text + "    \u26A0 " + qt::Translated(fault->message);
        const QString words = qt::Translated(editor_.CommandInWords(command));
        return words.isEmpty() ? text : text + "    " + words;
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override {
        const Qt::ItemFlags usual = QAbstractListModel::flags(index);
        return index.row() > 0 ? usual | Qt::ItemIsEditable : usual;
    }

    /// The line shows the new command when the list is shown anew.
    bool setData(const QModelIndex& index, const QVariant& value, int) override {
        typed(static_cast<std::size_t>(index.row() - 1), qt::FromQt(value.toString()));
        return true;
    }

    std::function<void(std::size_t command, const std::string& text)> typed;

  private:
    const authoring::PictureEditor& editor_;
};

CommandList::CommandList(const authoring::PictureEditor& editor, QWidget* parent)
    : QListView(parent), editor_(editor), model_(new CommandListModel(editor, this)) {
    setObjectName("Commands");
    setAccessibleName(tr("Commands of the picture"));
    setModel(model_);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    setAlternatingRowColors(true);
    setMinimumHeight(5 * fontMetrics().lineSpacing());
    // Once the line's editor has closed, since what follows makes the lines anew.
    model_->typed = [this](std::size_t command, const std::string& text) {
        QMetaObject::invokeMethod(
            this, [this, command, text] { changed(command, text); }, Qt::QueuedConnection);
    };
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& row) {
                if (!showing_ && row.isValid()) chosen(static_cast<std::size_t>(row.row()));
            });
}

void CommandList::Show() {
    showing_ = true;
    model_->Reset();
    const QModelIndex current = model_->index(static_cast<int>(editor_.CommandsDrawn()), 0);
    setCurrentIndex(current);
    scrollTo(current);
    showing_ = false;
}

}  // namespace fabula::ide
