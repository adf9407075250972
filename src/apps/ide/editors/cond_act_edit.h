#pragma once

#include <QPlainTextEdit>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "authoring/fields/cond_act_help.h"

class QCompleter;
class QStringListModel;

namespace fabula::ide {

/// The field for a line of conditions and actions. It offers what may follow while the line is typed
/// (Ctrl+Space asks for it), behind " or @ the records by their texts, marks the first fault by a wavy
/// line, and tells the meaning of the token at the cursor.
class CondActEdit final : public QPlainTextEdit {
  public:
    /// `help` outlives the field.
    explicit CondActEdit(const authoring::CondActHelp& help, QWidget* parent = nullptr);

    /// The text of what is offered at the moment; none while the list is closed.
    QStringList Offered() const;
    /// Closes the list of offers; false when it was not open.
    bool HideOffers();

    /// Called when the meaning changes, and when the sentence about the fault does: "" when there is none.
    std::function<void(const QString& meaning)> onMeaning = [](const QString&) {};
    std::function<void(const QString& fault)> onFault = [](const QString&) {};
    /// Asked for the number of a message that is to be added; nullopt when it is refused.
    std::function<std::optional<condacts::MessageNumber>(const std::string& text)> onNewMessage =
        [](const std::string&) -> std::optional<condacts::MessageNumber> { return std::nullopt; };

    /// The place of the cursor, in bytes.
    std::size_t CursorByte() const { return Read().cursor; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Tab takes what is offered before it goes on to the next field.
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    struct Typed {
        std::string line;
        std::size_t cursor;  ///< in bytes
    };
    Typed Read() const;
    void Tell();
    void Offer(bool asked);
    void Insert(int item);

    const authoring::CondActHelp& help_;
    authoring::Completions offered_;
    QStringListModel* items_;
    QCompleter* completer_;
};

}  // namespace fabula::ide
