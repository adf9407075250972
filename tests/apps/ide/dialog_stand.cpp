#include "ide/dialog_stand.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <filesystem>
#include <ostream>

#include "authoring/desk/search/deletion_uses.h"
#include "authoring/desk/search/navigator.h"
#include "authoring/screens/message_screen.h"
#include "ide/dialogs/jobs/decompile_dialog.h"
#include "ide/dialogs/jobs/interchange_dialog.h"
#include "ide/dialogs/jobs/keypad_dialog.h"
#include "ide/dialogs/jobs/package_dialog.h"
#include "ide/dialogs/jobs/preview_dialog.h"
#include "ide/dialogs/jobs/print_dialog.h"
#include "ide/dialogs/jobs/restore_dialog.h"
#include "ide/dialogs/jobs/verify_dialog.h"
#include "ide/dialogs/records/deletion_dialog.h"
#include "ide/dialogs/records/flag_dialog.h"
#include "ide/dialogs/records/location_dialog.h"
#include "ide/dialogs/records/message_dialog.h"
#include "ide/dialogs/records/new_locations_dialog.h"
#include "ide/dialogs/records/object_dialog.h"
#include "ide/dialogs/records/process_entry_dialog.h"
#include "ide/dialogs/records/quick_list_dialog.h"
#include "ide/dialogs/records/word_dialog.h"
#include "ide/dialogs/settings/colour_dialog.h"
#include "ide/dialogs/settings/settings_dialog.h"
#include "ide/dialogs/settings/setup_dialog.h"
#include "ide/dialogs/tables/key_dialogs.h"
#include "ide/dialogs/tables/renumber_dialog.h"
#include "ide/dialogs/tables/replace_dialog.h"
#include "ide/dialogs/tables/sort_dialog.h"
#include "ide/drawing/character_dialog.h"
#include "ide/drawing/character_table_dialog.h"
#include "ide/drawing/image_import_dialog.h"
#include "ide/drawing/picture_dialog.h"
#include "ide/drawing/set_files_dialog.h"
#include "platform/clock.h"
#include "platform/settings.h"
#include "qt/qt_programs.h"
#include "support/doubles/scripted_pump.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

using authoring::ScreenKey;
using authoring::ScreenRequest;
using store::TableNum;
using Opened = std::shared_ptr<QDialog>;

/// What a dialog shows, kept as long as the dialog.
template <typename Dialog, typename Parts>
Opened Keep(std::shared_ptr<Parts> parts) {
    return {parts, static_cast<QDialog*>(&parts->dialog)};
}

template <typename Dialog, typename Screen>
Opened OpenRecord(Desk& desk, ScreenKey key) {
    struct Parts {
        Parts(authoring::ScreenContext& context, ScreenKey of) : screen(context, of), dialog(screen) {}
        Screen screen;
        Dialog dialog;
    };
    return Keep<Dialog>(std::make_shared<Parts>(desk.context, key));
}

/// A word that is being added, as far as it can be left by Tab.
Opened OpenNewWord(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of) : screen(of.context, {.key = of.context.nextWord, .isNew = true}) {
            screen.word = "SHINE";
            screen.ClickType(condacts::kVerb);
            dialog = std::make_unique<ide::WordDialog>(screen);
        }
        authoring::WordScreen screen;
        std::unique_ptr<ide::WordDialog> dialog;
    };
    auto parts = std::make_shared<Parts>(desk);
    return {parts, parts->dialog.get()};
}

Opened OpenText(Desk& desk, TableNum table, int key) {
    desk.context.currentTable = table;
    return OpenRecord<ide::MessageDialog, authoring::MessageScreen>(desk, {.key = key});
}

Opened OpenProcessEntry(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of)
            : screen(of.context, ScreenRequest{.screen = authoring::Screen::ProcessEntry,
                                               .key = {.key = 0},
                                               .table = TableNum::ProcessTables}),
              dialog(screen) {}
        authoring::ProcessEntryScreen screen;
        ide::ProcessEntryDialog dialog;
    };
    return Keep<ide::ProcessEntryDialog>(std::make_shared<Parts>(desk));
}

