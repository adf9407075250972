#include "upgrades/flag_corrections.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>

#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "store/new_flag.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/format.h"
#include "text/str_edit.h"

namespace fabula::upgrades {
namespace {

using condacts::Catalogue;
using condacts::ParsedLine;
using store::Cursor;
using store::Record;
using store::TableNum;

constexpr int kFirstOld = 256;
constexpr int kLastOld = 275;
constexpr int kFirstNew = condacts::limit::kFirstExtendedFlag;
constexpr int kLastNew = condacts::limit::kHighestSystemFlag;
constexpr int kMove = kFirstNew - kFirstOld;

bool IsOld(int flag) {
    return flag >= kFirstOld && flag <= kLastOld;
}

/// The conditions and actions whose flags are looked through for the old numbers.
constexpr std::string_view kFlagUsers =
    "zero,notzero,eq,noteq,gt,lt,same,notsame,set,clear,let,plus,minus,add,sub,copyff,random,move,copyfo,"
    "copyof,print,ramload,weigh,weight";

const Record* KnownFlag(Work& work, int number) {
    for (const Record& flag : work.defaults.Records(TableNum::Flags)) {
        if (NumberOf(flag, "flgnum") == number) return &flag;
    }
    return nullptr;
}

Record UserFlag(int number) {
    const auto fields = store::FieldsOfNewFlag(number, "");
    return {fields.begin(), fields.end()};
}

std::set<std::int64_t> FlagNumbers(Work& work) {
    std::set<std::int64_t> numbers;
    store::PreparedQuery flags = work.adventure.Prepare(TableNum::Flags, "flgnum", "");
    for (bool found = flags.First({}); found; found = flags.Next())
        numbers.insert(flags.Number(0));
    return numbers;
}

/// The flag that a parameter of a statement names; nullopt for a parameter of another kind.
std::optional<int> FlagAt(const ParsedLine& line, const condacts::Statement& statement, std::size_t param) {
    if (param >= statement.paramsGiven) return std::nullopt;
    if (statement.condAct->params[param].kind != condacts::ParamKind::Flag) return std::nullopt;
    return condacts::NumberOfToken(line.Param(statement, param));
}

/// A line with the flags in `moved` under their new numbers; `parsed` is its reading in either form.
std::string WithMovedFlags(const ParsedLine& parsed, const std::set<int>& moved) {
    std::vector<std::string> tokens;
    for (const condacts::Token& token : parsed.tokens)
        tokens.emplace_back(token.text);
    for (const condacts::Statement& statement : parsed.statements) {
        for (std::size_t param = 0; param < statement.condAct->params.size(); ++param) {
            const auto flag = FlagAt(parsed, statement, param);
            if (flag && moved.contains(*flag))
                tokens[statement.name + 1 + param] = std::to_string(*flag + kMove);
        }
    }
    std::string line;
    for (const std::string& token : tokens)
        line += (line.empty() ? "" : " ") + token;
    return line;
}

void MoveUses(Work& work, const std::set<int>& moved) {
    const Catalogue catalogue = condacts::LoadCatalogue(work.adventure);
    for (Cursor& entries = work.adventure.OpenTable(TableNum::ProcessTables, "condacts, numericcondacts");
         !entries.Eof(); entries.MoveNext()) {
        const std::string text(entries.Text("condacts"));
        const std::string numbers(entries.Text("numericcondacts"));
        const std::string newText = WithMovedFlags(condacts::ParseLine(text, catalogue), moved);
        const std::string newNumbers =
            WithMovedFlags(condacts::ParseNumericLine(numbers, catalogue), moved);
        // What names none of them stays as it was typed.
        if (newText != text::StrEdit(text, "compress,trim")) entries.SetField("condacts", newText);
        if (newNumbers != text::StrEdit(numbers, "compress,trim"))
            entries.SetField("numericcondacts", newNumbers);
        entries.Update();
    }
}

bool UsesOldFlag(std::string_view text, const Catalogue& catalogue) {
    static const auto users = text::Split(kFlagUsers, ",");
    const ParsedLine line = condacts::ParseLine(text, catalogue);
    for (const condacts::Statement& statement : line.statements) {
        const std::string name = text::LowerCase(statement.condAct->name);
        if (std::ranges::find(users, name) == users.end()) continue;
        for (std::size_t param = 0; param < statement.condAct->params.size(); ++param) {
            const auto flag = FlagAt(line, statement, param);
            if (flag && IsOld(*flag)) return true;
        }
    }
    return false;
}

/// The entries that use flags 256 to 275, a line each.
std::string FindOldFlagUses(Work& work) {
    std::string filter;
    for (const std::string_view name : text::Split(kFlagUsers, ","))
        filter += (filter.empty() ? "" : " or ") + ("condacts like '%" + text::UpperCase(name)) + " %'";
    const Catalogue catalogue = condacts::LoadCatalogue(work.adventure);
    std::string lines;
    for (Cursor& entries = work.adventure.OpenTable(TableNum::ProcessTables, "*", filter); !entries.Eof();
         entries.MoveNext()) {
        if (!UsesOldFlag(entries.Text("condacts"), catalogue)) continue;
        lines += text::FormatText("%s4! !%s3! !%a10! !%a10! !%a",
                                  {entries.Number("canum"), entries.Number("estype"), entries.Field("w1"),
                                   entries.Field("w2"), entries.Field("condacts")}) +
                 "\n";
    }
    return lines;
}

}  // namespace

bool LacksFlag275(Work& work) {
    return !Finds(work, TableNum::Flags, "flgnum=275");
}

void AddOldFlags(Work& work, const Step&) {
    const std::set<std::int64_t> present = FlagNumbers(work);
    for (int flag = kFirstOld; flag <= kLastOld; ++flag) {
        if (present.contains(flag)) continue;
        const Record* known = KnownFlag(work, flag + kMove);
        Record record = known ? *known : UserFlag(flag);
        record["flgnum"] = std::int64_t{flag};
        work.AddRecord(TableNum::Flags, record);
    }
}

bool HasSystemFlag260(Work& work) {
    return Finds(work, TableNum::Flags, "flgnum = 260 and flgtype = 'System'");
}

void MoveFlags(Work& work, const Step&) {
    std::set<std::int64_t> present = FlagNumbers(work);
    std::set<int> moved;
    for (Cursor& flags = work.adventure.OpenTable(TableNum::Flags, "*",
                                                  "flgnum>=256 and flgnum<=275 and flgtype='System'");
         !flags.Eof(); flags.MoveNext()) {
        const int flag = static_cast<int>(flags.Number("flgnum"));
        moved.insert(flag);
        present.erase(flag);
        if (present.contains(flag + kMove)) {
            flags.Delete();
            continue;
        }
        present.insert(flag + kMove);
        flags.SetField("flgnum", std::int64_t{flag + kMove});
        flags.Update();
    }
    for (int flag = 0; flag <= kLastNew; ++flag) {
        if (present.contains(flag)) continue;
        const Record* known = flag >= kFirstNew ? KnownFlag(work, flag) : nullptr;
        work.AddRecord(TableNum::Flags, known ? *known : UserFlag(flag));
    }
    MoveUses(work, moved);
}

bool HasSystemFlag28Or255(Work& work) {
    return Finds(work, TableNum::Flags,
                 "(flgnum=28 and flgtype='System') or (flgnum=255 And flgtype='System')");
}

void FreeFlags28And255(Work& work, const Step&) {
    for (Cursor& flags = work.adventure.OpenTable(TableNum::Flags, "flgtype, flguse, flgmod",
                                                  "(flgnum=28 or flgnum=255) and flgtype='System'");
         !flags.Eof(); flags.MoveNext()) {
        flags.SetField("flgtype", std::string(store::kUserFlagType));
        flags.SetField("flguse", std::string(store::kUnknownFlagUse));
        flags.SetField("flgmod", store::kEditableFlag);
        flags.Update();
    }
}

bool IsFlagMoveOpen(Work& work) {
    if (!work.Has(TableNum::System, {"flagchange"})) return false;
    store::PreparedQuery system = work.adventure.Prepare(TableNum::System, "flagchange", "");
    return system.First({}) && system.Number(0) == 0;
}

void CheckFlagUses(Work& work, const Step&) {
    const std::string uses = FindOldFlagUses(work);
    if (uses.empty()) return CloseFlagMove(work.adventure);
    work.reports.push_back(
        {Report::Kind::FlagChange, "Version 6 Flag Change",
         "In Version 6 flags 256-275 were moved to 1000+. If you have any references to flags 256-275 in "
         "your Process Table, they will be shown below. If the reference To flags 256-275 has been made "
         "since you upgraded to V6 or they are valid usage of these flags as they are used now, click the "
         "'Cancel' button below.  You may print this list using the 'Print' button. This message will show "
         "when you startup unless you 'Cancel' it or correct the entries in the Process Table.\n\n" +
             uses});
}

void CloseFlagMove(store::Adventure& adventure) {
    Cursor& system = adventure.OpenTable(TableNum::System, "flagchange");
    system.SetField("flagchange", std::int64_t{1});
    system.Update();
}

}  // namespace fabula::upgrades
