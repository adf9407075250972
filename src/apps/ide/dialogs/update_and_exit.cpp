#include "ide/dialogs/update_and_exit.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "ide/editors/edit_controls.h"
#include "qt/strings.h"

namespace fabula::ide {

UpdateAndExit AddUpdateAndExit(QHBoxLayout& row, std::string_view exitCaption) {
    const UpdateAndExit buttons{NewButton(qt::Translated("&Update"), "update"),
                                NewButton(qt::Translated(exitCaption), "exit")};
    buttons.update->setDefault(true);
    row.addStretch();
    row.addWidget(buttons.update);
    row.addWidget(buttons.exit);
    return buttons;
}

}  // namespace fabula::ide