Opened OpenPicture(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of)
            : screen(of.context, ScreenKey{.key = 7, .isNew = true}), dialog(screen, settings) {}
        platform::MemorySettings settings;
        authoring::PictureEditor screen;
        ide::PictureDialog dialog;
    };
    return Keep<ide::PictureDialog>(std::make_shared<Parts>(desk));
}

Opened OpenCharacterTable(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of)
            : screen(of.context), dialog(screen, of.dialogs, [](const authoring::ScreenRequest&) {}) {}
        authoring::CharacterSetScreen screen;
        ide::CharacterTableDialog dialog;
    };
    return Keep<ide::CharacterTableDialog>(std::make_shared<Parts>(desk));
}

Opened OpenSetFiles(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of) : screen(of.context, authoring::CharacterSetFiles::Purpose::Save) {
            screen.Begin();
            dialog = std::make_unique<ide::SetFilesDialog>(screen, of.dialogs);
        }
        authoring::CharacterSetFiles screen;
        std::unique_ptr<ide::SetFilesDialog> dialog;
    };
    auto parts = std::make_shared<Parts>(desk);
    return {parts, parts->dialog.get()};
}

Opened OpenImageImport(Desk&) {
    struct Parts {
        ide::ImageImportDialog dialog{pictures::Image(60, 40, pictures::MakeColour(90, 120, 30))};
    };
    return Keep<ide::ImageImportDialog>(std::make_shared<Parts>());
}

Opened OpenColors(Desk&) {
    struct Parts {
        authoring::ColourScreen screen{authoring::ColourScreen::Purpose::Paper, 3};
        ide::ColourDialog dialog{screen};
    };
    return Keep<ide::ColourDialog>(std::make_shared<Parts>());
}

Opened OpenSetup(Desk&) {
    struct Parts {
        store::AdventureSetup screen;
        ide::SetupDialog dialog{screen};
    };
    return Keep<ide::SetupDialog>(std::make_shared<Parts>());
}

Opened OpenImport(Desk& desk, authoring::JobMode mode) {
    struct Parts {
        Parts(Desk& of, authoring::JobMode as)
            : screen(as, &of.Adventure(), {of.dialogs, clock, pump, settings, test::DefaultData()}),
              dialog(screen, of.dialogs) {}
        platform::FixedClock clock{{2026, 3, 9, 8, 5, 7}};
        ScriptedPump pump;
        platform::MemorySettings settings;
        authoring::InterchangeScreen screen;
        ide::InterchangeDialog dialog;
    };
    return Keep<ide::InterchangeDialog>(std::make_shared<Parts>(desk, mode));
}

Opened OpenLoadGraphic(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of)
            : screen(of.document, {of.dialogs, clock, pump, settings, test::DefaultData()}, 0),
              dialog(screen, of.dialogs) {}
        platform::FixedClock clock{{2026, 3, 9, 8, 5, 7}};
        ScriptedPump pump;
        platform::MemorySettings settings;
        authoring::InterchangeScreen screen;
        ide::InterchangeDialog dialog;
    };
    return Keep<ide::InterchangeDialog>(std::make_shared<Parts>(desk));
}

Opened OpenNewLocations(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of)
            : screen(of.document, {.pictures = {{3, 0}}, .subroutines = {7, 12}}, of.dialogs),
              dialog(screen, of.dialogs) {}
        authoring::NewLocationsScreen screen;
        ide::NewLocationsDialog dialog;
    };
    return Keep<ide::NewLocationsDialog>(std::make_shared<Parts>(desk));
}

Opened OpenDecompile(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of) : screen({of.dialogs, pump, settings, programs}), dialog(screen) {}
        ScriptedPump pump;
        platform::MemorySettings settings;
        qt::QtPrograms programs;
        authoring::DecompileScreen screen;
        ide::DecompileDialog dialog;
    };
    return Keep<ide::DecompileDialog>(std::make_shared<Parts>(desk));
}

