// The pictures and characters of an UnVel listing.

#include "interchange/listing/bit_arrays.h"
#include "interchange/listing/pictures_of_listing.h"
#include "interchange/unvel/unvel_section.h"
#include "pictures/characters/character_sets.h"
#include "store/character_key.h"
#include "text/format.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

constexpr std::string_view kSetHeading = "CharSet ";
constexpr std::string_view kFontName = "font_bits";

class Characters final : public ListingSection {
  public:
    explicit Characters(UnVelJob& job)
        : job_(job),
          arrays_([this](const std::string& name, const BitArray& array) { Store(name, array); }) {
        store::PreparedQuery settings = job.Adventure().Prepare(store::TableNum::Adventure, "savename", "");
        if (settings.First({})) saveName_ = settings.Text(0);
    }

    void Line(std::string_view line) override {
        if (line.starts_with(kSetHeading)) {
            set_ = ListedNumber(text::TrimBlanks(line.substr(kSetHeading.size())),
                                store::kHighestNewCharacterSet);
            return;
        }
        arrays_.Line(line);
    }

    void Finish() override {
        arrays_.Finish();
        job_.Status("Loaded UnVel Characters");
    }

  private:
    /// The set of a font: named by the array, else by the heading above it.
    std::optional<int> SetOfFont(std::string_view name) const {
        if (name == kFontName) return set_;
        const std::string prefix = std::string(kFontName) + "_";
        if (!name.starts_with(prefix)) return std::nullopt;
        return ListedNumber(name.substr(prefix.size()), store::kHighestNewCharacterSet);
    }

    std::string SetName(int set) const {
        return set == 0 ? "Default" : text::FormatText("%a! Set !%n", {saveName_, std::int64_t{set}});
    }

    void Store(const std::string& name, const BitArray& array) {
        ListedCharacters characters(job_.Adventure());
        if (name == "udg_bits") {
            characters.Store(0, pictures::kFirstUserGraphic, array.Characters(kUserGraphics), SetName(0));
        } else if (name == "shade_bits") {
            characters.Store(0, 0, array.Characters(pictures::kShades), SetName(0));
        } else if (const auto set = SetOfFont(name)) {
            characters.Store(*set, pictures::kFirstCharacter, array.Characters(kFontCharacters),
                             SetName(*set));
        } else {
            job_.Status("Invalid data " + name.substr(0, kLongestShown));
        }
    }

    static constexpr std::size_t kLongestShown = 30;

    UnVelJob& job_;
    std::string saveName_;
    std::optional<int> set_ = 0;
    ArrayReader arrays_;
};

}  // namespace

std::unique_ptr<ListingSection> UnVelPictures(UnVelJob& job) {
    return std::make_unique<ListedPictures>(job.listing, "Loaded UnVel Graphics");
}

std::unique_ptr<ListingSection> UnVelCharacters(UnVelJob& job) {
    return std::make_unique<Characters>(job);
}

}  // namespace fabula::interchange
