#pragma once

#include <QCoreApplication>
#include <QTreeWidget>
#include <functional>
#include <string>
#include <vector>

#include "authoring/desk/grid/table_tree.h"

namespace fabula::ide {

/// The tree of an adventure's tables.
class TreePanel final : public QTreeWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    using Choose = std::function<void(int sort)>;

    /// `choose` is called with the position of a node that the author goes to, and `openInTab` with that of
    /// one that is wanted in a tab of its own: by a click with Ctrl, or with the middle button.
    TreePanel(Choose choose, Choose openInTab, QWidget* parent = nullptr);

    /// Shows these nodes, unless they are shown already, with the one at a position chosen.
    void Show(const std::vector<authoring::TreeNode>& nodes, int chosen);
    /// The position of the node of a line.
    static int SortOf(const QTreeWidgetItem& item);

  protected:
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    void Fill(const std::vector<authoring::TreeNode>& nodes);

    Choose choose_;
    Choose openInTab_;
    std::vector<std::string> shown_;  ///< keys and names of the nodes
    bool filling_ = false;
};

}  // namespace fabula::ide