Opened OpenSort(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of)
            : screen(of.context, TableNum::Vocabulary, "Vocabulary"), dialog(screen, of.dialogs) {}
        authoring::SortScreen screen;
        ide::SortDialog dialog;
    };
    return Keep<ide::SortDialog>(std::make_shared<Parts>(desk));
}

Opened OpenKeySelect(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of) : screen(of.context), dialog(screen) {}
        authoring::KeySelectScreen screen;
        ide::KeySelectDialog dialog;
    };
    return Keep<ide::KeySelectDialog>(std::make_shared<Parts>(desk));
}

Opened OpenKeyChange(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of) : screen(of.context, Selection(of)), dialog(screen, of.dialogs) {}
        static authoring::KeySelection Selection(Desk& of) {
            authoring::KeySelectScreen select(of.context);
            select.table = "ProcessTables";
            select.process = "0";
            select.w1 = "GET";
            select.w2 = "LAMP";
            return select.Select().value();
        }
        authoring::KeyChangeScreen screen;
        ide::KeyChangeDialog dialog;
    };
    return Keep<ide::KeyChangeDialog>(std::make_shared<Parts>(desk));
}

/// What uses message 0 is looked for by the main window, which has a copy of the adventure open.
Opened OpenDeletion(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of)
            : main({of.dialogs, settings, clock, pump}, {test::DefaultData(), {}, {}, "1.2.3"}),
              navigator(WithCopy(of.document.File())),
              uses(navigator, {.table = TableNum::Messages, .key = 0}),
              dialog(uses) {}
        authoring::MainScreen& WithCopy(const std::filesystem::path& game) {
            std::filesystem::copy_file(game, folder / "game.fbd");
            main.OpenFile(folder / "game.fbd");
            return main;
        }
        TempFolder folder;
        platform::FixedClock clock{{2026, 3, 9, 8, 5, 7}};
        ScriptedPump pump;
        platform::MemorySettings settings;
        authoring::MainScreen main;
        authoring::Navigator navigator;
        authoring::DeletionUses uses;
        ide::DeletionDialog dialog;
    };
    return Keep<ide::DeletionDialog>(std::make_shared<Parts>(desk));
}

Opened OpenQuickList(Desk&) {
    struct Parts {
        static QString Word(const char* caption) { return QCoreApplication::translate("Fabula", caption); }
        ide::QuickListDialog dialog{
            Word("Go To"), Word("m40, lantern, get lamp, messages ..."), [](const std::string&) {
                return std::vector<std::string>{"location 0: The hall", "object 0: a brass lamp"};
            }};
    };
    return Keep<ide::QuickListDialog>(std::make_shared<Parts>());
}

/// As it stands when something was found.
Opened OpenReplace(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of) : screen(of.context), dialog(screen) {
            dialog.findChild<QLineEdit*>("what")->setText("lamp");
            dialog.findChild<QPushButton*>("find")->click();
        }
        authoring::ReplaceScreen screen;
        ide::ReplaceDialog dialog;
    };
    return Keep<ide::ReplaceDialog>(std::make_shared<Parts>(desk));
}

Opened OpenRenumber(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of) : screen(of.context, TableNum::Messages, 0), dialog(screen) {}
        authoring::RenumberScreen screen;
        ide::RenumberDialog dialog;
    };
    return Keep<ide::RenumberDialog>(std::make_shared<Parts>(desk));
}

Opened OpenPackage(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of)
            : screen(packages::PackageScreen::Open(of.context, settings, {})), dialog(*screen) {}
        platform::MemorySettings settings;
        std::unique_ptr<packages::PackageScreen> screen;
        ide::PackageDialog dialog;
    };
    return Keep<ide::PackageDialog>(std::make_shared<Parts>(desk));
}

Opened OpenRestore(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of)
            : screen({{of.document.File(), {2026, 3, 9, 8, 5, 7}, 123456}}, of.Adventure()),
              dialog(screen) {}
        authoring::RestoreScreen screen;
        ide::RestoreDialog dialog;
    };
    return Keep<ide::RestoreDialog>(std::make_shared<Parts>(desk));
}

