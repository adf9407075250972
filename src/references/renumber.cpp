#include "references/renumber.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "condacts/limits.h"
#include "condacts/places.h"
#include "condacts/system_messages.h"
#include "pictures/drawstring.h"
#include "references/flag_contents.h"
#include "references/lint/lint_game.h"
#include "references/place_text.h"
#include "store/character_key.h"
#include "store/query/keyed_rows.h"

namespace fabula::references {
namespace {

using condacts::FlagNumber;
using store::TableNum;

std::string Quoted(Kind kind, int number) {
    return std::string(EntryOf(kind).name) + " " + std::to_string(number);
}

/// A line of words with some of them replaced; blanks between stay as they are.
std::string WithWords(std::string_view line, const std::map<std::size_t, std::string>& words) {
    std::string result;
    std::size_t copied = 0;
    const auto tokens = condacts::SplitLine(line);
    for (const auto& [index, word] : words) {
        if (index >= tokens.size()) continue;
        result.append(line.substr(copied, tokens[index].position - copied)).append(word);
        copied = tokens[index].position + tokens[index].text.size();
    }
    return result.append(line.substr(copied));
}

/// A text with every run of digits that is one of the two numbers replaced by the other.
std::string WithNumbers(std::string_view text, int from, int to) {
    const std::string first = std::to_string(from);
    const std::string second = std::to_string(to);
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        std::size_t end = i;
        while (end < text.size() && text[end] >= '0' && text[end] <= '9')
            ++end;
        const std::string_view digits = text.substr(i, end - i);
        if (digits.empty())
            result += text[i++];
        else
            result += digits == first ? second : (digits == second ? first : std::string(digits));
        i = std::max(i, end);
    }
    return result;
}

class Planner {
  public:
    Planner(store::Adventure& adventure, const Target& target, int to)
        : adventure_(adventure),
          game_(adventure),
          contents_(game_),
          kind_(target.kind),
          from_(target.number),
          to_(to) {}

    RenumberPlan Run() {
        plan_.refusal = Refusal();
        if (!plan_.refusal.empty()) return std::move(plan_);
        plan_.swaps = Exists(kind_, to_);
        kinds_ = {kind_};
        if ((kind_ == Kind::Object || kind_ == Kind::Location) && (IsContainer(from_) || IsContainer(to_)))
            kinds_ = {Kind::Object, Kind::Location};
        plan_.refusal = DoubleNumber();
        if (!plan_.refusal.empty()) return std::move(plan_);
        ReadEntries();
        if (!plan_.refusal.empty()) return std::move(plan_);
        ReadRecords();
        WarnOfOrder();
        return std::move(plan_);
    }

  private:
    bool IsContainer(int number) const {
        return std::any_of(game_.objects.begin(), game_.objects.end(), [&](const LintObject& object) {
            return object.container && object.number.value == number;
        });
    }

    bool Exists(Kind kind, int number) const {
        const KindEntry& entry = EntryOf(kind);
        const std::string where = std::string(entry.keyField) + "=" + std::to_string(number);
        return adventure_.Prepare(entry.table, entry.keyField, where).First({});
    }

    /// Of records with one number it can't be told which of them is meant where it is named.
    std::string DoubleNumber() const {
        for (const Kind kind : kinds_) {
            if (kind == Kind::CharacterSet) continue;  // one record a character
            const KindEntry& entry = EntryOf(kind);
            for (const int number : {from_, to_}) {
                const std::string where = std::string(entry.keyField) + "=" + std::to_string(number);
                store::PreparedQuery rows = adventure_.Prepare(entry.table, entry.keyField, where);
                if (rows.First({}) && rows.Next())
                    return "There is more than one " + Quoted(kind, number) +
                           ": which one is meant can't be told.";
            }
        }
        return {};
    }

    bool IsSystemFlag(FlagNumber number) const {
        const auto flag = game_.facts.flags.find(number);
        return flag == game_.facts.flags.end() || flag->second.system;
    }

    int Highest() const {
        switch (kind_) {
            case Kind::Object:
                return condacts::HighestObject(adventure_.Kind());
            case Kind::Process:
                return condacts::limit::kHighestProcess.value;
            case Kind::CharacterSet:
                return store::kHighestNewCharacterSet;
            case Kind::Flag:
                return condacts::limit::kHighestSystemFlag;
            default:
                return condacts::HighestRecord(adventure_.Kind());
        }
    }

