#include "interchange/unvel/unvel_reader.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "condacts/language/load.h"
#include "condacts/limits.h"
#include "interchange/listing/command_entries.h"
#include "interchange/shared/given_records.h"
#include "interchange/shared/source_extras.h"
#include "interchange/shared/source_file.h"
#include "interchange/unvel/unvel_general_data.h"
#include "interchange/unvel/unvel_head.h"
#include "interchange/unvel/unvel_notes.h"
#include "interchange/unvel/unvel_section.h"
#include "text/encoding/utf8.h"

namespace fabula::interchange {
namespace {

/// The stages of a listing, in their order.
enum StageNumber : int {
    kVocabularyStage = 1,
    kMessagesStage = 2,
    kSystemMessagesStage = 3,
    kLocationsStage = 4,
    kConnectionsStage = 5,
    kObjectNamesStage = 6,
    kObjectWordsStage = 7,
    kObjectPlacesStage = 8,
    kObjectWeightsStage = 9,
    kResponsesStage = 10,  ///< and one for each process table behind it
    kPicturesStage = 300,
    kCharactersStage = 301,
    kFlagNotesStage = 302,
    kProcessNotesStage = 303,
    kCommentsStage = 304,
};

struct TitleRow {
    std::string_view title;
    int stage;
};
constexpr TitleRow kTitles[] = {
    {"Vocabulary", kVocabularyStage},
    {"MESSAGES", kMessagesStage},
    {"SYSTEM MESSAGES", kSystemMessagesStage},
    {"LOCATIONS", kLocationsStage},
    {"CONNECTIONS", kConnectionsStage},
    {"OBJECT NAMES", kObjectNamesStage},
    {"OBJECT WORDS", kObjectWordsStage},
    {"INITIALLY AT", kObjectPlacesStage},
    {"INITIALY AT", kObjectPlacesStage},
    {"OBJECT WEIGHT AND TYPE", kObjectWeightsStage},
    {"RESPONSE TABLE", kResponsesStage},
    {"PROCESS TABLE", kResponsesStage + 1},
    {"GRAPHICS DATA", kPicturesStage},
    {"; FLAG DESCRIPTIONS", kFlagNotesStage},
    {"; PROCESS TABLE DESCRIPTIONS", kProcessNotesStage},
    {"; COMMENTS", kCommentsStage},
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
    if (!table || *table > condacts::limit::kHighestProcess.value) return std::nullopt;
    return kResponsesStage + *table;
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
            if (stage_ == kFlagNotesStage) {
                flagNotes_.Line(line);
            } else if (stage_ == kProcessNotesStage) {
                processNotes_.Line(line);
            } else if (stage_ == kCommentsStage) {
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
        if (title == kCharactersTitle && stage_ >= kResponsesStage) stage = kCharactersStage;
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
        if (stage <= stage_ && !(stage == kPicturesStage && stage_ == kCharactersStage)) {
            job_.Fault(kSectionBehind);
            return;
        }
        stage_ = stage;
        hasPictures_ = hasPictures_ || stage == kPicturesStage;
        hasCharacters_ = hasCharacters_ || stage == kCharactersStage;
        describesFlags_ = describesFlags_ || stage == kFlagNotesStage;
        section_ = SectionOf(stage);
    }

    std::unique_ptr<ListingSection> SectionOf(int stage) {
        switch (stage) {
            case kVocabularyStage:
                return UnVelVocabulary(job_);
            case kMessagesStage:
                return UnVelTexts(job_, UnVelTextKind::Messages);
            case kSystemMessagesStage:
                return UnVelTexts(job_, UnVelTextKind::SystemMessages);
            case kLocationsStage:
                return UnVelTexts(job_, UnVelTextKind::Locations);
            case kConnectionsStage:
                return UnVelConnections(job_);
            case kObjectNamesStage:
                return UnVelTexts(job_, UnVelTextKind::ObjectNames);
            case kObjectWordsStage:
                return UnVelObjectWords(job_);
            case kObjectPlacesStage:
                return UnVelObjectPlaces(job_);
            case kObjectWeightsStage:
                return UnVelObjectWeights(job_);
            case kPicturesStage:
                return UnVelPictures(job_);
            case kCharactersStage:
                return UnVelCharacters(job_);
            case kFlagNotesStage:
            case kProcessNotesStage:
            case kCommentsStage:
                return nullptr;
            default:
                return UnVelEntries(job_, condacts::ProcessNumber(stage - kResponsesStage));
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
    std::unique_ptr<ListingSection> section_;
};

bool DrawsPictures(store::Adventure& adventure) {
    store::PreparedQuery settings = adventure.Prepare(store::TableNum::Adventure, "graphics", "");
    return settings.First({}) && settings.Number(0) != 0;
}

}  // namespace

bool LoadUnVel(ImportContext& context) {
    context.status.AddToStatusCR("Loading UnVEL " + context.source.string());
    context.status.AddToStatusCR(kLookForFlags);
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
