#include "authoring/jobs/interchange_screen.h"

#include <algorithm>
#include <array>
#include <utility>

#include "authoring/document/screen_context.h"
#include "authoring/files/may_replace.h"
#include "authoring/files/start_up.h"
#include "authoring/jobs/status_text.h"
#include "interchange/jobs.h"
#include "platform/error.h"
#include "platform/file_question.h"
#include "platform/whole_file.h"
#include "store/extensions.h"
#include "store/file/file_copy.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using interchange::FileKind;
using interchange::JobResult;
using std::filesystem::path;

constexpr std::int64_t kStepsAYield = 10;

struct ModeRow {
    std::string_view title;
    std::string_view label;
    std::string_view button;
};

const std::array<ModeRow, 3> kModes{{
    {"Import of source file", "Import Status", "&Import"},
    {"Export of Database", "Export Status", "&Export"},
    {"Import of Graphic Record into record ", "Import Status", "&Load"},
}};

const ModeRow& RowOf(JobMode mode) {
    return kModes[static_cast<std::size_t>(mode)];
}

bool IsOffered(const FileKind& kind, JobMode mode) {
    if (mode == JobMode::Export) return kind.isInExportDialog;
    return mode == JobMode::Import ? kind.CanRead() : kind.CanLoadPictures();
}

std::vector<const FileKind*> KindsOf(JobMode mode) {
    std::vector<const FileKind*> kinds;
    for (const FileKind& kind : interchange::FileKinds()) {
        if (IsOffered(kind, mode)) kinds.push_back(&kind);
    }
    return kinds;
}

const FileKind& OwnKindOf(store::Adventure& adventure) {
    return interchange::FirstExportKind(
        adventure.OpenTable(store::TableNum::Adventure, "source").Text("source"));
}

constexpr std::uintmax_t kBytesThatTell = 65536;

/// "" for a file that can't be read, which the import tells.
std::string BeginningOf(const path& file) {
    try {
        return platform::ReadStartOfFile(file, kBytesThatTell, "read the source");
    } catch (const Error&) {
        return "";
    }
}

/// "sce" of "*.sce".
std::string ExtensionOf(std::string_view defaultName, std::string_view otherwise) {
    const std::string_view name = defaultName.empty() ? otherwise : defaultName;
    return std::string(name.substr(name.find('.') + 1));
}

}  // namespace

InterchangeScreen::InterchangeScreen(Document& document, const InterchangeHost& host, int record)
    : InterchangeScreen(JobMode::LoadGraphic, &document.Adventure(), host) {
    document_ = &document;
    record_ = record;
}

InterchangeScreen::InterchangeScreen(JobMode mode, store::Adventure* adventure, const InterchangeHost& host)
    : mode_(mode), adventure_(adventure), host_(host), kinds_(KindsOf(mode)) {
    Choose(mode == JobMode::Export && adventure ? OwnKindOf(*adventure) : interchange::UsualFileKind());
    source = ProposedTarget();
}

/// The name of the adventure's export; "" for other jobs.
std::string InterchangeScreen::ProposedTarget() const {
    if (mode_ != JobMode::Export || !adventure_) return "";
    return adventure_->CurrentFile().stem().string() + std::string(Kind().extension);
}

/// Nothing for a kind that is not offered.
void InterchangeScreen::Choose(const FileKind& kind) {
    const auto option = std::ranges::find(kinds_, &kind);
    if (option != kinds_.end()) chosen_ = static_cast<std::size_t>(option - kinds_.begin());
}

/// Where sources of two kinds look alike, who has chosen one of them knows better.
void InterchangeScreen::ChooseKindOf(const path& file) {
    const FileKind* kind = interchange::KindThatBegins(BeginningOf(file), Kind());
    if (kind != nullptr) Choose(*kind);
}

std::string InterchangeScreen::Title() const {
    const std::string title(RowOf(mode_).title);
    return mode_ == JobMode::LoadGraphic ? title + std::to_string(record_) : title;
}

std::string_view InterchangeScreen::StatusCaption() const {
    return RowOf(mode_).label;
}

std::string_view InterchangeScreen::MainButton() const {
    return RowOf(mode_).button;
}

std::string_view InterchangeScreen::WhyNot() const {
    if (mode_ == JobMode::Export && !adventure_) return "No adventure is open.";
    return "";
}

std::span<const InterchangeScreen::EncodingOption> InterchangeScreen::Encodings() {
    using interchange::Encoding;
    static constexpr std::array<EncodingOption, 3> kEncodings = {{
        {"As the file tells", Encoding::Detect},
        {"UTF-8", Encoding::Utf8},
        {"Windows-1252", Encoding::Windows1252},
    }};
    return kEncodings;
}

bool InterchangeScreen::ChooseKind(std::size_t option) {
    if (running_ || option >= kinds_.size()) return false;
    const bool proposed = source == ProposedTarget();
    chosen_ = option;
    if (proposed) source = ProposedTarget();
    return true;
}

void InterchangeScreen::ChooseSource() {
    const bool writes = mode_ == JobMode::Export;
    interchange::DialogText shown{"", "Select Source File", "All Files|*.*"};
    if (mode_ != JobMode::LoadGraphic) shown = writes ? Kind().exportDialog : Kind().importDialog;
    path start = Placed(source);
    if (start.empty() && adventure_) start = adventure_->GameDir() / ProposedTarget();
    const std::string extension = writes ? ExtensionOf(shown.defaultName, Kind().extension) : std::string();
    const auto file = host_.dialogs.ChooseFile(
        {std::string(shown.title), std::string(shown.filter), extension, writes, start});
    if (!file) return;
    source = file->string();
    if (writes) agreed_ = *file;
    if (mode_ == JobMode::Import) ChooseKindOf(*file);
    if (mode_ == JobMode::Import && text::Trimmed(database).empty())
        database = path(*file).replace_extension(store::extension::kAdventure).string();
    Show();
}