    std::string Refusal() const {
        const std::string name(EntryOf(kind_).name);
        if (kind_ == Kind::Word) return "Words are named by their letters, not by their numbers.";
        if (kind_ == Kind::Character) return "Characters are named by what stands in texts.";
        if (!Exists(kind_, from_)) return "There is no " + Quoted(kind_, from_) + ".";
        if (from_ == to_) return "It bears that number already.";
        if (to_ < 0 || to_ > Highest())
            return "The numbers of a " + name + " go from 0 to " + std::to_string(Highest()) + ".";
        for (const int number : {from_, to_}) {
            if (BelongsToEngine(number))
                return "The engine itself knows " + Quoted(kind_, number) + " by its number.";
        }
        if (kind_ == Kind::Location && condacts::IsSpecialPlace(to_))
            return std::to_string(condacts::place::kNotCreated.value) + " to " +
                   std::to_string(condacts::place::kHere.value) + " are no places that one can enter.";
        if (kind_ == Kind::Object && to_ > condacts::place::kNotCreated.value - 1 && IsContainer(from_) &&
            condacts::IsSpecialPlace(to_))
            return "A container can't bear the number of a place that is none.";
        return {};
    }

    bool BelongsToEngine(int number) const {
        switch (kind_) {
            case Kind::Flag:
                return IsSystemFlag(FlagNumber(number));
            case Kind::Object:
            case Kind::CharacterSet:
                return number == 0;
            case Kind::SystemMessage:
                return number <= condacts::message::kNothingThere.value;
            case Kind::Process:
                return number <= condacts::limit::kLastFixedProcess.value;
            default:
                return false;
        }
    }

    bool Follows(Kind kind) const { return std::find(kinds_.begin(), kinds_.end(), kind) != kinds_.end(); }

    std::optional<int> Mapped(int number) const {
        if (number == from_) return to_;
        if (number == to_) return from_;
        return std::nullopt;
    }

    /// A record that changes, by its number and by the key that tells it from others of that number.
    struct Changed {
        TableNum table;
        std::int64_t number;
        std::int64_t storeKey;
    };

    void Change(const Changed& record, std::string_view field, text::Value before, text::Value after) {
        if (before == after) return;
        plan_.changes.push_back({record.table, record.number, record.storeKey, std::string(field),
                                 std::move(before), std::move(after)});
    }

    void ReadEntries() {
        std::map<std::int64_t, std::map<std::size_t, std::string>> words;
        for (const auto& [target, uses] : game_.uses) {
            if (!Follows(target.kind) || !Mapped(target.number)) continue;
            for (const KeptUse& kept : uses) {
                const Use& use = kept.use;
                if (use.field != "condacts" || use.possible) continue;
                if (!ComparesOrder(game_.EntryOf(kept).CondActBefore(use.token)))
                    words[kept.storeKey][use.token] = std::to_string(*Mapped(target.number));
            }
        }
        for (const auto& entry : game_.entries) {
            for (const condacts::Statement& statement : entry->UsedLine().statements)
                ReadStatement(*entry, statement, words[entry->storeKey]);
        }
        for (const auto& entry : game_.entries) {
            const auto& changed = words[entry->storeKey];
            const Changed record{TableNum::ProcessTables, entry->key, entry->storeKey};
            Change(record, "condacts", entry->text, WithWords(entry->text, changed));
            if (condacts::SplitLine(entry->numbers).size() == entry->UsedLine().tokens.size())
                Change(record, "numericcondacts", entry->numbers, WithWords(entry->numbers, changed));
            if (kind_ == Kind::Process && Mapped(entry->process.value))
                Change(record, "estype", std::int64_t{entry->process.value},
                       std::int64_t{*Mapped(entry->process.value)});
        }
    }

