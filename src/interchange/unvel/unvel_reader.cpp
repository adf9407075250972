#include "interchange/unvel/unvel_reader.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "condacts/limits.h"
#include "condacts/load.h"
#include "interchange/given_records.h"
#include "interchange/pc/pc_extras.h"
#include "interchange/source_file.h"
#include "interchange/unmarlo/command_entries.h"
#include "interchange/unvel/unvel_general_data.h"
#include "interchange/unvel/unvel_head.h"
#include "interchange/unvel/unvel_notes.h"
#include "interchange/unvel/unvel_section.h"
#include "text/utf8.h"

namespace fabula::interchange {
namespace {

/// The stages of a listing, in their order.
enum StageNumber : int {
    kVocabulary = 1,
    kMessages = 2,
    kSystemMessages = 3,
    kLocations = 4,
    kConnections = 5,
    kObjectNames = 6,
    kObjectWords = 7,
    kObjectPlaces = 8,
    kObjectWeights = 9,
    kResponses = 10,  ///< and one for each process table behind it
    kPictures = 300,
    kCharacters = 301,
    kFlagNotes = 302,
    kProcessNotes = 303,
    kComments = 304,
};

struct TitleRow {
    std::string_view title;
    int stage;
};
constexpr TitleRow kTitles[] = {
    {"Vocabulary", kVocabulary},
    {"MESSAGES", kMessages},
    {"SYSTEM MESSAGES", kSystemMessages},
    {"LOCATIONS", kLocations},
    {"CONNECTIONS", kConnections},
    {"OBJECT NAMES", kObjectNames},
    {"OBJECT WORDS", kObjectWords},
    {"INITIALLY AT", kObjectPlaces},
    {"INITIALY AT", kObjectPlaces},
    {"OBJECT WEIGHT AND TYPE", kObjectWeights},
    {"RESPONSE TABLE", kResponses},
    {"PROCESS TABLE", kResponses + 1},
    {"GRAPHICS DATA", kPictures},
    {"; FLAG DESCRIPTIONS", kFlagNotes},
    {"; PROCESS TABLE DESCRIPTIONS", kProcessNotes},
    {"; COMMENTS", kComments},
};
constexpr std::string_view kTableTitle = "PROCESS";
/// The characters begin at this line, whatever stands below it.
constexpr std::string_view kCharactersTitle = "Charset 0";

bool IsDashes(const std::string* line) {
    if (line == nullptr) return false;
    const std::string_view text = TrimRight(*line);
    const std::size_t dashes = text.starts_with("; ") ? 2 : 0;
    return text.size() > dashes && text.find_first_not_of('-', dashes) == std::string_view::npos;
}

std::optional<int> StageOf(std::string_view title) {
    for (const TitleRow& row : kTitles) {
        if (row.title == title) return row.stage;
    }
    const auto table = NumberAlone(title, kTableTitle);
    if (!table || *table > condacts::limit::kHighestProcess) return std::nullopt;
    return kResponses + *table;
}

/// The walk over the sections. Each is made when its title is met, so that it has its table alone.
class UnVelWalk {
  public:
    explicit UnVelWalk(UnVelJob& job) : job_(job) {}

    /// False when the listing ends without pictures and without characters.
    bool Run() {
        std::string line;
        while (job_.listing.lines.Next(line)) {
            if (Begins(line)) continue;
            if (stage_ == kFlagNotes) {
                flagNotes_.Line(line);
            } else if (stage_ == kProcessNotes) {
                processNotes_.Line(line);
            } else if (stage_ == kComments) {
                TakeComment(line);
            } else if (section_) {
                section_->Line(line);
            }
        }
        EndSection();
        if (!hasPictures_ && !hasCharacters_) {
            job_.Status("Character sets and graphics not found. -C -G option not on UnVel");
            job_.Status("Load aborted");
            return false;
        }
        if (!hasCharacters_) job_.Status("Character sets not found. -C option not on UnVel");
        return true;
    }

    /// What the listing tells of flags and process tables; to be called behind the analysis of flags.
    void StoreNotes() const {
        if (describesFlags_) StoreFlagNotes(job_.Adventure(), flagNotes_);
        StoreProcessNotes(job_.Adventure(), processNotes_);
        for (const auto& [line, place] : comments_) {
            const std::string fault = ApplyExtra(job_.Adventure(), line);
            if (!fault.empty()) job_.listing.context.status.AddFault(fault, place);
        }
    }

