#include "interchange/shared/flag_analysis.h"

#include <algorithm>
#include <optional>

#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "interchange/shared/keyed_table.h"
#include "store/new_flag.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using condacts::FlagNumber;
using condacts::ParamKind;
using store::Cursor;
using store::TableNum;

bool HasText(std::string_view description) {
    return !text::TrimBlanks(description).empty();
}

void MarkAsUsed(KeyedTable& flags, FlagNumber number) {
    if (!flags.Has(number.value)) return;
    Cursor& flag = flags.GoTo(number.value);
    if (flag.Number("flgmod") <= 0) return;
    const std::string description(flag.Text("flgdesc"));
    flag.SetField("flgdesc", HasText(description) ? description + " Used by the Adventure."
                                                  : std::string("Used by this Adventure."));
    flags.Update();
}

}  // namespace

FlagAnalysis::FlagAnalysis(store::Adventure& adventure, const condacts::Catalogue& catalogue) {
    for (const condacts::CondAct& condAct : catalogue.All()) {
        const bool first = condAct.params[0].kind == ParamKind::Flag;
        const bool second = condAct.params[1].kind == ParamKind::Flag;
        if ((first || second) && condAct.name != "RAMLOAD") users_.push_back({condAct.name, first, second});
    }
    store::PreparedQuery flags = adventure.Prepare(TableNum::Flags, "flgnum, flgtype", "");
    for (bool more = flags.First({}); more; more = flags.Next()) {
        const FlagNumber number(static_cast<int>(flags.Number(0)));
        highestRecord_ = std::max(highestRecord_, number);
        if (text::EqualsNoCase(flags.Text(1), store::kUserFlagType)) userFlags_.insert(number);
    }
}

void FlagAnalysis::CheckForFlags(std::string_view condAct) {
    const auto tokens = condacts::SplitLine(condAct);
    if (tokens.empty()) return;
    for (std::size_t i = 0; i < users_.size(); ++i) {
        if (!text::EqualsNoCase(users_[i].name, tokens[0].text)) continue;
        if (users_[i].first && tokens.size() > 1) Count(i, tokens[1].text);
        if (users_[i].second && tokens.size() > 2) Count(i, tokens[2].text);
        return;
    }
}

void FlagAnalysis::Count(std::size_t user, std::string_view token) {
    const std::optional<int> flag = condacts::NumberOfToken(token);
    if (flag && *flag < condacts::limit::kFirstExtendedFlag) uses_[FlagNumber(*flag)].insert(user);
}

bool FlagAnalysis::IsUserFlag(FlagNumber flag) const {
    return flag > highestRecord_ || userFlags_.contains(flag);
}

void FlagAnalysis::PrintFlagAnal(store::Adventure& adventure, JobStatus& status) const {
    status.AddToStatus("\nUser Flag Analysis\n\n");
    status.AddToStatus("The commands used for each flag are shown below\n\n");
    KeyedTable flags(adventure, TableNum::Flags);
    FlagNumber highest = highestRecord_;
    for (const auto& [flag, users] : uses_) {
        if (!IsUserFlag(flag)) continue;
        highest = std::max(highest, flag);
        std::string line = "Flag " + std::to_string(flag.value) + ": ";
        for (const std::size_t user : users)
            line += " " + users_[user].name;
        status.AddToStatusCR(line);
    }
    for (int flag = highestRecord_.value + 1; flag <= highest.value; ++flag) {
        store::FillNewFlag(flags.Add(flag), flag, "");
        flags.Update();
    }
    for (const auto& [flag, users] : uses_) {
        if (IsUserFlag(flag)) MarkAsUsed(flags, flag);
    }
    status.AddToStatusCR(
        "All flags in the above list which can be used by the User have been denoted as 'Used by this "
        "Adventure' in "
        "the Flag Description.");
}

}  // namespace fabula::interchange