    /// What a condition or action does with numbers besides naming something by them: it compares them by
    /// their order, or a flag holds them.
    void ReadStatement(const LintEntry& entry, const condacts::Statement& statement,
                       std::map<std::size_t, std::string>& words) {
        if (statement.paramsGiven == 0) return;
        const std::string& name = statement.condAct->name;
        const auto first = condacts::NumberOfToken(entry.UsedLine().Param(statement, 0));
        if (!first) return;
        if (name == "ATGT" && Follows(Kind::Location)) return CheckOrder(entry, statement, *first, 1);
        if (name == "ATLT" && Follows(Kind::Location)) return CheckOrder(entry, statement, *first, 0);
        if (name == "RAMLOAD" && Follows(Kind::Flag)) return CheckOrder(entry, statement, *first, 1);
        if (statement.condAct->params[0].kind != condacts::ParamKind::Flag) return;
        const FlagNumber flag(*first);
        for (const Kind kind : kinds_) {
            if (contents_.Holds(flag, kind)) ReadFlag(entry, statement, flag, words);
        }
    }

    void ReadFlag(const LintEntry& entry, const condacts::Statement& statement, FlagNumber flag,
                  std::map<std::size_t, std::string>& words) {
        const std::string& name = statement.condAct->name;
        const bool known = FindFlagMeaning(flag).has_value();
        if (!known && contents_.IsCounted(flag) && name != "EQ" && name != "LET") {
            if (countedFlags_.insert(flag).second)
                plan_.warnings.push_back("Flag " + std::to_string(flag.value) +
                                         " is counted, and what it holds is taken for a " +
                                         std::string(EntryOf(kind_).name) + ": see " + NameOf(entry) + ".");
            return;
        }
        if (statement.paramsGiven < 2 || statement.condAct->params[1].kind != condacts::ParamKind::Value)
            return;
        const auto value = condacts::NumberOfToken(entry.UsedLine().Param(statement, 1));
        if (!value) return;
        if (name == "GT") return CheckOrder(entry, statement, *value, 1);
        if (name == "LT") return CheckOrder(entry, statement, *value, 0);
        if (!Mapped(*value) || name == "PLUS" || name == "MINUS") return;
        if (!known && (contents_.IsMixed(flag) || contents_.IsCounted(flag))) {
            plan_.warnings.push_back("Whether " + name + " " + std::to_string(flag.value) + " " +
                                     std::to_string(*value) + " in " + NameOf(entry) +
                                     " means it can't be told; it stays as it is.");
            return;
        }
        words[statement.name + 2] = std::to_string(*Mapped(*value));
    }

    /// Numbers above `border` (or, for 0, from it on) are told apart from the others. Both numbers must
    /// stand on one side.
    void CheckOrder(const LintEntry& entry, const condacts::Statement& statement, int border, int above) {
        const int bound = border + above;
        if ((from_ >= bound) == (to_ >= bound)) return;
        std::string text = statement.condAct->name;
        for (std::size_t i = 0; i < statement.paramsGiven; ++i)
            text.append(" ").append(entry.UsedLine().Param(statement, i));
        if (plan_.refusal.empty())
            plan_.refusal = text + " in " + NameOf(entry) + " tells " + std::to_string(from_) + " and " +
                            std::to_string(to_) + " apart by their order.";
    }

    void ReadRecords() {
        for (const Kind kind : kinds_)
            ReadKeys(kind);
        if (Follows(Kind::Location)) {
            ReadExits();
            ReadPlaces();
        }
        if (Follows(Kind::Picture) || Follows(Kind::CharacterSet)) ReadDrawings();
        if (Follows(Kind::CharacterSet)) ReadTexts();
    }

    void ReadKeys(Kind kind) {
        const KindEntry& entry = EntryOf(kind);
        if (kind == Kind::CharacterSet) return ReadCharacters();
        store::KeyedRows rows(adventure_, entry.table, {entry.keyField});
        for (bool more = rows.First(); more; more = rows.Next()) {
            const auto mapped = Mapped(static_cast<int>(rows.Number(0)));
            if (mapped)
                Change({entry.table, rows.Number(0), rows.Key()}, entry.keyField, rows.Number(0),
                       std::int64_t{*mapped});
        }
        if (kind == Kind::Location) ReadPictureKeys();
    }

