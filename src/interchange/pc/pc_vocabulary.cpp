#include "interchange/pc/pc_vocabulary.h"

#include <optional>

#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "condacts/word_filters.h"
#include "condacts/word_record.h"
#include "text/encoding/utf8.h"

namespace fabula::interchange {
namespace {

using condacts::Word;
using store::TableNum;

bool IsWordNumber(condacts::WordNumber word, condacts::WordType type) {
    const int number = word.value;
    if (type == condacts::kReserved) return word <= condacts::kNoWordNumber;
    return number >= condacts::limit::kLowestWord && number <= condacts::limit::kHighestWord;
}

}  // namespace

std::optional<condacts::WordType> FindWordType(std::string_view type) {
    // The word that this system has for conjunctions is not the one that people write.
    if (text::EqualsNoCase(type, "conjunction")) return condacts::kConjunction;
    for (int number = condacts::kVerb; number <= condacts::kReserved; ++number) {
        if (text::EqualsNoCase(condacts::WordTypeName(number), type))
            return static_cast<condacts::WordType>(number);
    }
    return std::nullopt;
}

condacts::WordType WordTypeFromSource(std::string_view type) {
    return FindWordType(type).value_or(condacts::kReserved);
}

void PcVocabulary::Begin(const std::vector<std::string_view>&) {
    if (table_) return;
    store::Adventure& adventure = job_.context.adventure;
    adventure.DeleteFrom(TableNum::Vocabulary, condacts::ButReserved());
    const condacts::WordIndex reserved = condacts::LoadWords(adventure);
    for (const Word& word : reserved.All()) {
        bySpelling_[text::LowerCase(word.word)].push_back(word);
    }
    table_ = std::make_unique<KeyedTable>(adventure, TableNum::Vocabulary);
}

void PcVocabulary::Slash(std::string_view) {
    job_.Fault(kBadLine);
}

void PcVocabulary::Line(std::string_view line) {
    const auto tokens = SplitWords(line);
    const std::optional<int> number = tokens.size() < 3 ? std::nullopt : condacts::NumberOfToken(tokens[1]);
    if (!number) {
        job_.Fault(kBadLine, tokens.size() < 2 ? tokens.front() : tokens[1]);
        return;
    }
    if (!FindWordType(tokens[2]))
        job_.Fault("ERROR: " + std::string(tokens[2]) + " is no word type. RESERVED is taken.", tokens[2]);
    job_.FaultBehind(tokens, 3);
    const Word word{job_.Word(tokens[0]), condacts::WordNumber(*number), WordTypeFromSource(tokens[2])};
    if (!IsWordNumber(word.number, word.type)) {
        job_.Fault(std::string(condacts::kWordNumberFault), tokens[1]);
        return;
    }
    auto& sameSpelling = bySpelling_[text::LowerCase(word.word)];
    if (condacts::Clashes(word, sameSpelling)) {
        job_.Fault(condacts::DuplicateWordFault(word.word), tokens[0]);
        return;
    }
    sameSpelling.push_back(word);
    condacts::SetWord(table_->Add(table_->HighestKey() + 1), word);
    table_->Update();
}

void PcVocabulary::Finish() {
    job_.words = condacts::LoadWords(job_.context.adventure);
    job_.Status("Loaded VEL source Vocabulary");
}

}  // namespace fabula::interchange
