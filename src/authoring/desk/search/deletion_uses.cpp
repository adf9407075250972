#include "authoring/desk/search/deletion_uses.h"

#include <algorithm>

namespace fabula::authoring {
namespace {

using store::TableNum;

std::string Counted(std::size_t count, std::string_view one, std::string_view more) {
    return std::to_string(count).append(" ").append(count == 1 ? one : more);
}

bool IsAt(const JumpLine& line, const Affected& affected) {
    return line.jump.view.table == affected.table && line.jump.key == affected.key;
}

std::string_view FateOf(const Affected& affected) {
    if (affected.goes) return " \u2013 goes with it";
    return affected.table == TableNum::Locations ? " \u2013 loses the exit" : " \u2013 loses the word";
}

std::size_t CountOf(const std::vector<Affected>& affected, TableNum table) {
    return static_cast<std::size_t>(
        std::ranges::count_if(affected, [table](const Affected& each) { return each.table == table; }));
}

}  // namespace

DeletionUses::DeletionUses(Navigator& navigator, const Deletion& deletion) {
    const Jump record = navigator.JumpTo(deletion.table, deletion.key);
    lines_ = navigator.UsesOf(record);
    // What it says of itself goes with it.
    std::erase_if(lines_, [&](const JumpLine& line) { return line.jump == record; });
    const std::size_t uses = lines_.size();
    for (const Affected& affected : deletion.affected) {
        bool listed = false;
        for (JumpLine& line : lines_) {
            if (!IsAt(line, affected)) continue;
            line.text += FateOf(affected);
            listed = true;
        }
        if (listed) continue;
        const Jump jump = navigator.JumpTo(affected.table, affected.key);
        lines_.push_back({jump, navigator.NameOf(jump).append(FateOf(affected))});
    }
    title_ = TitleOfUses(navigator.NameOf(record), uses);
    deletion.table == TableNum::Vocabulary ? TellOfWord(deletion) : TellOfPlain(uses);
}

void DeletionUses::TellOfPlain(std::size_t uses) {
    if (uses == 0) return;
    summary_ = "They stay, and name what is not there any more.";
    afterIt_ = Counted(uses, "place names", "places name") + " it still.";
}

void DeletionUses::TellOfWord(const Deletion& deletion) {
    if (!deletion.synonym.empty()) {
        summary_ = "They go on with " + deletion.synonym + ", which means the same.";
        return;
    }
    if (deletion.affected.empty()) return TellOfPlain(lines_.size());
    const std::size_t entries = CountOf(deletion.affected, TableNum::ProcessTables);
    const std::size_t objects = CountOf(deletion.affected, TableNum::Objects);
    const std::size_t places = CountOf(deletion.affected, TableNum::Locations);
    const auto add = [&](std::size_t count, std::string_view one, std::string_view more) {
        if (count > 0) summary_.append(summary_.empty() ? "" : ", ").append(Counted(count, one, more));
    };
    add(entries, "entry goes with it", "entries go with it");
    add(objects, "object loses the word", "objects lose the word");
    add(places, "location loses an exit", "locations lose exits");
    summary_ += ". You are asked whether you agree.";
}

}  // namespace fabula::authoring
