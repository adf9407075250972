#pragma once

#include <QCoreApplication>
#include <functional>
#include <optional>
#include <string>

#include "authoring/screens/process_entry_screen.h"
#include "ide/dialogs/screen_dialog.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace fabula::ide {

class CondActEdit;

/// The window of the process entry editor.
class ProcessEntryDialog final : public ScreenDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit ProcessEntryDialog(authoring::ProcessEntryScreen& screen, QWidget* parent = nullptr);
    ~ProcessEntryDialog() override;

    /// Closes the list of offers, when it is open; else the dialog, after a question where something was
    /// changed.
    void reject() override;
    void setVisible(bool visible) override;
    QSize sizeHint() const override;

    bool CloseList() override;
    std::optional<authoring::NamedRecord> NamedAtCursor() override;

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void Read() override;
    void Show() override;
    void ShowOpened() override;
    bool Update() override { return screen_.Update(); }

  private:
    struct ParameterWidgets {
        QLabel* label;
        QComboBox* box;
    };

    QLayout* BuildEntry();
    QLayout* BuildCondAct();
    QLayout* BuildLine();
    ParameterWidgets MakeParameter(const QString& name);
    QComboBox* MakeWords(const QString& name, const QString& what, const authoring::DropList& list);

    void Explain();
    void ShowParameter(const ParameterWidgets& widgets, const authoring::ParameterField& field);
    std::optional<condacts::MessageNumber> NewMessage(const std::string& text);
    void CheckFields();
    void CheckInside(QWidget* field, const std::function<bool()>& check);
    bool LeaveCondAct();
    void ChooseCondAct();
    bool CompleteCondAct();
    bool Enter(const QObject* field);
    void Add();

    authoring::ProcessEntryScreen& screen_;
    QLabel* key_ = nullptr;
    QLineEdit* type_ = nullptr;
    QComboBox* word1_ = nullptr;
    QComboBox* word2_ = nullptr;
    QComboBox* condAct_ = nullptr;
    ParameterWidgets param1_{};
    ParameterWidgets param2_{};
    CondActEdit* line_ = nullptr;
    QListWidget* explained_ = nullptr;
    QLabel* meaning_ = nullptr;
    QLabel* fault_ = nullptr;
    QPushButton* add_ = nullptr;
    QWidget* contents_;
};

}  // namespace fabula::ide
