#include "authoring/desk/search/navigator.h"

#include <algorithm>
#include <map>
#include <set>

#include "authoring/entries/record_keys.h"
#include "authoring/fields/texts/brief_text.h"
#include "condacts/language/parser.h"
#include "references/find_replace.h"
#include "text/encoding/utf8.h"

namespace fabula::authoring {

using references::Kind;
using references::Target;
using store::PreparedQuery;
using store::TableNum;

/// What is known of the open document, as long as it is open.
struct Navigator::Followed {
    explicit Followed(store::Adventure& followed) : index(followed), adventure(followed) {}

    references::Index index;
    store::Adventure& adventure;
    std::optional<references::PlaceText> places;
};

namespace {

/// Letters in front of a number.
struct Shorthand {
    char letter;
    TableNum table;
};
constexpr Shorthand kShorthands[] = {
    {'l', TableNum::Locations},      {'m', TableNum::Messages}, {'o', TableNum::Objects},
    {'s', TableNum::SystemMessages}, {'f', TableNum::Flags},    {'p', TableNum::ProcDesc},
    {'d', TableNum::Pictures},
};

/// The tables whose texts are searched for a part of them, in the order of what is shown.
constexpr TableNum kSearchedTables[] = {
    TableNum::Vocabulary, TableNum::Objects,  TableNum::Locations,      TableNum::Flags,
    TableNum::ProcDesc,   TableNum::Messages, TableNum::SystemMessages,
};

struct SearchedText {
    TableNum table;
    std::string_view key;
    std::string_view text;
};

constexpr std::string_view kShortDescription = "locshortdesc";

std::string Plural(std::size_t count, std::string_view one) {
    return std::to_string(count) + " " + std::string(one) + (count == 1 ? "" : "s");
}

/// The texts of a table, the one that says most of a record in a few words first.
std::vector<SearchedText> TextsOf(TableNum table) {
    using enum references::SearchedField::Form;
    if (table == TableNum::Vocabulary) return {{table, "vocindex", "word"}};
    std::vector<SearchedText> texts;
    for (const references::SearchedField& each : references::SearchedFields()) {
        if (each.table != table || (each.form != Markup && each.form != Note)) continue;
        texts.insert(each.field == kShortDescription ? texts.begin() : texts.end(),
                     {table, each.key, each.field});
    }
    return texts;
}

std::vector<SearchedText> AllTexts() {
    std::vector<SearchedText> texts;
    for (const TableNum table : kSearchedTables) {
        const auto more = TextsOf(table);
        texts.insert(texts.end(), more.begin(), more.end());
    }
    return texts;
}

}  // namespace

Navigator::Navigator(MainScreen& main) : main_(main) {
    main_.countUses = [this](TableNum table, const std::vector<int>& keys) {
        return CountsOf(table, keys);
    };
}

Navigator::~Navigator() {
    main_.countUses = {};
}

std::vector<int> Navigator::CountsOf(TableNum table, const std::vector<int>& keys) {
    std::vector<int> counts(keys.size());
    const auto kind = references::KindOf(table);
    if (!kind || OpenDocument() == nullptr) return counts;
    std::map<int, std::pair<int, int>> words;  // number and type
    if (*kind == Kind::Word) {
        PreparedQuery rows = followed_->adventure.Prepare(table, "vocindex, vocnum, voctypen", "");
        for (bool more = rows.First({}); more; more = rows.Next())
            words[static_cast<int>(rows.Number(0))] = {static_cast<int>(rows.Number(1)),
                                                       static_cast<int>(rows.Number(2))};
    }
    for (std::size_t i = 0; i < keys.size(); ++i) {
        Target target{*kind, keys[i]};
        references::WordTypes types = references::kAnyType;
        if (*kind == Kind::Word) {
            target.number = words[keys[i]].first;
            types = references::TypeBit(words[keys[i]].second);
        }
        counts[i] = followed_->index.CountOf(target, types);
    }
    return counts;
}

Document* Navigator::OpenDocument() {
    if (main_.GetState() == MainScreen::State::NoAdventure) {
        followed_.reset();
        return nullptr;
    }
    Document& document = main_.CurrentContext().document;
    // A document that was opened since, or goes on with a copy, is not followed yet.
    if (!followed_ || !document.onChange || &followed_->adventure != &document.Adventure()) {
        if (!document.onChange) ForgetJumps();
        followed_ = std::make_shared<Followed>(document.Adventure());
        ++edition_;
        document.onChange = [this, known = std::weak_ptr(followed_), &document](std::string_view changes) {
            const auto followed = known.lock();
            if (!followed || &followed->adventure != &document.Adventure()) return;
            followed->index.Update(followed->adventure, changes);
            followed->places.reset();
            ++edition_;
        };
    }
    return &document;
}

const references::Index& Navigator::Index() {
    OpenDocument();
    return followed_->index;
}

int Navigator::Edition() {
    return OpenDocument() == nullptr ? 0 : edition_;
}

references::PlaceText& Navigator::Places() {
    if (!followed_->places) followed_->places.emplace(followed_->adventure);
    return *followed_->places;
}

std::optional<Jump> Navigator::Here() const {
    const TableGrid& grid = main_.Grid();
    if (main_.GetState() == MainScreen::State::NoAdventure || main_.CurrentRow() < 0) return std::nullopt;
    return Jump{grid.View(), grid.KeyOf(main_.CurrentRow())};
}

namespace {

/// What is asked about a record: of a word its number and type.
std::optional<std::pair<Target, references::WordTypes>> TargetOf(store::Adventure& adventure,
                                                                 const Jump& jump) {
    const auto kind = references::KindOf(jump.view.table);
    if (!kind) return std::nullopt;
    if (*kind != Kind::Word) return std::pair(Target{*kind, jump.key}, references::kAnyType);
    PreparedQuery row = adventure.Prepare(TableNum::Vocabulary, "vocnum, voctypen", "vocindex=?");
    if (!row.First({std::int64_t{jump.key}})) return std::nullopt;
    return std::pair(Target{*kind, static_cast<int>(row.Number(0))},
                     references::TypeBit(static_cast<int>(row.Number(1))));
}

}  // namespace

std::string TitleOfUses(const std::string& name, std::size_t count) {
    if (count == 1) return name + ": 1 use";
    return name + ": " + std::to_string(count) + " uses";
}

std::string Navigator::Title() {
    const auto here = Here();
    if (!here || OpenDocument() == nullptr) return {};
    const std::string name = Places().RecordName(here->view.table, here->key);
    const std::size_t count = Lines().size();
    if (here->view.table == TableNum::ProcessTables) return name + " names " + Plural(count, "record");
    if (!references::KindOf(here->view.table)) return {};
    return count == 0 ? name + ": not used" : TitleOfUses(name, count);
}

std::vector<JumpLine> Navigator::Lines() {
    std::vector<JumpLine> lines;
    const auto here = Here();
    if (!here || OpenDocument() == nullptr) return lines;
    if (here->view.table == TableNum::ProcessTables) return Named();
    return UsesOf(*here);
}

std::vector<JumpLine> Navigator::UsesOf(const Jump& record) {
    OpenDocument();
    std::vector<JumpLine> lines;
    const auto target = TargetOf(followed_->adventure, record);
    if (!target) return lines;
    for (const references::Use& use : followed_->index.UsesOf(target->first, target->second))
        lines.push_back(LineFor(use));
    return lines;
}

std::string Navigator::NameOf(const Jump& record) {
    OpenDocument();
    return Places().RecordName(record.view.table, record.key);
}

std::optional<Jump> Navigator::Find(const NamedRecord& record) {
    OpenDocument();
    if (!HasRecord(followed_->adventure, record.table, record.key)) return std::nullopt;
    return JumpTo(record.table, record.key);
}

std::vector<JumpLine> Navigator::Named() {
    const auto here = Here();
    if (!here || OpenDocument() == nullptr) return {};
    return NamedBy(here->view.table, here->key);
}

std::vector<JumpLine> Navigator::NamedBy(TableNum table, std::int64_t key) {
    OpenDocument();
    std::vector<JumpLine> lines;
    std::set<std::pair<Target, references::WordTypes>> seen;
    for (const references::Use& use : followed_->index.UsesBy(table, key)) {
        if (use.possible || use.field == "estype" || !seen.insert({use.target, use.wordTypes}).second)
            continue;
        if (auto line = LineOf(use.target, use.wordTypes)) lines.push_back(std::move(*line));
    }
    return lines;
}

JumpLine Navigator::LineFor(const references::Use& use) {
    JumpLine line;
    line.jump = JumpTo(use.table, use.record);
    line.possible = use.possible;
    line.text = Places().RecordName(use.table, use.record);
    line.text.append(": ").append(Places().Around(use));
    if (use.possible)
        line.text += " (possibly)";
    else if (use.access != references::Access::Names)
        line.text.append(" (").append(references::NameOf(use.access)).append(")");
    return line;
}

std::optional<JumpLine> Navigator::LineOf(const Target& target, references::WordTypes types) {
    const references::KindEntry& kind = references::EntryOf(target.kind);
    std::int64_t key = target.number;
    if (target.kind == Kind::Word) {
        bool found = false;
        PreparedQuery rows =
            followed_->adventure.Prepare(TableNum::Vocabulary, "vocindex, voctypen", "vocnum=?");
        for (bool more = rows.First({std::int64_t{target.number}}); more && !found; more = rows.Next()) {
            found = (references::TypeBit(static_cast<int>(rows.Number(1))) & types) != 0;
            key = rows.Number(0);
        }
        if (!found) return std::nullopt;
    }
    if (target.kind == Kind::CharacterSet) return std::nullopt;
    return LineTo(kind.table, key);
}

JumpLine Navigator::LineTo(TableNum table, std::int64_t key) {
    OpenDocument();
    JumpLine line{JumpTo(table, key), Places().RecordName(table, key)};
    const auto texts = TextsOf(table);
    if (!texts.empty() && table != TableNum::Vocabulary) {
        PreparedQuery row =
            followed_->adventure.Prepare(table, texts[0].text, std::string(texts[0].key) + "=?");
        if (row.First({key})) {
            const std::string text = BriefText(row.Text(0));
            if (!text.empty()) line.text.append(": ").append(text);
        }
    }
    return line;
}

Jump Navigator::JumpTo(TableNum table, std::int64_t key) {
    OpenDocument();
    Jump jump{{table, 0}, static_cast<int>(key)};
    // Rows of a table whose key is a text are counted.
    if (table == TableNum::Adventure) jump.key = 1;
    if (table == TableNum::ProcessTables) {
        PreparedQuery row = followed_->adventure.Prepare(table, "estype", "canum=?");
        if (row.First({key}))
            jump.view.process = static_cast<int>(std::min<std::int64_t>(row.Number(0), kOtherProcesses));
    }
    return jump;
}

std::vector<JumpLine> Navigator::Search(std::string_view typed) {
    std::vector<JumpLine> found;
    if (typed.empty() || OpenDocument() == nullptr) return found;
    SearchNumber(typed, found);
    SearchEntries(typed, found);
    SearchTexts(typed, found);
    if (found.size() > kMostFound) found.resize(kMostFound);
    return found;
}

void Navigator::SearchNumber(std::string_view typed, std::vector<JumpLine>& found) {
    const auto number = condacts::NumberOfToken(typed.substr(1));
    if (!number) return;
    for (const Shorthand& shorthand : kShorthands) {
        if (text::LowerCase(typed.substr(0, 1)) != std::string(1, shorthand.letter)) continue;
        const std::string key(store::FindTable(shorthand.table)->key);
        if (!followed_->adventure.Prepare(shorthand.table, key, key + "=?").First({std::int64_t{*number}}))
            continue;
        if (auto line = LineOf({*references::KindOf(shorthand.table), *number}, references::kAnyType))
            found.push_back(std::move(*line));
    }
}

void Navigator::SearchEntries(std::string_view typed, std::vector<JumpLine>& found) {
    const auto words = condacts::SplitLine(typed);
    if (words.size() != 2) return;
    PreparedQuery rows = followed_->adventure.Prepare(TableNum::ProcessTables, "canum, condacts, estype",
                                                      "w1=? and w2=?", "estype, canum");
    for (bool more = rows.First({words[0].text, words[1].text}); more && found.size() < kMostFound;
         more = rows.Next()) {
        const int process = static_cast<int>(std::min<std::int64_t>(rows.Number(2), kOtherProcesses));
        found.push_back({{{TableNum::ProcessTables, process}, static_cast<int>(rows.Number(0))},
                         Places().RecordName(TableNum::ProcessTables, rows.Number(0)) + ": " +
                             BriefText(rows.Text(1))});
    }
}

void Navigator::SearchTexts(std::string_view typed, std::vector<JumpLine>& found) {
    const std::string wanted = text::LowerCase(typed);
    std::set<std::pair<TableNum, std::int64_t>> seen;
    for (const SearchedText& searched : AllTexts()) {
        const std::string fields = std::string(searched.key) + ", " + std::string(searched.text);
        PreparedQuery rows = followed_->adventure.Prepare(searched.table, fields, "", searched.key);
        for (bool more = rows.First({}); more && found.size() < kMostFound; more = rows.Next()) {
            if (text::LowerCase(rows.Text(1)).find(wanted) == std::string::npos) continue;
            const std::int64_t key = rows.Number(0);
            if (!seen.insert({searched.table, key}).second) continue;
            JumpLine line{JumpTo(searched.table, key), Places().RecordName(searched.table, key)};
            if (searched.table != TableNum::Vocabulary)
                line.text.append(": ").append(BriefText(rows.Text(1)));
            found.push_back(std::move(line));
        }
    }
}

/// They led through the adventure that was open before.
void Navigator::ForgetJumps() {
    back_.clear();
    forward_.clear();
}

void Navigator::GoTo(const Jump& jump) {
    OpenDocument();
    if (const auto here = Here(); here && *here != jump) {
        back_.push_back(*here);
        forward_.clear();
    }
    Show(jump);
}

void Navigator::Show(const Jump& jump) {
    if (main_.Grid().View() != jump.view) main_.Show(jump.view);
    if (!main_.Grid().RowOf(jump.key) && !main_.Grid().Filter().empty()) main_.SetFilter("");
    if (const auto row = main_.Grid().RowOf(jump.key))
        main_.SelectRow(*row);
    else
        main_.Say("That record is not there any more.");
}

bool Navigator::Back() {
    if (OpenDocument() == nullptr || back_.empty()) return false;
    if (const auto here = Here()) forward_.push_back(*here);
    const Jump jump = back_.back();
    back_.pop_back();
    Show(jump);
    return true;
}

bool Navigator::Forward() {
    if (OpenDocument() == nullptr || forward_.empty()) return false;
    if (const auto here = Here()) back_.push_back(*here);
    const Jump jump = forward_.back();
    forward_.pop_back();
    Show(jump);
    return true;
}

}  // namespace fabula::authoring