  private:
    /// Whether a section begins at this line; its title and dashes are then done with.
    bool Begins(std::string_view line) {
        const std::string_view title = TrimRight(line);
        std::optional<int> stage;
        const bool hasDashes = IsDashes(job_.listing.lines.Peek());
        if (hasDashes) stage = StageOf(title);
        if (title == kCharactersTitle && stage_ >= kResponses) stage = kCharacters;
        if (!stage) return false;
        if (hasDashes) {
            std::string dashes;
            job_.listing.lines.Next(dashes);
        }
        Begin(*stage);
        return true;
    }

    void Begin(int stage) {
        EndSection();
        // Pictures and characters come in either order.
        if (stage <= stage_ && !(stage == kPictures && stage_ == kCharacters)) {
            job_.Fault("ERROR: The section stands behind one that must follow it.");
            return;
        }
        stage_ = stage;
        hasPictures_ = hasPictures_ || stage == kPictures;
        hasCharacters_ = hasCharacters_ || stage == kCharacters;
        describesFlags_ = describesFlags_ || stage == kFlagNotes;
        section_ = SectionOf(stage);
    }

    std::unique_ptr<UnVelSection> SectionOf(int stage) {
        switch (stage) {
            case kVocabulary:
                return UnVelVocabulary(job_);
            case kMessages:
                return UnVelTexts(job_, UnVelTextKind::Messages);
            case kSystemMessages:
                return UnVelTexts(job_, UnVelTextKind::SystemMessages);
            case kLocations:
                return UnVelTexts(job_, UnVelTextKind::Locations);
            case kConnections:
                return UnVelConnections(job_);
            case kObjectNames:
                return UnVelTexts(job_, UnVelTextKind::ObjectNames);
            case kObjectWords:
                return UnVelObjectWords(job_);
            case kObjectPlaces:
                return UnVelObjectPlaces(job_);
            case kObjectWeights:
                return UnVelObjectWeights(job_);
            case kPictures:
                return UnVelPictures(job_);
            case kCharacters:
                return UnVelCharacters(job_);
            case kFlagNotes:
            case kProcessNotes:
            case kComments:
                return nullptr;
            default:
                return UnVelEntries(job_, stage - kResponses);
        }
    }

    /// A line "; ! Messages 7 comment Why it is so".
    void TakeComment(std::string_view line) {
        constexpr std::string_view kBegin = "; ";
        if (!line.starts_with(kBegin)) return;
        comments_.emplace_back(line.substr(kBegin.size()), job_.listing.lines.Place());
    }

    void EndSection() {
        if (section_) section_->Finish();
        section_.reset();
    }

    UnVelJob& job_;
    int stage_ = 0;
    bool hasPictures_ = false;
    bool hasCharacters_ = false;
    bool describesFlags_ = false;
    UnVelNotes flagNotes_{kFlagNote};
    UnVelNotes processNotes_{kProcessNote};
    std::vector<std::pair<std::string, SourcePlace>> comments_;
    std::unique_ptr<UnVelSection> section_;
};

bool DrawsPictures(store::Adventure& adventure) {
    store::PreparedQuery settings = adventure.Prepare(store::TableNum::Adventure, "graphics", "");
    return settings.First({}) && settings.Number(0) != 0;
}

}  // namespace

bool LoadUnVel(ImportContext& context) {
    context.status.AddToStatusCR("Loading UnVEL " + context.source.string());
    context.status.AddToStatusCR("Look for a User Flag Analysis at end of Status");
    ListingLines lines(context.source, context.status);
    const auto head = ReadUnVelHead(lines, context.person);
    if (!head) return false;
    NameGame(context.adventure, head->name);
    const condacts::Catalogue catalogue = condacts::LoadCatalogue(context.adventure);
    ListingJob listing{context, lines, catalogue, FlagAnalysis(context.adventure, catalogue)};
    const DefaultWords defaults(context.adventure);
    UnVelJob job{listing, head->isMarlo, defaults};
    ReadGeneralData(listing, head->isMarlo);
    UnVelWalk walk(job);
    if (!walk.Run()) return false;
    if (head->isMarlo) {
        AddMarloCommands(listing, DrawsPictures(context.adventure));
    } else {
        AddVelCommands(listing);
    }
    listing.analysis.PrintFlagAnal(context.adventure, context.status);
    walk.StoreNotes();
    return true;
}

}  // namespace fabula::interchange
