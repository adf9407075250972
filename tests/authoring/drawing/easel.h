#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/desk.h"
#include "authoring/drawing/picture_editor.h"

namespace fabula::test {

/// A small game with locations 0 to 3 and the picture that is edited, number 1: paper 7, ink 0.
class Easel : public Desk {
  public:
    explicit Easel(std::string_view drawstring = "END", std::string_view kind = "Picture");

    void AddPicture(int number, std::string_view drawstring, std::string_view kind = "Picture");

    /// The editor on a picture, or on a new one.
    authoring::PictureEditor& Open(int number = 1, bool isNew = false);
    authoring::PictureEditor& Editor() { return *editor_; }

    /// Puts the key cursor somewhere and does a command there.
    bool At(int x, int y, std::string_view line);
    bool Run(std::string_view line) { return editor_->Run(line); }
    std::string Drawstring() const { return editor_->drawstring; }
    /// The field of the edited picture's record.
    std::string Stored(std::string_view field, int number = 1);

    /// True when the planes show just what drawing the words in front of the position gives.
    bool PlanesAreWhatIsDrawn() const;

  private:
    std::unique_ptr<authoring::PictureEditor> editor_;
};

/// Both planes as text, to be compared as a whole.
std::string PlanesAsText(const pictures::Canvas& canvas);

}  // namespace fabula::test
