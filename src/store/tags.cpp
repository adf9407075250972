#include "store/tags.h"

#include <set>
#include <utility>
#include <vector>

#include "store/adventure.h"

namespace fabula::store {
namespace {

std::set<int> CharacterSets(Adventure& adventure) {
    std::set<int> sets;
    PreparedQuery characters = adventure.Prepare(TableNum::Characters, "charsetnum", "");
    for (bool found = characters.First({}); found; found = characters.Next()) {
        sets.insert(static_cast<int>(characters.Number(0)));
    }
    return sets;
}

}  // namespace

text::TagCatalogue LoadTagCatalogue(Adventure& adventure) {
    std::vector<text::CodeRow> rows;
    PreparedQuery codes = adventure.Prepare(
        TableNum::Codes, "codenum, fabulatag, fabulatagparam, fabulatagval, fontname", "");
    for (bool found = codes.First({}); found; found = codes.Next()) {
        rows.push_back({static_cast<int>(codes.Number(0)), std::string(codes.Text(1)),
                        static_cast<int>(codes.Number(2)), std::string(codes.Text(3)),
                        std::string(codes.Text(4))});
    }
    if (!adventure.CharSetsOn()) return text::TagCatalogue(std::move(rows));
    return text::TagCatalogue(std::move(rows), CharacterSets(adventure));
}

}  // namespace fabula::store
