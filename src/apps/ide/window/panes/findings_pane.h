#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "authoring/desk/search/findings_list.h"
#include "platform/dialogs.h"
#include "platform/timers.h"

class QAction;
class QComboBox;
class QLabel;
class QTreeView;

namespace fabula::ide {

class FindingsModel;

/// The pane below the rows that lists what the adventure has that can't be meant. Enter or a double click
/// on a line goes to its record; a kind is chosen above, and switched off or on in the adventure. The
/// adventure is looked through again when it has changed and the author rests, and only while the pane is
/// shown. Its parts are found by the names "FindingsTitle", "FindingsRemark", "FindingsKind",
/// "FindingsSwitch" and "FindingsList".
class FindingsPane final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    struct Events {
        std::function<void(const authoring::Jump& jump)> chosen;
        std::function<bool()> leaves;    ///< before the adventure is changed; false when it can't be now
        std::function<void()> switched;  ///< the adventure was changed
        std::function<void()> left;      ///< the keyboard is to go back to the rows
    };

    FindingsPane(authoring::FindingsList& list, platform::Timers& timers, platform::Dialogs& dialogs,
                 Events events, QWidget* parent = nullptr);

    /// Shows the pane with the findings of now.
    void Open();
    /// The author has gone on, and may have changed something.
    void Follow();
    /// Gives the keyboard to the list, or to the choice of kinds when it is empty.
    void Focus();

    QSize sizeHint() const override;

    /// How long nothing must have happened before the adventure is looked through again.
    static constexpr std::chrono::milliseconds kRest{700};

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void SetUpHead();
    void SetUpList();
    void Rested();
    void Read();
    void Show();
    void ShowKinds();
    void ShowActions();
    void PlaceColumns();
    const authoring::FindingLine* Line() const;
    std::string Kind() const;
    void Switch(const std::function<void()>& change);

    authoring::FindingsList& list_;
    platform::Dialogs& dialogs_;
    Events events_;
    platform::Alarm rest_;
    FindingsModel* model_;
    QLabel* title_;
    QLabel* remark_;
    QComboBox* kind_;
    QTreeView* view_;
    QLabel* none_;  ///< stands where the list is empty
    QAction* offHere_;
    QAction* offKind_;
    QAction* on_;
    bool filling_ = false;
    std::optional<authoring::FindingLine> current_;  ///< that has the cursor
    int row_ = 0;                                    ///< where it stood
};

}  // namespace fabula::ide
