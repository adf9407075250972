#include "authoring/main_screen_stand.h"

#include "support/games/template_adventure.h"
#include "support/places.h"

namespace fabula::test {

using authoring::MainScreen;

MainScreenStand::MainScreenStand(bool maintenance) : maintenance_(maintenance) {
    paths.defaultData = test::DefaultData();
    paths.state = folder / "state";
    paths.versionFolders = {folder / "versions"};
    paths.version = "1.2.3";
    main = std::make_unique<MainScreen>(authoring::IdeHost{dialogs, settings, clock, events}, paths,
                                        maintenance_);
}

std::filesystem::path MainScreenStand::Make(const char* name, store::AdventureKind kind, bool charSets) {
    store::AdventureSetup setup;
    setup.ChooseType(kind);
    if (charSets) setup.ChooseCharSets(true);
    const std::filesystem::path file = folder / name;
    MakeAdventure(file, setup);
    return file;
}

void MainScreenStand::OpenNew(store::AdventureKind kind) {
    main->OpenFile(Make("game.fbd", kind));
}

void MainScreenStand::Restart() {
    main->End();
    main.reset();
    main = std::make_unique<MainScreen>(authoring::IdeHost{dialogs, settings, clock, events}, paths,
                                        maintenance_);
    main->Start();
}

void MainScreenStand::StoreMessage(int number, const std::string& text) {
    authoring::Change change(main->CurrentContext().document, "add message " + std::to_string(number));
    store::Cursor& messages = Adventure().OpenTable(store::TableNum::Messages, "def");
    messages.AddNew();
    messages.SetField("msgnum", std::int64_t{number});
    messages.SetField("msgmsg", text);
    messages.Update();
    change.Commit();
}

void MainScreenStand::AddMessage(const std::string& text) {
    main->Show({store::TableNum::Messages});
    const auto request = main->Run(authoring::Command::Add);
    StoreMessage(request.value().key.key, text);
    main->ScreenClosed(*request);
}

std::vector<std::string> MainScreenStand::Boxes() const {
    std::vector<std::string> texts;
    for (const auto& box : dialogs.Boxes())
        texts.push_back(box.text);
    return texts;
}

}  // namespace fabula::test