    void ReadCharacters() {
        store::KeyedRows rows(adventure_, TableNum::Characters,
                              {"charkey", "charsetnum", "charset", "charnum"});
        for (bool more = rows.First(); more; more = rows.Next()) {
            const auto mapped = Mapped(static_cast<int>(rows.Number(1)));
            if (!mapped) continue;
            const std::int64_t key = rows.Number(0);
            const Changed record{TableNum::Characters, key, rows.Key()};
            std::string digits = std::to_string(*mapped);
            digits.insert(0, 4 - std::min<std::size_t>(4, digits.size()), '0');
            Change(record, "charset", std::string(rows.Text(2)), "SET " + digits);
            Change(record, "charsetnum", rows.Number(1), std::int64_t{*mapped});
            Change(record, "charkey", key,
                   std::int64_t{*mapped} * store::kCharactersOfASet + rows.Number(3));
        }
    }

    void ReadPictureKeys() {
        store::KeyedRows rows(adventure_, TableNum::Locations, {"locnum", "pickey"});
        for (bool more = rows.First(); more; more = rows.Next()) {
            if (!Mapped(static_cast<int>(rows.Number(0)))) continue;
            Change({TableNum::Locations, rows.Number(0), rows.Key()}, "pickey", std::string(rows.Text(1)),
                   WithNumbers(rows.Text(1), from_, to_));
        }
    }

    std::map<std::size_t, std::string> MappedWords(std::string_view line, std::size_t first) const {
        std::map<std::size_t, std::string> words;
        const auto tokens = condacts::SplitLine(line);
        for (std::size_t i = first; i < tokens.size(); i += 2) {
            const auto number = condacts::NumberOfToken(tokens[i].text);
            if (number && Mapped(*number)) words[i] = std::to_string(*Mapped(*number));
        }
        return words;
    }

    void ReadExits() {
        store::KeyedRows rows(adventure_, TableNum::Locations, {"locnum", "exits", "numericexits"});
        for (bool more = rows.First(); more; more = rows.Next()) {
            for (const auto& [column, field] : {std::pair(1, "exits"), std::pair(2, "numericexits")}) {
                const std::string line(rows.Text(column));
                Change({TableNum::Locations, rows.Number(0), rows.Key()}, field, line,
                       WithWords(line, MappedWords(line, 1)));
            }
        }
    }

    void ReadPlaces() {
        store::KeyedRows rows(adventure_, TableNum::Objects, {"objnum", "objloc", "objlocdesc"});
        for (bool more = rows.First(); more; more = rows.Next()) {
            const auto mapped = Mapped(static_cast<int>(rows.Number(1)));
            if (!mapped) continue;
            const Changed record{TableNum::Objects, rows.Number(0), rows.Key()};
            Change(record, "objloc", rows.Number(1), std::int64_t{*mapped});
            Change(record, "objlocdesc", std::string(rows.Text(2)), WithNumbers(rows.Text(2), from_, to_));
        }
        store::KeyedRows pictures(adventure_, TableNum::Pictures, {"locnum", "roompicnum"});
        for (bool more = pictures.First(); more; more = pictures.Next()) {
            const auto mapped = Mapped(static_cast<int>(pictures.Number(1)));
            if (mapped)
                Change({TableNum::Pictures, pictures.Number(0), pictures.Key()}, "roompicnum",
                       pictures.Number(1), std::int64_t{*mapped});
        }
        const auto start = Mapped(game_.start.value);
        store::KeyedRows settings(adventure_, TableNum::Adventure, {});
        if (start && settings.First())
            Change({TableNum::Adventure, 0, settings.Key()}, "startloc", std::int64_t{game_.start.value},
                   std::int64_t{*start});
    }

    void ReadDrawings() {
        std::map<std::int64_t, std::map<std::size_t, std::string>> words;
        for (const auto& [target, uses] : game_.uses) {
            if (!Follows(target.kind) || !Mapped(target.number)) continue;
            for (const KeptUse& kept : uses) {
                if (kept.use.field == "drawstring")
                    words[kept.storeKey][kept.use.token] = std::to_string(*Mapped(target.number));
            }
        }
        store::KeyedRows rows(adventure_, TableNum::Pictures, {"locnum", "drawstring"});
        for (bool more = rows.First(); more; more = rows.Next()) {
            const auto changed = words.find(rows.Key());
            if (changed == words.end()) continue;
            const std::string line(rows.Text(1));
            Change({TableNum::Pictures, rows.Number(0), rows.Key()}, "drawstring", line,
                   WithWords(line, changed->second));
        }
    }