Opened OpenPrint(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of)
            : screen(of.Adventure(), TableNum::ProcessTables, authoring::kOtherProcesses,
                     listings::PrintScreen::Purpose::Print, of.dialogs),
              dialog(screen, {of.Adventure(), of.dialogs}) {}
        listings::PrintScreen screen;
        ide::PrintDialog dialog;
    };
    return Keep<ide::PrintDialog>(std::make_shared<Parts>(desk));
}

Opened OpenPreview(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of)
            : screen({listings::FindReport("flags"), {}, "Flag Descriptions Table"}, of.Adventure()),
              dialog(screen, {of.Adventure(), of.dialogs}) {}
        listings::PrintPreview screen;
        ide::PreviewDialog dialog;
    };
    return Keep<ide::PreviewDialog>(std::make_shared<Parts>(desk));
}

Opened OpenKeypad(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of) : dialog(of.dialogs) {}
        ide::KeypadDialog dialog;
    };
    return Keep<ide::KeypadDialog>(std::make_shared<Parts>(desk));
}

Opened OpenVerify(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of)
            : screen(of.Adventure(), authoring::kForPlay, pump), dialog(screen, of.dialogs) {
            dialog.goTo = [](const authoring::VerifyScreen::Entry&) {};
        }
        ScriptedPump pump;
        authoring::VerifyScreen screen;
        ide::VerifyDialog dialog;
    };
    return Keep<ide::VerifyDialog>(std::make_shared<Parts>(desk));
}

Opened OpenSettings(Desk& desk) {
    struct Parts {
        explicit Parts(Desk& of) : screen(of.context), dialog(screen, sound) {}
        engine::SilentPlayer sound;
        authoring::SettingsScreen screen;
        ide::SettingsDialog dialog;
    };
    return Keep<ide::SettingsDialog>(std::make_shared<Parts>(desk));
}

}  // namespace

void PrintTo(const DialogStand& stand, std::ostream* out) {
    *out << stand.name;
}

const std::vector<DialogStand>& EveryDialog() {
    static const std::vector<DialogStand> kStands = {
        {"Setup", "Choose Type of Adventure", "fabula", OpenSetup},
        {"Settings", "Adventure Settings Editor", "name", OpenSettings},
        {"Location", "Location 0", "shortDescription",
         [](Desk& desk) {
             return OpenRecord<ide::LocationDialog, authoring::LocationScreen>(desk, {.key = 0});
         }},
        {"Object", "Object 0", "description",
         [](Desk& desk) {
             return OpenRecord<ide::ObjectDialog, authoring::ObjectScreen>(desk, {.key = 0});
         }},
        {"NewWord", "Vocabulary Editor", "word", OpenNewWord},
        {"Word", "Vocabulary Editor", "word",
         [](Desk& desk) { return OpenRecord<ide::WordDialog, authoring::WordScreen>(desk, {.key = 203}); }},
        {"Message", "Messages Editor", "text",
         [](Desk& desk) { return OpenText(desk, TableNum::Messages, 0); }},
        {"SystemMessage", "System Messages Editor", "text",
         [](Desk& desk) { return OpenText(desk, TableNum::SystemMessages, 7); }},
        {"ProcessDescription", "Process Table Descriptions Editor", "text",
         [](Desk& desk) { return OpenText(desk, TableNum::ProcDesc, 3); }},
        {"ProcessEntry", "Process Table Editor", "line", OpenProcessEntry},
        {"Flag", "Flag 60", "type",
         [](Desk& desk) { return OpenRecord<ide::FlagDialog, authoring::FlagScreen>(desk, {.key = 60}); }},
        {"Picture", "Picture 7", "CommandLine", OpenPicture},
        {"Character", "Character 144 of Set 0", "Squares",
         [](Desk& desk) {
             return OpenRecord<ide::CharacterDialog, authoring::CharacterEditor>(desk, {.key = 144});
         }},
        {"CharacterTable", "Character Table", "Characters", OpenCharacterTable},
        {"SaveSets", "Save Character Set(s)", "Sets", OpenSetFiles},
        {"ImportImage", "Import Image", "Dithering", OpenImageImport},
        {"Colors", "Set Color for Paper", "colour3", OpenColors},
        {"Delete", "Delete", "deletionUses", OpenDeletion},
        {"GoTo", "Go To", "QuickLine", OpenQuickList},
        {"Replace", "Find and Replace", "what", OpenReplace},
        {"Renumber", "Change Number", "number", OpenRenumber},
        {"Sort", "Sort Vocabulary", "field1", OpenSort},
        {"Import", "Import of source file", "source",
         [](Desk& desk) { return OpenImport(desk, authoring::JobMode::Import); }},
        {"Export", "Export of Database", "source",
         [](Desk& desk) { return OpenImport(desk, authoring::JobMode::Export); }},
        {"LoadGraphic", "Import of Graphic Record into record 0", "source", OpenLoadGraphic},
        {"NewLocations", "New Locations of the Pictures", "goesTo3", OpenNewLocations},
        {"Decompile", "Decompile an Older Game", "unMarlo", OpenDecompile},
        {"Print", "Print for Other Process Tables", "detail", OpenPrint},
        {"Preview", "Print Preview for Flag Descriptions Table", "pages", OpenPreview},
        {"Keypad", "Size of your KeyPad", "size1", OpenKeypad},
        {"Verify", "Verify Adventure", "status", OpenVerify},
        {"Package", "Package Your Adventure", "version", OpenPackage},
        {"Restore", "Restore a Backup", "copies", OpenRestore},
        {"KeySelect", "Correct Table Key: Select", "table", OpenKeySelect},
        {"KeyChange", "Change incorrect key and Finish", "rows", OpenKeyChange},
    };
    return kStands;
}

