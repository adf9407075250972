#include "authoring/ide_window.h"

#include "support/template_adventure.h"

namespace fabula::test {

using authoring::frmVelIDEMain;

IdeWindow::IdeWindow(bool maintenance) : maintenance_(maintenance) {
    paths.defaultData = std::filesystem::path(FABULA_SOURCE_DIR) / "data" / "Fabula.ini";
    paths.state = folder / "state";
    paths.versionFolders = {folder / "versions"};
    paths.version = "1.2.3";
    main = std::make_unique<frmVelIDEMain>(authoring::IdeHost{dialogs, settings, clock, events}, paths,
                                           maintenance_);
}

std::filesystem::path IdeWindow::Make(const char* name, store::AdventureKind kind, bool charSets) {
    store::frmSetup setup;
    setup.ChooseType(kind);
    if (charSets) setup.ChooseCharSets(true);
    const std::filesystem::path file = folder / name;
    MakeAdventure(file, setup);
    return file;
}

void IdeWindow::OpenNew(store::AdventureKind kind) {
    main->OpenFile(Make("game.fbd", kind));
}

void IdeWindow::Restart() {
    main->Form_Unload();
    main.reset();
    main = std::make_unique<frmVelIDEMain>(authoring::IdeHost{dialogs, settings, clock, events}, paths,
                                           maintenance_);
    main->Form_Load();
}

void IdeWindow::StoreMessage(int number, const std::string& text) {
    authoring::Change change(main->CurrentSession().document, "add message " + std::to_string(number));
    store::Cursor& messages = Adventure().OpenTable(store::TableNum::Messages, "def");
    messages.AddNew();
    messages.SetField("msgnum", std::int64_t{number});
    messages.SetField("msgmsg", text);
    messages.Update();
    change.Commit();
}

void IdeWindow::AddMessage(const std::string& text) {
    main->Show({store::TableNum::Messages});
    const auto request = main->Run(authoring::Command::Add);
    StoreMessage(request.value().key.key, text);
    main->ScreenClosed(*request);
}

std::vector<std::string> IdeWindow::Boxes() const {
    std::vector<std::string> texts;
    for (const auto& box : dialogs.Boxes())
        texts.push_back(box.text);
    return texts;
}

}  // namespace fabula::test
