#include "ide/window/panes/tree_panel.h"

#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QTreeWidgetItemIterator>
#include <algorithm>

#include "ide/window/panes/pane_focus.h"
#include "qt/look/icons.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr int kSmallestTreeIcon = 20;
constexpr int kSort = Qt::UserRole;
constexpr int kIcon = Qt::UserRole + 1;
constexpr int kOpenIcon = Qt::UserRole + 2;

/// Draws the chosen node of a tree without the keyboard like any other on another ground: its icon has
/// no colours for that.
class NodeDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!(option->state & QStyle::State_Selected) || (option->state & QStyle::State_Active)) return;
        option->state &= ~QStyle::State_Selected;
        option->backgroundBrush = option->palette.brush(QPalette::Inactive, QPalette::Highlight);
    }
};

}  // namespace

TreePanel::TreePanel(Choose choose, Choose openInTab, QWidget* parent)
    : QTreeWidget(parent), choose_(std::move(choose)), openInTab_(std::move(openInTab)) {
    setObjectName("Tree");
    setAccessibleName(tr("Tables"));
    setHeaderHidden(true);
    setFrameShape(QFrame::NoFrame);
    setUniformRowHeights(true);
    const int icon = std::max(kSmallestTreeIcon, fontMetrics().height() * 6 / 5);
    setIconSize(QSize(icon, icon));
    setIndentation(18);
    setTabKeyNavigation(false);
    setItemDelegate(new NodeDelegate(this));
    // A folder shows by its icon whether it is open.
    const auto showOpen = [](QTreeWidgetItem* item) {
        const auto name = item->data(0, item->isExpanded() ? kOpenIcon : kIcon).toString();
        item->setIcon(0, qt::IconOf(qt::FromQt(name)));
    };
    QObject::connect(this, &QTreeWidget::itemExpanded, this, showOpen);
    QObject::connect(this, &QTreeWidget::itemCollapsed, this, showOpen);
    QObject::connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (item && !filling_) choose_(item->data(0, kSort).toInt());
    });
}

void TreePanel::Show(const std::vector<authoring::TreeNode>& nodes, int chosen) {
    std::vector<std::string> names;
    for (const authoring::TreeNode& node : nodes)
        names.push_back(node.key + node.name);
    filling_ = true;
    if (names != shown_) Fill(nodes);
    shown_ = std::move(names);
    for (QTreeWidgetItemIterator item(this); *item; ++item) {
        if ((*item)->data(0, kSort).toInt() != chosen) continue;
        setCurrentItem(*item);
        scrollToItem(*item);
        break;
    }
    filling_ = false;
}

int TreePanel::SortOf(const QTreeWidgetItem& item) {
    return item.data(0, kSort).toInt();
}

void TreePanel::initViewItemOption(QStyleOptionViewItem* option) const {
    QTreeWidget::initViewItemOption(option);
    ShowWhetherFocused(*this, *option);
}

void TreePanel::mousePressEvent(QMouseEvent* event) {
    const QTreeWidgetItem* item = itemAt(event->pos());
    const bool withCtrl = event->button() == Qt::LeftButton && event->modifiers() == Qt::ControlModifier;
    if (!item || !(withCtrl || event->button() == Qt::MiddleButton))
        return QTreeWidget::mousePressEvent(event);
    openInTab_(item->data(0, kSort).toInt());
}

void TreePanel::Fill(const std::vector<authoring::TreeNode>& nodes) {
    clear();
    std::vector<QTreeWidgetItem*> items;
    for (const authoring::TreeNode& node : nodes) {
        auto* item = new QTreeWidgetItem({qt::Translated(node.name)});
        item->setIcon(0, qt::IconOf(node.icon));
        item->setData(0, kSort, node.sort);
        item->setData(0, kIcon, qt::ToQt(node.icon));
        item->setData(0, kOpenIcon, qt::ToQt(node.selectedIcon));
        items.push_back(item);
        if (node.parent) {
            items[*node.parent]->addChild(item);
        } else {
            addTopLevelItem(item);
        }
    }
    for (std::size_t node = 0; node < nodes.size(); ++node)
        items[node]->setExpanded(nodes[node].expanded);
}

}  // namespace fabula::ide
