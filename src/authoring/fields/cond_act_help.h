#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/fields/named_record.h"
#include "authoring/fields/texts/record_texts.h"
#include "condacts/language/catalogue.h"
#include "condacts/language/facts.h"
#include "condacts/language/parser.h"

namespace fabula::authoring {

/// Something that can be written in a line of conditions and actions.
struct Completion {
    std::string insert;        ///< what is written: "7", "CARRIED", "MESSAGE"
    std::string shown;         ///< what a list shows for it: "7  It is too dark"
    std::string newText = {};  ///< of a message that is to be added, whose number `insert` will be

    friend bool operator==(const Completion&, const Completion&) = default;
};

/// What may be written at a place of a line, and the bytes that it replaces.
struct Completions {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::vector<Completion> items;
};

/// What was typed where a number is to stand, to find its record by its text: "brass lamp" in quotes, or
/// @lamp, which ends at a blank.
struct TypedName {
    std::size_t begin = 0;  ///< in bytes; with the quotes or the @
    std::size_t end = 0;
    std::string text;  ///< without them
    bool quoted = false;

    friend bool operator==(const TypedName&, const TypedName&) = default;
};

/// A fault of a line, and the bytes of the token that is at fault.
struct MarkedFault {
    std::string message;
    std::size_t begin = 0;
    std::size_t end = 0;

    friend bool operator==(const MarkedFault&, const MarkedFault&) = default;
};

/// A condition or action of a line, and what its parameters stand for.
struct ExplainedCondAct {
    std::string text;     ///< "MESSAGE 40"
    std::string meaning;  ///< "\u201CYou lower the wick\u201D"; "" where there is nothing to be said
    bool isAction = false;
    bool isFault = false;  ///< no such name: the meaning says so, and nothing behind it is understood

    friend bool operator==(const ExplainedCondAct&, const ExplainedCondAct&) = default;
};

/// What an author who writes conditions and actions wants to be told, from the adventure as it was when
/// this was made: making it reads the tables, the answers read nothing. Places in a line count bytes, and a
/// cursor stands before the byte of its number.
class CondActHelp {
  public:
    explicit CondActHelp(store::Adventure& adventure);

    const condacts::Catalogue& Catalogue() const { return catalogue_; }
    const condacts::Facts& Facts() const { return facts_; }

    /// The conditions and actions of the adventure's dialect, by name.
    std::vector<Completion> Names() const;

    /// What a parameter of a condition or action takes, `place` 0 or 1: numbers with what they stand for,
    /// words, location words. None for a plain value.
    std::vector<Completion> Parameters(const condacts::CondAct& condAct, std::size_t place) const;

    /// What the parameter's field is called: "Location", "Message", "Adverb", "Value".
    static std::string_view ParameterName(const condacts::CondAct& condAct, std::size_t place);

    /// What may stand at the cursor: names, or what the parameter takes and passes the checks. The letters
    /// before the cursor must be the beginning of it or, of what a number stands for, the beginning of a
    /// word.
    Completions Complete(std::string_view line, std::size_t cursor) const;

    /// The first name that stands in the line in place of a number; nullopt where something else is at
    /// fault before it.
    std::optional<TypedName> FirstName(std::string_view line) const;
    /// What such a name may mean at its place: the records whose text it is or, where there are none, those
    /// with a word that begins so.
    std::vector<Completion> MeantBy(std::string_view line, const TypedName& name) const;
    /// Whether a message is to stand at its place.
    bool IsMessage(std::string_view line, const TypedName& name) const;
    /// What may stand where a name does: "an object".
    std::string PhraseFor(std::string_view line, const TypedName& name) const;

    /// The number that a message would get that is added; nullopt offers none.
    void OfferNewMessage(std::optional<condacts::MessageNumber> number) { newMessage_ = number; }
    /// From now on there is a message of this number and text.
    void AddMessage(condacts::MessageNumber number, std::string_view text);

    /// The record that the token at the cursor names; words are looked up in the adventure.
    std::optional<NamedRecord> Named(store::Adventure& adventure, std::string_view line,
                                     std::size_t cursor) const;

    /// What the token at the cursor means: "MESSAGE 7: It is too dark"; where no token is, what could stand
    /// there. "" in an empty line.
    std::string Meaning(std::string_view line, std::size_t cursor) const;

    /// The conditions and actions of a line, one by one.
    std::vector<ExplainedCondAct> Explain(std::string_view line) const;
    /// The line with what it stands for: "AT 7 The Yard  \u00B7  SET 62 lamp lit".
    std::string WithNames(std::string_view line) const;

    /// The page of the help about the condition or action at the cursor, which may stand in its name or in
    /// a parameter of it: "at.htm". "" where there is none.
    std::string Page(std::string_view line, std::size_t cursor) const;

    /// The first fault, or nullopt.
    std::optional<MarkedFault> FirstFault(std::string_view line) const;
    /// The same while the line is being typed: what is not finished at the cursor is no fault yet.
    std::optional<MarkedFault> FirstFaultWhileTyping(std::string_view line, std::size_t cursor) const;

  private:
    struct Place;
    Place Find(std::string_view line, std::size_t cursor) const;
    bool Fits(const Place& place, std::string_view parameter) const;
    std::vector<Completion> Fitting(const Place& place, std::string_view text) const;
    Completions CompleteName(std::string_view line, std::size_t cursor, const TypedName& name) const;
    std::vector<Completion> Words(const condacts::CondAct& condAct) const;
    std::string MeaningOfParameter(const condacts::CondAct& condAct, std::size_t place,
                                   std::string_view token) const;
    std::string NameIn(const condacts::CondAct& condAct, std::size_t place, std::string_view token) const;
    std::string MeaningOfValue(const condacts::CondAct& condAct, std::string_view flagToken,
                               std::string_view token) const;
    std::string MeaningOfNumber(const condacts::Parameter& parameter, std::string_view token) const;
    /// The record that a number names; nullptr where there is none.
    const ListItem* RecordOf(condacts::ParamKind kind, std::string_view token) const;
    std::string Quoted(condacts::ParamKind kind, std::string_view token, const std::string& meaning) const;

    condacts::Catalogue catalogue_;
    condacts::Facts facts_;
    RecordTexts texts_;
    std::optional<condacts::MessageNumber> newMessage_;
    std::map<int, std::string> pages_;  ///< by the number of the condition or action
};

}  // namespace fabula::authoring
