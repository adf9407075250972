#pragma once

#include <QCoreApplication>
#include <string>
#include <vector>

#include "ide/dialogs/column_dialog.h"
#include "platform/person.h"

class QRadioButton;

namespace fabula::ide {

/// The choice of the size of the keypad that a template is printed for. Another size than those that there
/// are is told of when it is chosen.
class KeypadDialog final : public ColumnDialog {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit KeypadDialog(platform::Person& person, QWidget* parent = nullptr);

    /// The template of the size, once the window has closed with Continue.
    const std::string& TemplateName() const { return templateName_; }

  private:
    void ClickContinue();

    platform::Person& person_;
    std::string templateName_;
    std::vector<QRadioButton*> sizes_;
};

}  // namespace fabula::ide
