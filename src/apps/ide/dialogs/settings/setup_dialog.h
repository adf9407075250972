#pragma once

#include <QCoreApplication>

#include "ide/dialogs/column_dialog.h"
#include "store/setup.h"

class QBoxLayout;
class QCheckBox;
class QLabel;
class QRadioButton;

namespace fabula::ide {

/// The dialog of `AdventureSetup`: type, graphics and character sets of a new adventure, each with its
/// explanation.
class SetupDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit SetupDialog(store::AdventureSetup& setup, QWidget* parent = nullptr);

    /// For an adventure that is there already: without what only a new one is asked, and without Cancel,
    /// since closing the dialog takes what it shows.
    void AskForExisting();

    /// Whether the adventure is to begin with the words and entries that most games have.
    bool Starter() const;

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    struct Option {
        QRadioButton* button;
        std::string_view explanation;
    };

    QRadioButton* AddOption(QBoxLayout& row, const char* name, const QString& text, const QString& group,
                            std::string_view explanation);
    QBoxLayout* AddGroup(QBoxLayout& column, const QString& title);
    void AddTypes(QBoxLayout& column);
    void AddGraphics(QBoxLayout& column);
    void AddCharSets(QBoxLayout& column);
    void Explain(const QObject* option);
    void Show();

    store::AdventureSetup& setup_;
    std::vector<Option> options_;
    QRadioButton* charSetsYes_ = nullptr;
    QRadioButton* charSetsNo_ = nullptr;
    QLabel* explanation_;
    QCheckBox* starter_;
};

}  // namespace fabula::ide
