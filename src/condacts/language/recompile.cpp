#include "condacts/language/recompile.h"

#include <algorithm>
#include <string>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "condacts/language/parser.h"

namespace fabula::condacts {
namespace {

bool AsksForWords(std::string_view line, const Catalogue& catalogue) {
    const ParsedLine parsed = ParseLine(line, catalogue);
    return std::any_of(parsed.statements.begin(), parsed.statements.end(), [](const Statement& statement) {
        return FindWordCondition(statement.condAct->name) != nullptr;
    });
}

/// Whether it did.
bool SetWhereItDiffers(store::Cursor& entries, std::string_view field, const std::string& value) {
    if (entries.Text(field) == value) return false;
    entries.SetField(field, value);
    entries.Update();
    return true;
}

}  // namespace

int RecompileEntries(store::Adventure& adventure) {
    int renamedTexts = 0;
    const Catalogue catalogue = LoadCatalogue(adventure);
    const WordIndex words = LoadWords(adventure);
    store::Cursor& entries = adventure.OpenTable(store::TableNum::Free22, "* from processtables");
    for (; !entries.Eof(); entries.MoveNext()) {
        const std::string line(entries.Text("condacts"));
        if (!AsksForWords(line, catalogue)) continue;
        const Converted numeric =
            CondActsToNumeric(LocationWordsToNumbers(line, catalogue), catalogue, words);
        if (numeric.ok) {
            SetWhereItDiffers(entries, "numericcondacts", numeric.line);
            continue;
        }
        const Converted renamed = NumericToCondActs(entries.Text("numericcondacts"), catalogue, words);
        if (renamed.ok &&
            SetWhereItDiffers(entries, "condacts", LocationWordsToNumbers(renamed.line, catalogue)))
            ++renamedTexts;
    }
    return renamedTexts;
}

}  // namespace fabula::condacts
