#include "ide/dialogs/records/record_jumps.h"

#include <QDialog>
#include <QShortcut>

#include "ide/dialogs/records/quick_list_dialog.h"
#include "platform/error.h"
#include "qt/strings.h"
#include "text/encoding/utf8.h"

namespace fabula::ide {

using authoring::Jump;
using authoring::JumpLine;

std::optional<Jump> ChoosePlace(const QString& title, const std::vector<JumpLine>& places,
                                QWidget* parent) {
    std::vector<JumpLine> fitting;
    QuickListDialog dialog(
        title, qt::Translated("A part of its name"),
        [&](const std::string& typed) {
            fitting.clear();
            std::vector<std::string> texts;
            for (const JumpLine& line : places) {
                if (text::LowerCase(line.text).find(text::LowerCase(typed)) == std::string::npos) continue;
                fitting.push_back(line);
                texts.push_back(line.text);
            }
            return texts;
        },
        parent);
    if (dialog.exec() != QDialog::Accepted || !dialog.Chosen()) return std::nullopt;
    return fitting[*dialog.Chosen()].jump;
}

std::optional<Jump> FollowNamed(const authoring::NamedRecord& named, bool uses,
                                authoring::Navigator& navigator, platform::Dialogs& dialogs,
                                QWidget* parent) {
    const std::string name = navigator.NameOf(navigator.JumpTo(named.table, named.key));
    const std::optional<Jump> jump = navigator.Find(named);
    if (!jump) {
        dialogs.Tell("There is no " + name + ".", "Go To");
        return std::nullopt;
    }
    if (!uses) return jump;
    const std::vector<JumpLine> places = navigator.UsesOf(*jump);
    if (!places.empty())
        return ChoosePlace(qt::Translated("Uses of %1").arg(qt::ToQt(name)), places, parent);
    dialogs.Tell("Nothing uses " + name + ".", "Uses");
    return std::nullopt;
}

RecordJumps::RecordJumps(OpenedRecord& opened, const authoring::ScreenRequest& request,
                         authoring::ScreenContext& context, authoring::Navigator& navigator)
    : opened_(opened), request_(request), context_(context), navigator_(navigator) {
    QDialog* const dialog = &opened.Dialog();
    for (const bool uses : {false, true}) {
        const QKeySequence key = uses ? QKeySequence(Qt::SHIFT | Qt::Key_F12) : QKeySequence(Qt::Key_F12);
        QObject::connect(new QShortcut(key, dialog), &QShortcut::activated, dialog,
                         [this, uses] { Press(uses); });
    }
}

std::optional<Jump> RecordJumps::Target(bool uses) {
    QDialog* const dialog = &opened_.Dialog();
    if (const auto named = opened_.Editor().NamedAtCursor())
        return FollowNamed(*named, uses, navigator_, context_.dialogs, dialog);
    if (request_.key.isNew) {
        context_.dialogs.Tell("Nothing at the cursor names a record.", "Go To");
        return std::nullopt;
    }
    if (uses)
        return FollowNamed({request_.table, context_.currentEntry}, true, navigator_, context_.dialogs,
                           dialog);
    const std::vector<JumpLine> names = navigator_.NamedBy(request_.table, context_.currentEntry);
    if (!names.empty()) return ChoosePlace(qt::Translated("Go To What It Names"), names, dialog);
    context_.dialogs.Tell("This record names no other.", "Go To");
    return std::nullopt;
}

void RecordJumps::Press(bool uses) {
    try {
        const std::optional<Jump> jump = Target(uses);
        if (!jump) return;
        wanted_ = jump;
        opened_.Editor().CloseList();
        opened_.Dialog().reject();
        if (opened_.Dialog().isVisible()) wanted_.reset();
    } catch (const Error& error) {
        context_.dialogs.Tell(error.what(), "Error");
    }
}

}  // namespace fabula::ide
