#include "condacts/language/load.h"
#include "interchange/unvel/unvel_section.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

// LAMP    50Noun
constexpr Columns kWord{0, 6};
constexpr Columns kNumber{6, 4};
constexpr Columns kType{10, 80};

struct TypeName {
    std::string_view name;
    condacts::WordType type;
};
/// Anything else is a noun.
constexpr TypeName kTypeNames[] = {
    {"Verb", condacts::kVerb},
    {"Adverb", condacts::kAdverb},
    {"Noun", condacts::kNoun},
    {"Adjetive", condacts::kAdjective},
    {"Adjective", condacts::kAdjective},
    {"Preposition", condacts::kPreposition},
    {"Conj.", condacts::kConjunction},
    {"Conjunction", condacts::kConjunction},
    {"Conjugation", condacts::kConjunction},
    {"Pronoun", condacts::kPronoun},
    {"RESERVED", condacts::kReserved},
};

condacts::WordType TypeFrom(std::string_view name) {
    for (const TypeName& entry : kTypeNames) {
        if (text::EqualsNoCase(entry.name, name)) return entry.type;
    }
    return condacts::kNoun;
}

class Vocabulary final : public ListingSection {
  public:
    explicit Vocabulary(UnVelJob& job) : job_(job), words_(job.Adventure()) {}

    void Line(std::string_view line) override {
        if (text::TrimBlanks(line).empty()) return;
        const std::string word = text::UpperCase(CutTrimmed(line, kWord));
        const auto number = ListedNumber(CutTrimmed(line, kNumber), condacts::kNoWordNumber.value);
        const condacts::WordType type = TypeFrom(CutTrimmed(line, kType));
        const bool isWord = !word.empty() && word.find(' ') == std::string::npos;
        if (!isWord || !number) {
            job_.Fault(kBadLine);
            return;
        }
        if (words_.Has(word, type)) {
            job_.Fault(condacts::DuplicateWordFault(word));
            return;
        }
        if (!words_.Add({word, condacts::WordNumber(*number), type})) job_.Fault(kTooManyWords);
    }

    /// The default words follow at once, since entries are looked up in the whole vocabulary.
    void Finish() override {
        job_.defaults.AddTo(words_);
        job_.words = condacts::LoadWords(job_.Adventure());
        job_.Status("Loaded UnVel Vocabulary");
        if (job_.isMarlo) job_.Status("All words set to Nouns.");
    }

  private:
    UnVelJob& job_;
    GameWords words_;
};

}  // namespace

std::unique_ptr<ListingSection> UnVelVocabulary(UnVelJob& job) {
    return std::make_unique<Vocabulary>(job);
}

}  // namespace fabula::interchange
