#include "references/extract.h"

#include <algorithm>
#include <utility>

#include "condacts/language/held_numbers.h"
#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/object_attributes.h"
#include "condacts/places.h"
#include "condacts/words.h"
#include "pictures/book_loader.h"
#include "pictures/drawstring.h"
#include "references/condact_access.h"
#include "store/character_key.h"
#include "text/encoding/utf8.h"

namespace fabula::references {
namespace {

using condacts::ParamKind;
using store::KeyedRows;
using store::TableNum;

constexpr WordTypes kVerbOrNoun = TypeBit(condacts::kVerb) | TypeBit(condacts::kNoun);

constexpr std::string_view kOrders[] = {"ATGT", "ATLT", "RAMLOAD"};
/// Names with a location that is the place inside an object of the same number.
constexpr std::string_view kWithContainer[] = {"PUTIN", "TAKEOUT", "AUTOP", "AUTOT"};

template <std::size_t Size>
bool Holds(const std::string_view (&names)[Size], std::string_view name) {
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

std::optional<Kind> KindOfParameter(ParamKind kind) {
    switch (kind) {
        case ParamKind::Location:
            return Kind::Location;
        case ParamKind::Message:
            return Kind::Message;
        case ParamKind::Object:
            return Kind::Object;
        case ParamKind::Process:
            return Kind::Process;
        case ParamKind::SystemMessage:
            return Kind::SystemMessage;
        case ParamKind::Flag:
            return Kind::Flag;
        case ParamKind::Word:
        case ParamKind::Value:
        case ParamKind::None:
            break;
    }
    return std::nullopt;
}

/// Whether the number behind a flag is compared with what the flag holds, or given to it.
bool TakesNumberBehind(const condacts::CondAct& condAct) {
    return condacts::TakesNumberOfFlag(condAct.name) != condacts::TakesNumber::No;
}

bool IsNoWord(std::int64_t number) {
    return number == condacts::kNoWordNumber.value;
}

/// The reading of one record.
class Extraction {
  public:
    Extraction(const KeyedRows& row, TableNum table, const Language& language)
        : row_(row), table_(table), language_(language) {
        record_ = table == TableNum::Adventure ? 0 : row.Number(0);
    }

    std::vector<KeptUse> Run() {
        switch (table_) {
            case TableNum::Locations:
                ReadExits();
                ReadMarkup("locshortdesc", 3);
                ReadMarkup("locdesc", 4);
                break;
            case TableNum::Messages:
                ReadMarkup("msgmsg", 1);
                break;
            case TableNum::SystemMessages:
                ReadMarkup("smsgmsg", 1);
                break;
            case TableNum::Objects:
                ReadObject();
                break;
            case TableNum::Adventure:
                Add(Kind::Location, row_.Number(0), "startloc", 0);
                break;
            case TableNum::ProcessTables:
                ReadEntry();
                break;
            case TableNum::Pictures:
                ReadPicture();
                break;
            default:
                break;
        }
        return std::move(uses_);
    }

  private:
    KeptUse& Add(Kind kind, std::int64_t number, std::string_view field, std::size_t token,
                 Access access = Access::Names) {
        Use use;
        use.target = {kind, static_cast<int>(number)};
        use.table = table_;
        use.record = record_;
        use.field = field;
        use.token = token;
        use.access = access;
        KeptUse& kept = uses_.emplace_back(KeptUse{use});
        kept.storeKey = row_.Key();
        return kept;
    }

    void AddWord(std::int64_t number, WordTypes types, std::string_view field, std::size_t token) {
        if (IsNoWord(number)) return;
        Add(Kind::Word, number, field, token).use.wordTypes = types;
    }

    void ReadExits() {
        const auto numbers = condacts::SplitLine(row_.Text(2));
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const auto number = condacts::NumberOfToken(numbers[i].text);
            if (!number) continue;
            if (i % 2 == 0)
                AddWord(*number, kVerbOrNoun, "exits", i);
            else
                Add(Kind::Location, *number, "exits", i);
        }
    }

    void ReadObject() {
        if (!condacts::IsSpecialPlace(row_.Number(1))) {
            Add(Kind::Location, row_.Number(1), "objloc", 0);
        }
        AddWord(row_.Number(2), TypeBit(condacts::kNoun), "objnoun", 0);
        AddWord(row_.Number(3), TypeBit(condacts::kAdjective), "objadject", 0);
        if ((row_.Number(4) & condacts::attribute::kContainer) != 0)
            Add(Kind::Location, record_, "objattr", 0);
        ReadMarkup("objdesc", 5);
    }

    void ReadEntry() {
        Add(Kind::Process, row_.Number(1), "estype", 0);
        AddWord(row_.Number(2), kVerbOrNoun, "w1", 0);
        AddWord(row_.Number(3), TypeBit(condacts::kNoun), "w2", 0);
        numbers_ = condacts::SplitLine(row_.Text(5));
        line_ = condacts::ParseLine(row_.Text(4), language_.condActs);
        // The engine runs the compiled form, also of an entry that has lost its text.
        if (line_.tokens.empty()) line_ = condacts::ParseNumericLine(row_.Text(5), language_.condActs);
        for (const condacts::Statement& statement : line_.statements)
            ReadStatement(statement);
    }

    void ReadStatement(const condacts::Statement& statement) {
        const condacts::CondAct& condAct = *statement.condAct;
        const CondActAccess* access = FindCondActAccess(condAct.name);
        for (std::size_t i = 0; i < statement.paramsGiven; ++i) {
            const std::size_t token = statement.name + 1 + i;
            const ParamKind kind = condAct.params[i].kind;
            if (kind == ParamKind::Word) {
                ReadAskedWord(condAct, token);
            } else if (const auto number = condacts::NumberOfToken(line_.tokens[token].text)) {
                ReadParameter(statement, i, *number, access);
            }
        }
    }

    void ReadAskedWord(const condacts::CondAct& condAct, std::size_t token) {
        const condacts::WordCondition* condition = condacts::FindWordCondition(condAct.name);
        if (condition == nullptr || numbers_.size() != line_.tokens.size()) return;
        if (const auto number = condacts::NumberOfToken(numbers_[token].text))
            AddWord(*number, TypeBit(condition->wordType), "condacts", token);
    }

    void ReadParameter(const condacts::Statement& statement, std::size_t i, int number,
                       const CondActAccess* access) {
        const condacts::CondAct& condAct = *statement.condAct;
        const std::size_t token = statement.name + 1 + i;
        const auto kind = KindOfParameter(condAct.params[i].kind);
        if (!kind) {
            if (language_.characterSets && condAct.name == "CHARSET")
                Add(Kind::CharacterSet, number, "condacts", token);
            return;
        }
        if (*kind == Kind::Location && condacts::IsSpecialPlace(std::int64_t{number})) return;
        KeptUse& kept = Add(*kind, number, "condacts", token, AccessOf(condAct, *kind, i, access));
        if (*kind == Kind::Flag) {
            if (access != nullptr) {
                kept.carries = access->carries;
                kept.computes = access->computes == static_cast<int>(i) + 1;
            }
            if (i == 0) ReadValue(statement, kept);
        }
        if (*kind == Kind::Location && Holds(kWithContainer, condAct.name))
            Add(Kind::Object, number, "condacts", token, Access::Reads);
    }

    static Access AccessOf(const condacts::CondAct& condAct, Kind kind, std::size_t i,
                           const CondActAccess* access) {
        if (kind != Kind::Flag && kind != Kind::Object) return Access::Names;
        if (access != nullptr) return i == 0 ? access->first : access->second;
        return condAct.isAction ? Access::Sets : Access::Reads;
    }

    /// The number that a flag is compared with or given, and what it means where the engine says so.
    void ReadValue(const condacts::Statement& statement, KeptUse& kept) {
        const condacts::FlagNumber flagNumber(kept.use.target.number);
        if (statement.paramsGiven < 2 || !TakesNumberBehind(*statement.condAct)) return;
        kept.value = condacts::NumberOfToken(line_.Param(statement, 1));
        const auto meaning = FindFlagMeaning(flagNumber);
        if (!kept.value || !meaning) return;
        if (meaning->kind == Kind::Location && condacts::IsSpecialPlace(std::int64_t{*kept.value})) return;
        if (meaning->kind == Kind::Word && IsNoWord(*kept.value)) return;
        KeptUse& meant = Add(meaning->kind, *kept.value, "condacts", kept.use.token + 1);
        meant.use.possible = true;
        meant.use.wordTypes = meaning->wordTypes;
    }

    void ReadPicture() {
        if (row_.Number(2) != pictures::kNoRoom) Add(Kind::Location, row_.Number(2), "roompicnum", 0);
        const auto words = pictures::DrawstringWords(row_.Text(3));
        for (std::size_t i = 0; i < words.size();) {
            const pictures::Command* command = language_.commands.FindPictureCommand(words[i]);
            if (command == nullptr) return;
            const auto parameters = static_cast<std::size_t>(command->drawnParameters);
            if (i + parameters >= words.size()) return;
            ReadDrawing(*command, words, i);
            i += parameters + 1;
        }
    }

    void ReadDrawing(const pictures::Command& command, const std::vector<std::string>& words,
                     std::size_t at) {
        for (std::size_t i = 0; i < static_cast<std::size_t>(command.drawnParameters); ++i) {
            const std::size_t token = at + 1 + i;
            const auto value = pictures::ParameterValue(words[token]);
            if (!value) continue;
            const std::string& code = command.drawnCodes[i];
            if (code == "LO") Add(Kind::Picture, *value, "drawstring", token);
            if (code == "SE") Add(Kind::CharacterSet, *value, "drawstring", token);
            if (code == "CH") {
                const auto set = pictures::ParameterValue(words[token - 1]).value_or(0);
                Add(Kind::Character, set * store::kCharactersOfASet + *value, "drawstring", token);
            }
            if (code == "PA") ReadPattern(*value, token);
        }
    }

    /// A pattern is made of two of the first 16 characters of set 0.
    void ReadPattern(int pattern, std::size_t token) {
        const int first = pattern / pictures::kShades;
        const int second = pattern % pictures::kShades;
        Add(Kind::Character, first, "drawstring", token);
        if (second != first) Add(Kind::Character, second, "drawstring", token);
    }

    void ReadMarkup(std::string_view field, int column) {
        if (!language_.characterSets) return;
        const std::string_view text = row_.Text(column);
        for (std::size_t open = text.find('<'); open != std::string_view::npos;
             open = text.find('<', open + 1)) {
            const std::size_t close = text.find('>', open);
            if (close == std::string_view::npos) return;
            const std::string_view tag = text.substr(open + 1, close - open - 1);
            const std::size_t equals = tag.find('=');
            if (equals == std::string_view::npos) continue;
            const std::string name = text::LowerCase(tag.substr(0, equals));
            const auto value = condacts::NumberOfToken(tag.substr(equals + 1));
            if (!value) continue;
            if (language_.setTags.contains(name)) Add(Kind::CharacterSet, *value, field, open);
            // Which set it is of depends on what was switched to before.
            if (language_.characterTags.contains(name))
                Add(Kind::Character, *value, field, open).use.possible = true;
        }
    }

    const KeyedRows& row_;
    TableNum table_;
    const Language& language_;
    std::int64_t record_ = 0;
    condacts::ParsedLine line_;
    std::vector<condacts::Token> numbers_;
    std::vector<KeptUse> uses_;
};

}  // namespace

std::string_view NameOf(Access access) {
    switch (access) {
        case Access::Reads:
            return "reads";
        case Access::Sets:
            return "sets";
        case Access::Both:
            return "reads and sets";
        case Access::Names:
            break;
    }
    return "names";
}

Language LoadLanguage(store::Adventure& adventure) {
    Language language;
    language.condActs = condacts::LoadCatalogue(adventure);
    language.commands = pictures::LoadCommands(adventure);
    language.characterSets = adventure.CharSetsOn();
    store::PreparedQuery codes = adventure.Prepare(TableNum::Codes, "fabulatag, fabulatagval", "");
    for (bool more = codes.First({}); more; more = codes.Next()) {
        if (codes.Text(1) == "SE") language.setTags.insert(text::LowerCase(codes.Text(0)));
        if (codes.Text(1) == "CH") language.characterTags.insert(text::LowerCase(codes.Text(0)));
    }
    return language;
}

bool BelongsToLanguage(TableNum table) {
    return table == TableNum::CondActs || table == TableNum::Commands || table == TableNum::Codes ||
           table == TableNum::Adventure;
}

const std::vector<SourceTable>& SourceTables() {
    static const std::vector<SourceTable> tables = {
        {TableNum::Locations, {"locnum", "exits", "numericexits", "locshortdesc", "locdesc"}},
        {TableNum::Messages, {"msgnum", "msgmsg"}},
        {TableNum::Objects, {"objnum", "objloc", "objnumnoun", "objnumadject", "objattrn", "objdesc"}},
        {TableNum::Adventure, {"startloc"}},
        {TableNum::ProcessTables, {"canum", "estype", "w1num", "w2num", "condacts", "numericcondacts"}},
        {TableNum::SystemMessages, {"smsgnum", "smsgmsg"}},
        {TableNum::Pictures, {"locnum", "loctype", "roompicnum", "drawstring"}},
    };
    return tables;
}

std::vector<KeptUse> UsesIn(const KeyedRows& row, const SourceTable& table, const Language& language) {
    return Extraction(row, table.table, language).Run();
}

std::optional<FlagMeaning> FindFlagMeaning(condacts::FlagNumber flag) {
    const condacts::HeldNumber* const held = condacts::FindHeldNumber(flag);
    if (held == nullptr) return std::nullopt;
    if (held->kind != ParamKind::Word) return FlagMeaning{flag, KindOfParameter(held->kind).value()};
    const bool isVerb = held->wordType == condacts::kVerb;
    return FlagMeaning{flag, Kind::Word, isVerb ? kVerbOrNoun : TypeBit(held->wordType)};
}

bool ComparesOrder(std::string_view condAct) {
    return Holds(kOrders, condAct);
}

}  // namespace fabula::references