void InterchangeScreen::ChooseDatabase() {
    path start = text::Trimmed(database);
    if (start.empty()) start = path(text::Trimmed(source)).parent_path();
    platform::FileQuestion question = platform::QuestionFor("Create a Fabula Database", "Fabula Database",
                                                            store::extension::kAdventure, start);
    question.forWriting = true;
    const auto file = host_.dialogs.ChooseFile(question);
    if (!file) return;
    database = file->string();
    agreed_ = *file;
    Show();
}

/// A name without a folder lies beside the open adventure, and not where the program was started.
std::string InterchangeScreen::Placed(const std::string& typed) const {
    const path file = text::Trimmed(typed);
    if (file.empty() || !adventure_) return file.string();
    return (adventure_->GameDir() / file).string();
}

bool InterchangeScreen::RunJob() {
    if (!CanRun()) return false;
    if (text::Trimmed(source).empty()) return Refuse(host_.dialogs, interchange::kNoSourceFile);
    source = Placed(source);
    if (mode_ == JobMode::LoadGraphic) return LoadGraphics();
    database = Placed(database);
    return mode_ == JobMode::Export ? ExportIt() : ImportIt();
}

bool InterchangeScreen::ImportIt() {
    if (database.empty()) ChooseDatabase();
    if (database.empty()) return false;
    path target = database;
    if (!target.has_extension()) target += store::extension::kAdventure;
    database = target.string();
    if (store::IsSameFile(source, target))
        return Refuse(host_.dialogs, "The database cannot be the source file itself");
    if (adventure_ && store::IsSameFile(target, adventure_->CurrentFile()))
        return Refuse(host_.dialogs, "The database cannot be the open adventure itself");
    if (target != agreed_ && !MayReplace(target, host_.dialogs)) return false;
    const bool imported =
        Run([&] { return interchange::ImportIt(Kind(), source, target, JobHost()).done; });
    if (!imported) return false;
    newFile_ = std::filesystem::absolute(target);
    host_.settings.Set(startup::kSection, startup::kFile, newFile_->string());
    return true;
}

bool InterchangeScreen::ExportIt() {
    path target = source;
    if (!target.has_extension()) target += std::string(Kind().extension);
    source = target.string();
    if (store::IsSameFile(target, adventure_->CurrentFile()))
        return Refuse(host_.dialogs, "The export cannot be written over the adventure itself");
    if (target != agreed_ && !MayReplace(target, host_.dialogs)) return false;
    const auto verifier = [this](store::Adventure& adventure, const FileKind& kind,
                                 interchange::JobStatus& status) {
        return Verify(adventure, kind, status);
    };
    return Run(
        [&] { return interchange::ExportIt(Kind(), *adventure_, target, verifier, JobHost()).done; });
}

/// What was loaded is one step of Undo, and stays when nobody says where it is to go.
bool InterchangeScreen::LoadGraphics() {
    interchange::LoadedPictures loaded;
    const bool done = Run([&] {
        Change change(*document_, "load pictures of a listing");
        interchange::JobStatus status(*this);
        loaded = interchange::LoadGraphics({Kind(), source, records, record_}, *adventure_, host_.dialogs,
                                           status);
        if (loaded.pictures.empty()) return false;
        change.Commit();
        return true;
    });
    if (!done || loaded.subroutines.empty()) return done;
    NewLocationsScreen places(*document_, std::move(loaded), host_.dialogs);
    showNewLocations(places);
    return true;
}

bool InterchangeScreen::Verify(store::Adventure& adventure, const FileKind& kind,
                               interchange::JobStatus& status) {
    VerifyScreen verify(adventure, &kind, host_.events);
    showVerify(verify);
    status.AddToStatus(verify.Status());
    return verify.Passed();
}

bool InterchangeScreen::Run(const std::function<bool()>& job) {
    running_ = true;
    cancel_ = false;
    bool done = false;
    Show();
    try {
        done = job();
    } catch (const Error& error) {
        status_ += std::string(error.what()) + "\n";
        host_.dialogs.Tell(error.what(), "Error");
    } catch (...) {
        running_ = false;
        throw;
    }
    running_ = false;
    done_ = done;
    printable_ = true;
    bar_ = 0;
    Show();
    return done;
}

interchange::JobHost InterchangeScreen::JobHost() {
    return {host_.dialogs, host_.clock, host_.events, *this, host_.defaultData, encoding};
}

bool InterchangeScreen::SaveStatus() {
    const path file = text::Trimmed(source);
    return SaveStatusText(status_, file.parent_path() / (file.stem().string() + "-status.txt"),
                          host_.dialogs);
}

void InterchangeScreen::StatusAdded(std::string_view text) {
    status_ += text;
    Show();
}

void InterchangeScreen::StatusCleared() {
    status_.clear();
    Show();
}

void InterchangeScreen::Progress(std::int64_t value, std::int64_t maximum) {
    bar_ = value;
    barMaximum_ = maximum;
    if (value / kStepsAYield == yielded_) return;
    yielded_ = value / kStepsAYield;
    Show();
}

void InterchangeScreen::Show() {
    changed();
    if (running_) host_.events.Pump();
}

}  // namespace fabula::authoring
