// The pictures and characters of an UnVel listing.

#include "interchange/unmarlo/bit_arrays.h"
#include "interchange/unmarlo/pictures_of_listing.h"
#include "interchange/unvel/unvel_section.h"
#include "pictures/characters/character_sets.h"
#include "store/character_key.h"
#include "text/format.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

constexpr std::string_view kSetHeading = "CharSet ";
constexpr std::string_view kFontName = "font_bits";

class Pictures final : public UnVelSection {
  public:
    explicit Pictures(UnVelJob& job) : job_(job), pictures_(job.listing) {}

    void Line(std::string_view line) override {
        if (goesOn_) goesOn_ = pictures_.TakeLine(line);
    }

    void Finish() override {
        pictures_.Finish();
        job_.Status("Loaded UnVel Graphics");
    }

  private:
    UnVelJob& job_;
    ListedPictures pictures_;
    bool goesOn_ = true;
};

class Characters final : public UnVelSection {
  public:
    explicit Characters(UnVelJob& job) : job_(job) {
        store::PreparedQuery settings = job.Adventure().Prepare(store::TableNum::Adventure, "savename", "");
        if (settings.First({})) saveName_ = settings.Text(0);
    }

    void Line(std::string_view line) override {
        if (line.starts_with(kSetHeading)) {
            set_ = ListedNumber(text::TrimBlanks(line.substr(kSetHeading.size())),
                                store::kHighestNewCharacterSet);
            return;
        }
        const std::string_view name = BitArray::NameIn(line);
        if (!name.empty()) {
            Flush();
            name_ = name;
            line.remove_prefix(line.find('{') + 1);
        }
        if (name_.empty()) return;
        array_.TakeLine(line);
        if (array_.Closed()) Flush();
    }

    void Finish() override {
        Flush();
        job_.Status("Loaded UnVel Characters");
    }

  private:
    /// The set of a font: named by the array, else by the heading above it.
    std::optional<int> SetOfFont() const {
        if (name_ == kFontName) return set_;
        const std::string prefix = std::string(kFontName) + "_";
        if (!name_.starts_with(prefix)) return std::nullopt;
        return ListedNumber(std::string_view(name_).substr(prefix.size()), store::kHighestNewCharacterSet);
    }

    std::string SetName(int set) const {
        return set == 0 ? "Default" : text::FormatText("%a! Set !%n", {saveName_, std::int64_t{set}});
    }

    void Flush() {
        if (name_.empty()) return;
        ListedCharacters characters(job_.Adventure());
        if (name_ == "udg_bits") {
            characters.Store(0, pictures::kFirstUserGraphic, array_.Characters(kUserGraphics), SetName(0));
        } else if (name_ == "shade_bits") {
            characters.Store(0, 0, array_.Characters(kShades), SetName(0));
        } else if (const auto set = SetOfFont()) {
            characters.Store(*set, pictures::kFirstCharacter, array_.Characters(kFontCharacters),
                             SetName(*set));
        } else {
            job_.Status("Invalid data " + name_.substr(0, kLongestShown));
        }
        name_.clear();
        array_ = {};
    }

    static constexpr std::size_t kLongestShown = 30;

    UnVelJob& job_;
    std::string saveName_;
    std::optional<int> set_ = 0;
    std::string name_;  ///< of the array that is being read
    BitArray array_;
};

}  // namespace

std::unique_ptr<UnVelSection> UnVelPictures(UnVelJob& job) {
    return std::make_unique<Pictures>(job);
}

std::unique_ptr<UnVelSection> UnVelCharacters(UnVelJob& job) {
    return std::make_unique<Characters>(job);
}

}  // namespace fabula::interchange