    /// Tags stand in texts at the bytes that the index tells.
    void ReadTexts() {
        std::map<std::tuple<TableNum, std::int64_t, std::string>,
                 std::map<std::size_t, int, std::greater<>>>
            places;
        for (const auto& [target, uses] : game_.uses) {
            if (target.kind != Kind::CharacterSet || !Mapped(target.number)) continue;
            for (const KeptUse& kept : uses) {
                const Use& use = kept.use;
                if (use.field == "drawstring" || use.field == "condacts") continue;
                places[{use.table, kept.storeKey, std::string(use.field)}][use.token] =
                    *Mapped(target.number);
            }
        }
        for (const auto& [place, tags] : places) {
            const auto& [table, storeKey, field] = place;
            store::KeyedRows row(adventure_, table, {EntryOf(*KindOf(table)).keyField, field});
            if (!row.Only(storeKey)) continue;
            const std::string before(row.Text(1));
            std::string after = before;
            for (const auto& [at, number] : tags) {
                const std::size_t equals = after.find('=', at);
                const std::size_t close = after.find('>', at);
                if (equals < close && close != std::string::npos)
                    after.replace(equals + 1, close - equals - 1, std::to_string(number));
            }
            Change({table, row.Number(0), storeKey}, field, before, after);
        }
    }

    /// Objects are listed, walked and found in the order of their numbers.
    void WarnOfOrder() {
        if (!Follows(Kind::Object)) return;
        const auto [low, high] = std::minmax(from_, to_);
        const bool passes = std::any_of(game_.objects.begin(), game_.objects.end(),
                                        [&, low = low, high = high](const LintObject& object) {
                                            return object.number.value > low && object.number.value < high;
                                        });
        if (passes || plan_.swaps)
            plan_.warnings.push_back(
                "Objects are listed in the order of their numbers, which this changes.");
    }

    store::Adventure& adventure_;
    LintGame game_;
    FlagContents contents_;
    Kind kind_;
    int from_;
    int to_;
    std::vector<Kind> kinds_;
    std::set<FlagNumber> countedFlags_;
    RenumberPlan plan_;
};

/// The keys of a table's records, in the order in which a cursor without an order of its own walks them.
std::vector<std::int64_t> StoreKeys(store::Adventure& adventure, TableNum table) {
    std::vector<std::int64_t> keys;
    store::KeyedRows rows(adventure, table, {});
    for (bool more = rows.First(); more; more = rows.Next())
        keys.push_back(rows.Key());
    return keys;
}

}  // namespace

RenumberPlan PlanRenumbering(store::Adventure& adventure, const Target& target, int to) {
    return Planner(adventure, target, to).Run();
}

void Renumber(store::Adventure& adventure, const RenumberPlan& plan) {
    std::map<TableNum, std::map<std::int64_t, std::vector<const FieldChange*>>> tables;
    for (const FieldChange& change : plan.changes)
        tables[change.table][change.storeKey].push_back(&change);
    for (const auto& [table, records] : tables) {
        const std::vector<std::int64_t> keys = StoreKeys(adventure, table);
        store::Cursor& cursor =
            adventure.OpenTable(TableNum::Free22, "* from " + std::string(store::FindTable(table)->name));
        for (std::size_t i = 0; i < keys.size() && !cursor.Eof(); ++i, cursor.MoveNext()) {
            const auto found = records.find(keys[i]);
            if (found == records.end()) continue;
            for (const FieldChange* change : found->second)
                cursor.SetField(change->field, change->after);
            cursor.Update();
        }
    }
}

int FreeNumber(store::Adventure& adventure, Kind kind, int from) {
    const KindEntry& entry = EntryOf(kind);
    const std::string key(entry.keyField);
    std::set<std::int64_t> taken;
    store::PreparedQuery rows = adventure.Prepare(entry.table, key, "");
    for (bool more = rows.First({}); more; more = rows.Next())
        taken.insert(rows.Number(0));
    int number = from;
    while (taken.contains(number) || (kind == Kind::Location && condacts::IsSpecialPlace(number)))
        ++number;
    return number;
}

}  // namespace fabula::references
