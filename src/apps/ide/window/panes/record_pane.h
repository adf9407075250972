#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

#include "authoring/document/screen_context.h"
#include "authoring/entries/entries.h"
#include "ide/dialogs/screens.h"

namespace fabula::ide {

/// The record of the current row beside the rows, ready to be edited: its dialog, without a window of its
/// own. What was typed is stored when the author leaves the record, by Update, or by Ctrl+Enter; Esc asks
/// whether to take it back, and with nothing typed goes back to the rows.
class RecordPane final : public QWidget {
  public:
    struct Events {
        /// The record was stored: what is shown of it must be read again.
        std::function<void(const authoring::ScreenRequest& request)> stored;
        std::function<void()> left;  ///< the keyboard is to go back to the rows
    };

    explicit RecordPane(Events events, QWidget* parent = nullptr);
    ~RecordPane() override;

    /// Shows a record as it is in the tables; nothing for nullopt. What was typed into the one before is
    /// dropped. With `keepsRoom` it then stays where it is, empty. A record that nobody has touched makes
    /// way in its own dialog for the next one of its table, unless `Outdate` was called.
    void Show(const std::optional<authoring::ScreenRequest>& request, authoring::ScreenContext* context,
              bool keepsRoom = false);
    /// The tables have changed, or are another adventure's: no dialog goes on with what it has read.
    void Outdate() { isOutdated_ = true; }
    /// Whether it shows a record.
    bool HasRecord() const { return record_ != nullptr; }
    /// The record that the token at the cursor names, while the keyboard is in the pane.
    std::optional<authoring::NamedRecord> NamedAtCursor() const;
    /// Gives the keyboard to the first field; false without a record.
    bool Enter();
    /// Stores what was typed. False when it was refused: the field at fault has the keyboard.
    bool Leave();

    /// The same for an author who comes back: the field that has the keyboard has it again.
    bool Store();

    QSize sizeHint() const override;

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    bool GoesOnTo(const std::optional<authoring::ScreenRequest>& request) const;
    void Make();
    void Settle();
    void Escape();
    void Finished();

    Events events_;
    std::optional<authoring::ScreenRequest> request_;
    authoring::ScreenContext* context_ = nullptr;
    std::unique_ptr<OpenedRecord> record_;
    bool isOutdated_ = true;
    bool isTouched_ = false;  ///< the keyboard was in the record
    bool leaving_ = false;
    bool accepted_ = false;
};

}  // namespace fabula::ide
