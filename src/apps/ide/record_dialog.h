#pragma once

#include <QDialog>
#include <functional>
#include <string>

#include "authoring/controls.h"
#include "authoring/record_screen.h"

class QBoxLayout;
class QComboBox;
class QFormLayout;
class QHBoxLayout;
class QPlainTextEdit;
class QPushButton;

namespace fabula::ide {

/// What the dialogs of one record share: a form that scrolls where the screen is small, Update
/// (Ctrl+Return) and Exit (Esc), and checks of the fields that are left. A control that is refused gets the
/// focus back. The form may have two columns, which stand side by side where there is room.
class RecordDialog : public QDialog {
  public:
    /// All of the form, as far as the screen has room.
    QSize sizeHint() const override;
    /// The first time: in its size, with the keyboard in the first field.
    void setVisible(bool visible) override;

  protected:
    /// `screen` outlives the dialog.
    RecordDialog(authoring::RecordScreen& screen, const QString& title, const char* helpPage,
                 QWidget* parent);

    /// What is added from now on stands in a second column.
    void BeginColumn();
    /// Adds a control, found by `name`; the label holds its mnemonic and is its accessible name too.
    void AddControl(const QString& label, QWidget* control, const char* name);
    /// Checks a control when the focus leaves it for another one but Update and Exit.
    void CheckOnLeave(QWidget* control, std::function<bool()> check);
    /// Does something that may fail, and tells of it when it does; false then.
    bool Guarded(const std::function<bool()>& work);

    /// Writes the controls into the screen.
    virtual void Read() = 0;
    /// Shows what the screen changed by itself.
    virtual void Show() = 0;
    virtual bool Update() = 0;

    void resizeEvent(QResizeEvent* event) override;

    QFormLayout* form_ = nullptr;  ///< the column to which controls are added

  private:
    int WidthOfColumns() const;
    void Arrange();
    void AddButtons();
    void FocusFirst();
    void FocusRefused();
    void ClickUpdate();

    authoring::RecordScreen& record_;
    QBoxLayout* columns_;
    QHBoxLayout* buttons_;
    bool placed_ = false;  ///< it was shown before
    QPushButton* update_ = nullptr;
    QPushButton* exit_ = nullptr;
};

/// A text without its mnemonic.
QString PlainLabel(QString label);

/// An editor of a text of several lines, which Tab leaves.
QPlainTextEdit* NewTextEdit(const std::string& text);

/// A list of which one line is chosen.
QComboBox* NewDropList(const authoring::DropList& list);

/// An editable list of locations, shown as "5 - The cellar"; `LocationTyped` gives the number of the line
/// that is shown, or what was typed.
QComboBox* NewLocationList(const authoring::ComboBox& box);
std::string LocationTyped(const QComboBox& list);

}  // namespace fabula::ide
