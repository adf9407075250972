#include "authoring/jobs/interchange_screen.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <utility>

#include "authoring/document/screen_context.h"
#include "authoring/files/start_up.h"
#include "authoring/jobs/status_text.h"
#include "platform/error.h"
#include "platform/whole_file.h"
#include "text/fields.h"
#include "text/numbers.h"
#include "text/str_edit.h"
#include "text/utf8.h"

namespace fabula::authoring {
namespace {

using interchange::FileKind;
using interchange::JobResult;
using std::filesystem::path;

constexpr std::int64_t kStepsAYield = 10;

constexpr std::string_view kImportKinds[] = {"UnMarlo", "UnVel", "PCVEL", "Fabula", "ACE"};
constexpr std::string_view kExportKinds[] = {"UnVel", "PCVEL", "Fabula"};
/// The kind that is chosen at first, where a mode has it.
constexpr std::string_view kUsualKind = "PCVEL";
constexpr std::string_view kGraphicKinds[] = {"UnMarlo", "UnVel"};

struct ModeRow {
    std::string_view title;
    std::string_view label;
    std::string_view button;
    std::span<const std::string_view> kinds;
    std::string_view verb;  ///< what the kinds that are missing can't do
};

const std::array<ModeRow, 3> kModes{{
    {"Import of source file", "Import Status", "&Import", kImportKinds, "read"},
    {"Export of Database", "Export Status", "&Export", kExportKinds, "write"},
    {"Import of Graphic Record into record ", "Import Status", "&Load", kGraphicKinds, "read"},
}};

const ModeRow& RowOf(JobMode mode) {
    return kModes[static_cast<std::size_t>(mode)];
}

std::vector<InterchangeScreen::KindOption> KindsOf(JobMode mode) {
    std::vector<InterchangeScreen::KindOption> kinds;
    for (const std::string_view name : RowOf(mode).kinds) {
        const FileKind* kind = interchange::FindFileKind(name);
        const bool usable = kind && (mode == JobMode::Export ? kind->CanWrite() : kind->CanRead());
        InterchangeScreen::KindOption option{name, usable ? kind : nullptr};
        if (!usable)
            option.why = "This version cannot yet " + std::string(RowOf(mode).verb) +
                         " files of the kind " + std::string(name) + ".";
        kinds.push_back(option);
    }
    return kinds;
}

/// What a game is exported as at first, by the `source` that it came from. Other games have the usual kind.
struct OwnKind {
    std::string_view source;
    std::string_view kind;
};

constexpr OwnKind kOwnKinds[] = {
    {"New", "Fabula"}, {"FabulaExp", "Fabula"}, {"UnVel", "UnVel"}, {"PCVel", "PCVEL"}, {"ACE", "PCVEL"},
};

std::string_view OwnKindOf(store::Adventure& adventure) {
    const std::string source(adventure.OpenTable(store::TableNum::Adventure, "source").Text("source"));
    for (const OwnKind& own : kOwnKinds) {
        if (text::EqualsNoCase(own.source, source)) return own.kind;
    }
    return kUsualKind;
}

constexpr std::uintmax_t kBytesThatTell = 65536;

/// The kind of a source, where its beginning tells it: an export file begins with its version and goes on
/// with the fields of records; a PC source has a section /CTL. "" for any other, and for a file that can't
/// be read, which the import tells.
std::string_view KindOfSource(const path& file) {
    std::string start;
    try {
        start = platform::ReadStartOfFile(file, kBytesThatTell, "read the source");
    } catch (const Error&) {
        return "";
    }
    const auto lines = text::Split(start, "\n");
    if (lines.size() > 1 && text::Split(lines[0], ".").size() == 3 &&
        text::WholeNumber(text::Split(lines[1], "|")[0]) && lines[1].find('|') != std::string_view::npos)
        return "Fabula";
    const bool isPcSource = std::ranges::any_of(
        lines, [](std::string_view line) { return text::EqualsNoCase(line.substr(0, 4), "/CTL"); });
    return isPcSource ? "PCVEL" : "";
}

bool IsSameFile(const path& left, const path& right) {
    std::error_code missing;  // what is not there is no file
    return std::filesystem::equivalent(left, right, missing);
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
    while (chosen_ + 1 < kinds_.size() && !kinds_[chosen_].kind)
        ++chosen_;
    ChooseKindNamed(mode == JobMode::Export && adventure ? OwnKindOf(*adventure) : kUsualKind);
    source = ProposedTarget();
}

/// The name of the adventure's export; "" for other jobs.
std::string InterchangeScreen::ProposedTarget() const {
    if (mode_ != JobMode::Export || !adventure_ || !Kind()) return "";
    return adventure_->CurrentFile().stem().string() + std::string(Kind()->extension);
}

void InterchangeScreen::ChooseKindNamed(std::string_view name) {
    for (std::size_t option = 0; option < kinds_.size(); ++option) {
        if (kinds_[option].name == name && kinds_[option].kind) chosen_ = option;
    }
}

/// An ACE source looks like a PC source: who has chosen that kind knows better.
void InterchangeScreen::ChooseKindOf(const path& file) {
    const std::string_view kind = KindOfSource(file);
    const bool isAce = kind == "PCVEL" && kinds_[chosen_].name == "ACE";
    if (!kind.empty() && !isAce) ChooseKindNamed(kind);
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
    if (running_ || option >= kinds_.size() || !kinds_[option].kind) return false;
    const bool proposed = source == ProposedTarget();
    chosen_ = option;
    if (proposed) source = ProposedTarget();
    return true;
}

void InterchangeScreen::ChooseSource() {
    const bool writes = mode_ == JobMode::Export;
    interchange::DialogText shown{"", "Select Source File", "All Files|*.*"};
    if (mode_ != JobMode::LoadGraphic && Kind())
        shown = writes ? Kind()->exportDialog : Kind()->importDialog;
    path start = Placed(source);
    if (start.empty() && adventure_) start = adventure_->GameDir() / ProposedTarget();
    const std::string extension =
        writes && Kind() ? ExtensionOf(shown.defaultName, Kind()->extension) : std::string();
    const auto file = host_.dialogs.ChooseFile(
        {std::string(shown.title), std::string(shown.filter), extension, writes, start});
    if (!file) return;
    source = file->string();
    if (writes) agreed_ = *file;
    if (mode_ == JobMode::Import) ChooseKindOf(*file);
    if (mode_ == JobMode::Import && text::Trimmed(database).empty())
        database = path(*file).replace_extension(".fbd").string();
    Show();
}

void InterchangeScreen::ChooseDatabase() {
    path start = text::Trimmed(database);
    if (start.empty()) start = path(text::Trimmed(source)).parent_path();
    const auto file =
        host_.dialogs.ChooseFile({"Create a Fabula Database", "Fabula Database|*.fbd", "fbd", true, start});
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
    if (text::Trimmed(source).empty()) return Refuse(host_.dialogs, "Source File not specified");
    source = Placed(source);
    if (mode_ == JobMode::LoadGraphic) return LoadGraphics();
    database = Placed(database);
    return mode_ == JobMode::Export ? ExportIt() : ImportIt();
}

bool InterchangeScreen::ImportIt() {
    if (database.empty()) ChooseDatabase();
    if (database.empty()) return false;
    path target = database;
    if (!target.has_extension()) target += ".fbd";
    database = target.string();
    if (IsSameFile(source, target))
        return Refuse(host_.dialogs, "The database cannot be the source file itself");
    if (adventure_ && IsSameFile(target, adventure_->CurrentFile()))
        return Refuse(host_.dialogs, "The database cannot be the open adventure itself");
    if (!MayReplace(target)) return false;
    const bool imported =
        Run([&] { return interchange::ImportIt(*Kind(), source, target, true, JobHost()).done; });
    if (!imported) return false;
    newFile_ = std::filesystem::absolute(target);
    host_.settings.Set(startup::kSection, startup::kFile, newFile_->string());
    return true;
}

bool InterchangeScreen::ExportIt() {
    path target = source;
    if (!target.has_extension()) target += std::string(Kind()->extension);
    source = target.string();
    if (IsSameFile(target, adventure_->CurrentFile()))
        return Refuse(host_.dialogs, "The export cannot be written over the adventure itself");
    if (!MayReplace(target)) return false;
    const auto verifier = [this](store::Adventure& adventure, const FileKind& kind,
                                 interchange::JobStatus& status) {
        return Verify(adventure, kind, status);
    };
    return Run(
        [&] { return interchange::ExportIt(*Kind(), *adventure_, target, verifier, JobHost()).done; });
}

/// What was loaded is one step of Undo, and stays when nobody says where it is to go.
bool InterchangeScreen::LoadGraphics() {
    interchange::LoadedPictures loaded;
    const bool done = Run([&] {
        Change change(*document_, "load pictures of a listing");
        interchange::JobStatus status(*this);
        const bool isUnVel = Kind()->word == "unvel";
        loaded = interchange::LoadGraphics({isUnVel, source, records, record_}, *adventure_, host_.dialogs,
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
    VerifyScreen verify(adventure, VerifyTargetFrom(kind.word).value_or(VerifyTarget::Play), host_.events);
    showVerify(verify);
    status.AddToStatus(verify.Status());
    return verify.Passed();
}

/// Asks before a file is replaced, unless its dialog has done so.
bool InterchangeScreen::MayReplace(const path& file) {
    std::error_code missing;  // what can't be looked at fails when it is written
    if (file == agreed_ || !std::filesystem::exists(file, missing)) return true;
    return host_.dialogs.Confirm("All information in " + file.string() + " will be deleted.", "Warning");
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
