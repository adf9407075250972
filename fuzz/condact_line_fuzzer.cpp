// Any text as a line of conditions and actions: it is checked and turned into each form, and what the
// checks let pass compiles, unless a word is longer than the letters that are looked up.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "condacts/language/convert.h"
#include "condacts/language/parser.h"
#include "condacts/language/validate.h"
#include "interchange/shared/condact_text.h"
#include "sample.h"

using namespace fabula;

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const condacts::Catalogue catalogue = condacts::SampleCatalogue();
    static const condacts::Facts facts = condacts::SampleFacts();
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    const auto fault = condacts::ValidateCondActs(line, catalogue, facts);
    if (fault) Require(fault->token < condacts::SplitLine(line).size());
    condacts::ValidateCondAct(line, catalogue, facts);
    const std::string numbered = condacts::LocationWordsToNumbers(line, catalogue);
    Require(condacts::LocationWordsToNumbers(numbered, catalogue) == numbered);
    const condacts::Converted numeric = condacts::CondActsToNumeric(numbered, catalogue, facts.words);
    if (!fault && !numeric.ok) Require(numeric.errors.starts_with("word "));
    const condacts::Converted text = condacts::NumericToCondActs(numeric.line, catalogue, facts.words);
    if (!fault && numeric.ok) {
        const std::string again = condacts::LocationWordsToNumbers(text.line, catalogue);
        Require(condacts::CondActsToNumeric(again, catalogue, facts.words).line == numeric.line);
    }
    condacts::NumericToCondActs(line, catalogue, facts.words);
    interchange::ConvertCAs(line, catalogue);
    interchange::ConvertUnVelCAs(line, catalogue, facts.words);
    return 0;
}
