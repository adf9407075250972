// The sections of an UnMarlo listing that are tables of short lines: connections, vocabulary, and places
// and words of objects.

#include "condacts/limits.h"
#include "condacts/places.h"
#include "condacts/words.h"
#include "interchange/listing/game_words.h"
#include "interchange/shared/source_file.h"
#include "interchange/unmarlo/unmarlo_section.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::TableNum;

constexpr Columns kConnection{6, 12};  // 0A1F: NORTH to 5
constexpr Columns kPlace{30, 8};       // 0A1F: Object   3 is initially in room 12.
constexpr std::size_t kRoomToken = 7;
constexpr std::size_t kLettersOfAWord = condacts::SignificantLetters(store::AdventureKind::Marlo);
constexpr std::string_view kConnectionsFrom = "Connections from ";

class MarloConnections final : public ListingSection {
  public:
    explicit MarloConnections(ListingJob& job)
        : job_(job), locations_(job.Adventure(), TableNum::Locations, "locnum") {}

    void Line(std::string_view line) override {
        if (HasMark(line, kConnectionsFrom)) {
            Flush();
            number_ = NumberBehind(line, 2);
            if (!number_) job_.Fault(kBadLine);
            return;
        }
        const std::string connection = text::StrEdit(Cut(line, kConnection), "compress");
        if (text::TrimBlanks(connection).empty()) return;
        exits_ += text::ReplaceAll(connection, " to ", " ") + " ";
    }

    void Finish() override {
        Flush();
        job_.Status("Loaded Marlo Location Connections.");
    }

  private:
    void Flush() {
        if (number_ && locations_.Has(*number_)) {
            locations_.GoTo(*number_).SetField("exits", std::string(TrimRight(exits_)));
            locations_.Update();
        }
        number_.reset();
        exits_.clear();
    }

    ListingJob& job_;
    KeyedTable locations_;
    std::optional<int> number_;
    std::string exits_;
};

/// A listing does not tell the types of words: all are nouns.
class MarloVocabulary final : public ListingSection {
  public:
    explicit MarloVocabulary(ListingJob& job) : job_(job), words_(job.Adventure()) {}

    void Line(std::string_view line) override {
        if (!HasMark(line, "Word ")) return;
        const std::optional<int> number = NumberBehind(line, 1);
        const std::string listed = text::GetField(2, ":", line);
        const std::string_view whole = text::TrimBlanks(listed);
        const bool isWord = !whole.empty() && whole != ":" && whole.find(' ') == std::string_view::npos;
        const std::string word = text::UpperCase(text::Left(whole, kLettersOfAWord));
        if (!number || !isWord || words_.Has(word, condacts::kNoun)) {
            job_.Fault(kBadLine);
            return;
        }
        if (!words_.Add({word, condacts::WordNumber(*number), condacts::kNoun})) job_.Fault(kTooManyWords);
    }

    void Finish() override {
        job_.Status("Loaded Marlo Vocabulary. ");
        job_.Status("All words set to Nouns. ");
    }

  private:
    ListingJob& job_;
    GameWords words_;
};

class MarloObjectPlaces final : public ListingSection {
  public:
    explicit MarloObjectPlaces(ListingJob& job)
        : job_(job), objects_(job.Adventure(), TableNum::Objects, "objnum") {}

    void Line(std::string_view line) override {
        if (!HasMark(line, "Object ")) return;
        const std::optional<int> number = NumberBehind(line, 1);
        if (!number) job_.Fault(kBadLine);
        if (!number || !objects_.Has(*number)) return;
        SetPlace(objects_.GoTo(*number), PlaceIn(line));
        objects_.Update();
    }

    void Finish() override { job_.Status("Loaded Marlo Object Initial Locations."); }

  private:
    /// Anything that is no place counts as not created.
    static condacts::PlaceNumber PlaceIn(std::string_view line) {
        const std::string_view place = Cut(line, kPlace);
        if (place.starts_with("worn.")) return condacts::place::kWorn;
        if (place.starts_with("carried.")) return condacts::place::kCarried;
        if (!place.starts_with("in room")) return condacts::place::kNotCreated;
        const auto tokens = SplitWords(line);
        if (tokens.size() <= kRoomToken) return condacts::place::kNotCreated;
        const std::string_view room = tokens[kRoomToken].substr(0, tokens[kRoomToken].find('.'));
        const auto number = ListedNumber(room, condacts::limit::kHighestRecord);
        return number ? condacts::PlaceNumber(*number) : condacts::place::kNotCreated;
    }

    ListingJob& job_;
    KeyedTable objects_;
};

class MarloObjectWords final : public ListingSection {
  public:
    explicit MarloObjectWords(ListingJob& job)
        : job_(job), objects_(job.Adventure(), TableNum::Objects, "objnum") {}

    void Line(std::string_view line) override {
        constexpr std::size_t kNoun = 3;  // Object 3 named LAMP
        const std::string label = text::GetField(1, ":", line);
        const auto tokens = SplitWords(label);
        const std::optional<int> number = NumberBehind(line, 1);
        if (!HasMark(line, "Object ") || !number || tokens.size() <= kNoun) {
            if (!TrimRight(line).empty()) job_.Fault(kBadLine);
            return;
        }
        if (!objects_.Has(*number)) return;
        objects_.GoTo(*number).SetField("objnoun",
                                        text::UpperCase(text::Left(tokens[kNoun], kLettersOfAWord)));
        objects_.Update();
        job_.context.status.AddProgressLine("Loaded Object Word " + std::to_string(*number));
    }

    void Finish() override {
        job_.Status("Loaded Marlo Object Words. ");
        // They have a weight of 1; the message stands as it always did.
        job_.Status("Objects given a weight of 0 and no Object Adjective. ");
    }

  private:
    ListingJob& job_;
    KeyedTable objects_;
};

}  // namespace

std::unique_ptr<ListingSection> UnMarloConnections(ListingJob& job) {
    return std::make_unique<MarloConnections>(job);
}

std::unique_ptr<ListingSection> UnMarloVocabulary(ListingJob& job) {
    return std::make_unique<MarloVocabulary>(job);
}

std::unique_ptr<ListingSection> UnMarloObjectPlaces(ListingJob& job) {
    return std::make_unique<MarloObjectPlaces>(job);
}

std::unique_ptr<ListingSection> UnMarloObjectWords(ListingJob& job) {
    return std::make_unique<MarloObjectWords>(job);
}

}  // namespace fabula::interchange
