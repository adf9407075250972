#pragma once

#include <QString>
#include <string>

#include "authoring/fields/controls.h"

class QComboBox;
class QFormLayout;
class QGridLayout;
class QPlainTextEdit;
class QPushButton;
class QToolButton;
class QWidget;

namespace fabula::ide {

/// A text without its mnemonic and colon.
QString PlainLabel(QString label);

/// Adds a control, found by `name`, to a form. The label holds its mnemonic and is its accessible name too.
/// A line to type in drops control characters from what is pasted.
void AddToForm(QFormLayout& form, const QString& label, QWidget* control, const char* name);

/// A button that Return elsewhere does not press.
QPushButton* NewButton(const QString& text, const char* name);

/// A tool button in the next free place of a grid of three columns, row by row, where it takes `columns` of
/// them. Clicks leave the keyboard where it is.
QToolButton* AddToolButton(QGridLayout& grid, const QString& name, const QString& text, const QString& tip,
                           int columns = 1);

/// An editor of a text of several lines, which Tab leaves. Control characters are dropped from what is
/// pasted.
QPlainTextEdit* NewTextEdit(const std::string& text);

/// What an editor holds as it was typed: unlike toPlainText this keeps blanks that do not break.
QString TextIn(const QPlainTextEdit& edit);

/// A list of which one line is chosen.
QComboBox* NewDropList(const authoring::DropList& list);

/// The same for lines that are words of Fabula, in the language of the windows.
QComboBox* NewChoice(const authoring::DropList& list);

/// An editable list of locations, shown as "5 - The cellar"; `LocationTyped` gives the number of the line
/// that is shown, or what was typed. `ShowLocation` shows another one, given as the screen holds it.
QComboBox* NewLocationList(const authoring::ComboBox& box);
void ShowLocation(QComboBox& list, const std::string& text);
std::string LocationTyped(const QComboBox& list);

}  // namespace fabula::ide