void Furnish(Desk& desk) {
    const auto location = [&](std::int64_t number, std::string text, std::string name, std::string exits,
                              std::string numbers) {
        const auto tokens = static_cast<std::int64_t>(exits.empty() ? 0 : 2);
        desk.Add(TableNum::Locations, {{"locnum", number},
                                       {"locdesc", std::move(text)},
                                       {"locshortdesc", std::move(name)},
                                       {"exits", std::move(exits)},
                                       {"numericexits", std::move(numbers)},
                                       {"numexits", tokens}});
    };
    desk.AddWord(200, "NORTH", 1, 2);
    desk.AddWord(201, "SOUTH", 2, 2);
    desk.AddWord(202, "GET", 20, 0);
    desk.AddWord(203, "LAMP", 60, 2);
    desk.AddWord(204, "BRASS", 2, 3);
    desk.Clear(TableNum::Locations);
    location(0,
             "You stand in the hall of the keeper's house. A <ink=2>brass lamp<ink=0> hangs "
             "from a beam, and a worn flight of stairs winds up into the dark.",
             "The hall", "NORTH 1", "1 1");
    location(1, "The stairs wind up and up. It is cold here.", "On the stairs", "SOUTH 0", "2 0");
    desk.Add(TableNum::Messages,
             {{"msgnum", std::int64_t{0}}, {"msgmsg", std::string("It is too dark to see anything.")}});
    desk.Clear(TableNum::Objects);
    desk.Add(TableNum::Objects, {{"objnum", std::int64_t{0}},
                                 {"objdesc", std::string("a brass lamp")},
                                 {"objloc", std::int64_t{0}},
                                 {"objweight", std::int64_t{3}}});
    desk.Clear(TableNum::ProcessTables);
    desk.AddEntry(0, 0, {"GET", 20}, {"LAMP", 60}, "PRESENT 0 GET 0 MESSAGE 0 DONE");
    store::Cursor& flag = desk.Adventure().OpenTable(TableNum::Flags, "def", "flgnum=60");
    flag.SetField("flgtype", std::string("User"));
    flag.SetField("flguse", std::string("Switch"));
    flag.SetField("flgdesc", std::string("1 when the lamp is lit."));
    flag.Update();
    authoring::ReadNextKeys(desk.context);
}

}  // namespace fabula::test
