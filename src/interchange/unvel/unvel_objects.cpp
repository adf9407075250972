// What an UnVel listing tells of objects besides their names: words, places, and weights and types.

#include "condacts/limits.h"
#include "condacts/places.h"
#include "interchange/shared/source_file.h"
#include "interchange/unvel/unvel_file.h"
#include "interchange/unvel/unvel_section.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using condacts::Word;
using store::Cursor;
using store::TableNum;

// Object   3    LAMP BRASS
// Object   3  NC
// Object   3:  weights  5    CW
constexpr Columns kObjectHead{0, 6};
constexpr Columns kObjectNumber{6, 5};  // the colon apart, wherever it stands
constexpr Columns kWords{14, 80};
constexpr Columns kObjectPlace{10, 80};
constexpr Columns kRest{12, 80};

struct PlaceName {
    std::string_view name;
    condacts::PlaceNumber place;
};
constexpr PlaceName kPlaceNames[] = {
    {"NC", condacts::place::kNotCreated}, {"W", condacts::place::kWorn}, {"C", condacts::place::kCarried}};

struct AttributeName {
    std::string_view name;
    const char* stored;
    int number;
};
constexpr AttributeName kAttributeNames[] = {{"", "", 0},     {"C", "C", 1},    {"W", "WR", 2},
                                             {"WR", "WR", 2}, {"CW", "CWR", 3}, {"CWR", "CWR", 3}};

/// Finds the record of each line and hands the line to `Set`.
class ObjectLines : public ListingSection {
  public:
    ObjectLines(UnVelJob& job, const char* loaded)
        : job_(job), loaded_(loaded), objects_(job.Adventure(), TableNum::Objects, "objnum") {}

    void Line(std::string_view line) final {
        if (text::TrimBlanks(line).empty()) return;
        std::string_view digits = CutTrimmed(line, kObjectNumber);
        if (digits.ends_with(':')) digits.remove_suffix(1);
        const auto number = ListedNumber(digits, condacts::limit::kHighestRecord);
        if (Cut(line, kObjectHead) != "Object" || !number) {
            job_.Fault(kBadLine);
            return;
        }
        if (!objects_.Has(*number)) return;
        Cursor& object = objects_.GoTo(*number);
        if (!Set(object, line)) job_.Fault(kBadLine);
        objects_.Update();
    }

    void Finish() override { job_.Status(loaded_); }

  protected:
    /// False for a line that can't be understood.
    virtual bool Set(Cursor& object, std::string_view line) = 0;

    UnVelJob& job_;

  private:
    const char* loaded_;
    KeyedTable objects_;
};

class ObjectWords final : public ObjectLines {
  public:
    explicit ObjectWords(UnVelJob& job) : ObjectLines(job, "Loaded UnVel Object Words") {}

    void Finish() override {
        ObjectLines::Finish();
        if (!job_.isMarlo) return;
        job_.Status("Objects given a weight of 0 ");
        job_.Status("and no Object adjective.");
    }

  private:
    bool Set(Cursor& object, std::string_view line) override {
        const auto words = SplitWords(Cut(line, kWords));
        bool known = true;
        const auto set = [&](std::size_t index, condacts::WordTest test, const char* field,
                             const char* numberField) {
            if (index >= words.size()) return;
            const Word* found = job_.words.Find(words[index], test);
            known = known && found != nullptr;
            object.SetField(field, found ? found->word : std::string(condacts::kNoWord));
            object.SetField(numberField,
                            std::int64_t{(found ? found->number : condacts::kNoWordNumber).value});
        };
        set(0, condacts::IsNounOrReserved, "objnoun", "objnumnoun");
        set(1, condacts::IsAdjectiveOrReserved, "objadject", "objnumadject");
        return known && !words.empty();
    }
};

class ObjectPlaces final : public ObjectLines {
  public:
    explicit ObjectPlaces(UnVelJob& job) : ObjectLines(job, "Loaded UnVel Object Locations") {}

  private:
    bool Set(Cursor& object, std::string_view line) override {
        const std::string_view place = CutTrimmed(line, kObjectPlace);
        for (const PlaceName& entry : kPlaceNames) {
            if (entry.name != place) continue;
            SetPlace(object, entry.place);
            return true;
        }
        const auto room = ListedNumber(place, condacts::limit::kHighestRecord);
        if (room) SetPlace(object, condacts::PlaceNumber(*room));
        return room.has_value();
    }
};

class ObjectWeights final : public ObjectLines {
  public:
    explicit ObjectWeights(UnVelJob& job) : ObjectLines(job, "Loaded UnVel Object Weight and Attributes") {}

  private:
    bool Set(Cursor& object, std::string_view line) override {
        const auto words = SplitWords(Cut(line, kRest));
        if (words.size() < 2) return false;
        const auto weight = ListedNumber(words[1], kHeaviestListed);
        const std::string_view type = words.size() > 2 ? words[2] : std::string_view();
        if (!weight) return false;
        object.SetField("objweight", std::int64_t{*weight});
        for (const AttributeName& entry : kAttributeNames) {
            if (entry.name != type) continue;
            object.SetField("objattr", std::string(entry.stored));
            object.SetField("objattrn", std::int64_t{entry.number});
            return true;
        }
        return false;
    }
};

}  // namespace

std::unique_ptr<ListingSection> UnVelObjectWords(UnVelJob& job) {
    return std::make_unique<ObjectWords>(job);
}

std::unique_ptr<ListingSection> UnVelObjectPlaces(UnVelJob& job) {
    return std::make_unique<ObjectPlaces>(job);
}

std::unique_ptr<ListingSection> UnVelObjectWeights(UnVelJob& job) {
    return std::make_unique<ObjectWeights>(job);
}

}  // namespace fabula::interchange
