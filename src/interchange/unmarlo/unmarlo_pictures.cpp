// The characters and pictures at the end of an UnMarlo listing.

#include "interchange/unmarlo/bit_arrays.h"
#include "interchange/unmarlo/pictures_of_listing.h"
#include "interchange/unmarlo/unmarlo_section.h"
#include "pictures/characters/character_sets.h"

namespace fabula::interchange {
namespace {

constexpr const char* kSetName = "Marlo Default";

/// The arrays of the user-defined graphics and of the font.
class CharacterArrays final : public UnMarloSection {
  public:
    explicit CharacterArrays(ListingJob& job) : job_(job) {}

    void Line(std::string_view line) override {
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

    void Finish() override { Flush(); }

  private:
    void Flush() {
        ListedCharacters characters(job_.Adventure());
        if (name_ == "udg_bits")
            characters.Store(0, pictures::kFirstUserGraphic, array_.Characters(kUserGraphics), kSetName);
        if (name_ == "font_bits")
            characters.Store(0, pictures::kFirstCharacter, array_.Characters(kFontCharacters), kSetName);
        name_.clear();
        array_ = {};
    }

    ListingJob& job_;
    std::string name_;  ///< of the array that is being read
    BitArray array_;
};

class MarloPictures final : public UnMarloSection {
  public:
    explicit MarloPictures(ListingJob& job) : job_(job), pictures_(job) {}

    void Line(std::string_view line) override {
        if (goesOn_) goesOn_ = pictures_.TakeLine(line);
    }

    void Finish() override {
        pictures_.Finish();
        if (pictures_.Count() > 0) SetSetting(job_.Adventure(), "graphics", 1);
        job_.Status(" Graphics records loaded.");
    }

  private:
    ListingJob& job_;
    ListedPictures pictures_;
    bool goesOn_ = true;
};

}  // namespace

std::unique_ptr<UnMarloSection> UnMarloCharacters(ListingJob& job) {
    return std::make_unique<CharacterArrays>(job);
}

std::unique_ptr<UnMarloSection> UnMarloPictures(ListingJob& job) {
    return std::make_unique<MarloPictures>(job);
}

}  // namespace fabula::interchange
