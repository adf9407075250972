#include "authoring/desk/batch_commands.h"
#include "authoring/desk/ide_settings.h"
#include "authoring/desk/main_screen.h"
#include "authoring/desk/search/renumber_screen.h"
#include "authoring/entries/last_records.h"
#include "authoring/fields/texts/short_desc.h"
#include "authoring/screens/word_screen.h"
#include "condacts/words.h"
#include "store/schema/record_fields.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

// What the commands do, and when they can be used.

namespace fabula::authoring {
namespace {

using store::TableNum;

/// Commands that need no adventure.
bool AlwaysWorks(Command command) {
    switch (command) {
        case Command::New:
        case Command::Open:
        case Command::Import:
        case Command::Decompile:
        case Command::Exit:
        case Command::Trace:
        case Command::Help:
        case Command::HelpContents:
        case Command::AboutAdventure:
        case Command::About:
        case Command::Palette:
            return true;
        default:
            return false;
    }
}

/// Commands that change the adventure, and those whose screens do nothing else.
bool IsForChange(Command command) {
    switch (command) {
        case Command::Restore:
        case Command::ImportGraphic:
        case Command::BatchImport:
        case Command::Add:
        case Command::AddBefore:
        case Command::Edit:
        case Command::Delete:
        case Command::Load:
        case Command::Sort:
        case Command::Renumber:
        case Command::Settings:
        case Command::ShortDescriptions:
        case Command::KeyChange:
        case Command::TravelTable:
            return true;
        default:
            return false;
    }
}

bool NeedsRecord(Command command) {
    return command == Command::Edit || command == Command::Delete || command == Command::AddBefore ||
           command == Command::GoToNamed || command == Command::Uses || command == Command::Renumber;
}

bool IsFind(Command command) {
    return command == Command::Find || command == Command::FindNext;
}

bool IsLoadOrSave(Command command) {
    return command == Command::Load || command == Command::Save;
}

/// A name in a menu, where "&" marks the next letter.
std::string ForMenu(const std::string& name) {
    return text::ReplaceAll(name, "&", "&&");
}

}  // namespace

ActionState MainScreen::StateOf(Command command) const {
    ActionState state;
    state.why = WhyNot(command);
    state.enabled = state.why.empty();
    const CommandTexts texts =
        desk_ ? TextsFor(command, grid_.View())
              : CommandTexts{std::string(EntryOf(command).tip), std::string(EntryOf(command).text)};
    state.text = texts.text;
    state.menuText = texts.menuText;
    if (command == Command::Trace) state.checked = TraceMode(host_.settings);
    if (EntryOf(command).menu == Menu::View) state.checked = IsOn(command);
    const auto name = UndoOrRedoName(command);
    if (name) {
        const std::string verb = command == Command::Undo ? "Undo " : "Redo ";
        state.text = verb + *name;
        state.menuText = "&" + verb + ForMenu(*name);
    }
    return state;
}

std::optional<int> MainScreen::PictureTarget() const {
    if (!desk_) return std::nullopt;
    const TableNum table = grid_.View().table;
    const bool hasPictures = table == TableNum::Locations || table == TableNum::Pictures;
    return hasPictures ? CurrentKey() : std::nullopt;
}

void MainScreen::PicturesLoaded(int changesBefore) {
    changesBefore_ = changesBefore;
    Guard([&] { ShowChanges(grid_.View().table); });
}

std::optional<std::string> MainScreen::UndoOrRedoName(Command command) const {
    if (!desk_) return std::nullopt;
    if (command == Command::Undo) return desk_->document.UndoName();
    if (command == Command::Redo) return desk_->document.RedoName();
    return std::nullopt;
}

std::string MainScreen::WhyNot(Command command) const {
    if (running_) return "The game is being tested.";
    if (AlwaysWorks(command)) return "";
    if (!desk_) return "No adventure is open.";
    if (desk_->document.IsReadOnly() && IsForChange(command)) return std::string(kOnlyToRead);
    if (command == Command::Undo && !desk_->document.UndoName()) return "There is nothing to undo.";
    if (command == Command::Redo && !desk_->document.RedoName()) return "There is nothing to redo.";
    if (command == Command::ImportGraphic && !PictureTarget())
        return "Select the location or the picture that it goes into.";
    if (!rights_.Allows(command)) return Caption() + " does not offer this.";
    if (IsLoadOrSave(command) && grid_.View().table != TableNum::Characters)
        return "This version cannot yet load pictures and keypad templates.";
    if (IsFind(command) && grid_.View().table == TableNum::Adventure) return "The settings have no Find.";
    if (command == Command::Renumber && !RenumberScreen::CanRenumber(grid_.View().table))
        return Caption() + " does not offer this.";
    if (NeedsRecord(command) && row_ < 0) return "No record is selected.";
    if (EntryOf(command).menu == Menu::View) return WhyNotView(command);
    return "";
}

std::optional<ScreenRequest> MainScreen::Run(Command command) {
    if (!StateOf(command).enabled) return std::nullopt;
    message_.clear();
    changesBefore_ = desk_ ? desk_->document.Changes() : 0;
    std::optional<ScreenRequest> request;
    Guard([&] { request = Do(command); });
    return request;
}

std::optional<ScreenRequest> MainScreen::Do(Command command) {
    switch (command) {
        case Command::Open:
            Open();
            break;
        case Command::SaveAs:
            SaveAs();
            break;
        case Command::Close:
            Close();
            break;
        case Command::Undo:
        case Command::Redo:
            UndoOrRedo(command);
            break;
        case Command::Add:
        case Command::AddBefore:
        case Command::Edit:
        case Command::Delete:
        case Command::Settings:
            return DoEntry(command);
        case Command::Find:
        case Command::FindNext:
            Find();
            break;
        case Command::BatchExport:
            message_ = ExportBatchFile(desk_->context, grid_.View(), CurrentKey()).value_or("");
            // It stood on the tables' own cursors.
            ReadAgain();
            break;
        case Command::BatchImport:
            BatchImport();
            break;
        case Command::Trace:
            SetTraceMode(host_.settings, !TraceMode(host_.settings));
            break;
        case Command::LastRecordKeys:
            host_.dialogs.Report(ListLastRecords(desk_->document.Adventure()), "Last Record Keys");
            break;
        case Command::ShortDescriptions:
            LoadShortDesc(desk_->context);
            ShowChanges(TableNum::Locations);
            break;
        default:
            DoView(command);
            break;
    }
    return std::nullopt;
}

void MainScreen::BatchImport() {
    const auto read = ImportBatchFile(desk_->context);
    ShowChanges(grid_.View().table);
    if (!read) return;
    mustExit_ = mustExit_ || read->mustExit;
    message_ = read->message;
}

std::optional<ScreenRequest> MainScreen::DoEntry(Command command) {
    ScreenContext& context = desk_->context;
    Entries entries(context);
    std::optional<ScreenRequest> request;
    if (command == Command::Add) request = entries.AddEntry();
    if (command == Command::AddBefore) request = entries.AddEntryBefore();
    if (command == Command::Edit) request = entries.EditEntry();
    if (command == Command::Settings) {
        context.currentTable = TableNum::Adventure;
        request = entries.EditEntry();
        context.currentTable = grid_.View().table;
    }
    if (command == Command::Delete) entries.DeleteEntry(beforeDelete);
    if (!request) ShowChanges(grid_.View().table);
    return request;
}

void MainScreen::ScreenClosed(const ScreenRequest& request) {
    if (!desk_) return;
    Guard([&] {
        if (!Entries(desk_->context).AfterScreen(request)) mustExit_ = true;
        ShowChanges(request.table);
        if (!request.key.isNew) return;
        const std::string filter = grid_.Filter();
        if (!grid_.RowOf(request.key.key)) grid_.SetFilter("");
        const auto added = grid_.RowOf(request.key.key);
        if (added) SelectRow(*added);
        // Nothing was added that the filter could have hidden.
        if (!added) SetFilter(filter);
    });
}

std::optional<int> MainScreen::TypedColumn() const {
    if (!desk_ || grid_.View().table != TableNum::Vocabulary) return std::nullopt;
    for (int column = 0; column < static_cast<int>(grid_.Columns().size()); ++column) {
        const std::string& field = grid_.Columns()[static_cast<std::size_t>(column)].field;
        if (text::EqualsNoCase(field, "word")) return column;
    }
    return std::nullopt;
}

bool MainScreen::MayType(int row) const {
    if (!TypedColumn() || running_ || !rights_.edit || desk_->document.IsReadOnly()) return false;
    const std::string type = text::ToText(grid_.ValueOf(row, "voctype"));
    return !text::EqualsNoCase(type, condacts::WordTypeName(condacts::kReserved));
}

bool MainScreen::StoreTyped(std::string_view text) {
    const auto key = CurrentKey();
    if (!key || !MayType(row_)) return false;
    const ScreenRequest request{
        .screen = Screen::Word, .key = {.key = *key}, .table = TableNum::Vocabulary};
    message_.clear();
    changesBefore_ = desk_->document.Changes();
    bool stored = false;
    Guard([&] {
        WordScreen screen(desk_->context, request.key);
        screen.word = text;
        stored = screen.Update();
    });
    if (stored) ScreenClosed(request);
    return stored;
}

/// Reads again what a command may have changed, and says what it was. `changed` is the table that the
/// command was about.
void MainScreen::ShowChanges(TableNum changed) {
    ReadAgain();
    const int changes = desk_->document.Changes() - changesBefore_;
    if (changes == 0) return;
    Place place{changed};
    if (changed == grid_.View().table) place = {changed, grid_.View().process, CurrentKey()};
    desk_->document.PlaceLatest(changes, place);
    if (const auto name = desk_->document.UndoName()) message_ = "Done: " + *name;
}

/// Takes back or makes again a change where it was made, so that the author sees what it does.
void MainScreen::UndoOrRedo(Command command) {
    Document& document = desk_->document;
    const bool undo = command == Command::Undo;
    const std::string name = UndoOrRedoName(command).value_or("");
    const std::optional<Place> place = undo ? document.UndoPlace() : document.RedoPlace();
    if (place) GoTo(*place);
    const TableGrid before = grid_;
    if (undo) {
        document.Undo();
    } else {
        document.Redo();
    }
    ReadAgain();
    // Only now the tree may have the table.
    if (place) GoTo(*place);
    const bool sameView = before.View() == grid_.View();
    if (const auto row = sameView ? grid_.FirstChange(before) : std::nullopt) {
        SelectRow(*row);
    } else if (place) {
        StayOn(place->key, row_);
    }
    message_ = (undo ? "Undone: " : "Done again: ") + name;
}

/// Shows a table and a record, as far as the adventure has them; what is shown already stays.
void MainScreen::GoTo(const Place& place) {
    const TableView view{place.table, place.process};
    if (view == grid_.View() || !NodeOf(tree_, view)) return;
    tabs_.Shown().record = false;
    SetupGrid(view);
    StayOn(place.key, 0);
    RememberView();
}

void MainScreen::Find() {
    const std::optional<int> found = find_.Find(grid_, row_, Caption(), host_.dialogs);
    if (found) SelectRow(*found);
}

SortScreen MainScreen::OpenSort() {
    changesBefore_ = desk_->document.Changes();
    return SortScreen(desk_->context, grid_.View().table, Caption(), ClickedOrder());
}

void MainScreen::SortClosed() {
    Guard([&] {
        if (desk_->document.Changes() == changesBefore_) return;
        const std::optional<int> key = CurrentKey();
        SetupGrid(grid_.View());
        StayOn(key, 0);
        ShowChanges(grid_.View().table);
    });
}

std::optional<std::string> MainScreen::ClickedOrder() const {
    const auto column = grid_.SortColumn();
    if (!column) return std::nullopt;
    const GridColumn& clicked = grid_.Columns()[static_cast<std::size_t>(*column)];
    if (clicked.uses) return std::nullopt;
    const std::string& field = clicked.field;
    const std::string key = store::KeyField(grid_.View().table);
    std::string order = field + (grid_.SortsDown() ? " desc" : "");
    if (field != key) order += ", " + key;
    return order;
}

}  // namespace fabula::authoring
