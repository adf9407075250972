#pragma once

#include <QObject>
#include <QString>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ide/opened_window.h"
#include "qt/qt_dialogs.h"

class QWidget;

namespace fabula::test {

/// Somebody who works with the authoring tool by keys and clicks, and by nothing else. Its boxes and the
/// choice of files are those of the program.
///
/// A dialog waits for its end wherever it is opened, so what is to be done in it is said before:
///
///     author.Expects("Vocabulary Editor", [&] { author.Types("KEY"); author.Presses(Qt::Key_Return); });
///     author.Chooses("Edit > Add Word");
///
/// A dialog is told by its title. Whatever opens unexpected, or stays open when all is done that was to be
/// done in it, fails the test and is closed.
class Author {
  public:
    /// Starts the program.
    Author();

    /// Says what to do in the dialog that opens next, or next after those that are expected already.
    void Expects(const char* title, std::function<void()> steps);
    /// The dialogs that were expected and have not opened.
    std::size_t StillExpected() const { return expected_.size(); }

    /// Types where the keyboard is.
    void Types(const QString& text);
    void Presses(QKeyCombination key);
    void Presses(Qt::Key key) { Presses(QKeyCombination(key)); }

    /// Clicks on the control of this name, of the window in front.
    void Clicks(const char* name);
    /// Whether the place of that click is in sight, without scrolling.
    bool Sees(const char* name) const;
    /// Clicks on a button of the window in front, by its words.
    void ClicksButton(const char* text);
    /// Clicks on the node of the tree.
    void ClicksNode(const char* name);
    /// Double click on a row of the grid, from 0.
    void DoubleClicksRow(int row);
    /// A command of a menu, by its words: "Edit > Add Location".
    void Chooses(const char* path);
    /// A command of the tool bar, by the key of its action.
    void ClicksTool(const char* key);

    /// The window in front: the dialog, the game, or the tool itself.
    QWidget& Front() const;
    OpenedWindow& Desk() { return *desk_; }

    /// What was typed and chosen so far, in order: for comparing it with what the author was told.
    const std::vector<std::string>& Typed() const { return typed_; }
    const std::vector<std::string>& Chosen() const { return chosen_; }

  private:
    struct Expectation {
        std::string title;
        std::function<void()> steps;
    };

    void LookOut();
    void Meet(QWidget* dialog);

    QObject life_;  ///< ends what waits for the next turn of the event loop
    std::deque<Expectation> expected_;
    std::vector<QWidget*> met_;  ///< dialogs in which the author is at work, the latest last
    std::vector<std::string> typed_;
    std::vector<std::string> chosen_;
    qt::QtDialogs boxes_;
    std::optional<OpenedWindow> desk_;  ///< opened once somebody looks out for its boxes
};

}  // namespace fabula::test
