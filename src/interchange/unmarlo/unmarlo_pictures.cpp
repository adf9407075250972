// The characters and pictures at the end of an UnMarlo listing.

#include "interchange/listing/bit_arrays.h"
#include "interchange/listing/pictures_of_listing.h"
#include "interchange/unmarlo/unmarlo_section.h"
#include "pictures/characters/character_sets.h"

namespace fabula::interchange {
namespace {

constexpr const char* kSetName = "Marlo Default";

/// The arrays of the user-defined graphics and of the font.
class CharacterArrays final : public ListingSection {
  public:
    explicit CharacterArrays(ListingJob& job)
        : arrays_([&job](const std::string& name, const BitArray& array) { Store(job, name, array); }) {}

    void Line(std::string_view line) override { arrays_.Line(line); }
    void Finish() override { arrays_.Finish(); }

  private:
    static void Store(ListingJob& job, const std::string& name, const BitArray& array) {
        ListedCharacters characters(job.Adventure());
        if (name == "udg_bits")
            characters.Store(0, pictures::kFirstUserGraphic, array.Characters(kUserGraphics), kSetName);
        if (name == "font_bits")
            characters.Store(0, pictures::kFirstCharacter, array.Characters(kFontCharacters), kSetName);
    }

    ArrayReader arrays_;
};

}  // namespace

std::unique_ptr<ListingSection> UnMarloCharacters(ListingJob& job) {
    return std::make_unique<CharacterArrays>(job);
}

std::unique_ptr<ListingSection> UnMarloPictures(ListingJob& job) {
    return std::make_unique<ListedPictures>(job, " Graphics records loaded.", true);
}

}  // namespace fabula::interchange
