#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <functional>
#include <optional>
#include <string>

#include "authoring/screens/process_entry_screen.h"
#include "ide/dialogs/record_editor.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace fabula::ide {

class CommentEdit;
class CondActEdit;

/// The window of the process entry editor. It shows the fields of `screen`, gives them back when they are
/// left, and keeps the focus in one that is refused.
class ProcessEntryDialog final : public QDialog, public RecordEditor {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit ProcessEntryDialog(authoring::ProcessEntryScreen& screen, QWidget* parent = nullptr);
    ~ProcessEntryDialog() override;

    /// Closes the list of offers, when it is open; else the dialog, after a question where something was
    /// changed.
    void reject() override;
    void setVisible(bool visible) override;

    bool HasChanges() override;
    void Store() override { Update(); }
    bool CloseList() override;
    void ShowRecord() override;
    std::optional<authoring::NamedRecord> NamedAtCursor() override;

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    struct ParameterWidgets {
        QLabel* label;
        QComboBox* box;
    };

    QLayout* BuildEntry();
    QLayout* BuildCondAct();
    QLayout* BuildLine();
    QLayout* BuildButtons();
    ParameterWidgets MakeParameter(const QString& name);
    QComboBox* MakeWords(const QString& name, const QString& what, const authoring::DropList& list);

    void Show();
    void Explain();
    void Take();
    void ShowParameter(const ParameterWidgets& widgets, const authoring::ParameterField& field);
    void FocusChanged(QWidget* left, QWidget* now);
    std::optional<condacts::MessageNumber> NewMessage(const std::string& text);
    bool Guarded(const std::function<bool()>& work);
    bool Leave(const QWidget* field);
    void CheckLeft(QWidget* field);
    void ChooseCondAct();
    bool CompleteCondAct();
    bool Enter(const QObject* field);
    void Add();
    void Update();

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
    CommentEdit* comment_ = nullptr;
    QLabel* meaning_ = nullptr;
    QLabel* fault_ = nullptr;
    QPushButton* add_ = nullptr;
    QPushButton* exit_ = nullptr;
    QMetaObject::Connection focus_;
    bool checking_ = false;
};

}  // namespace fabula::ide
