#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "pictures/drawing.h"

namespace fabula::pictures {

/// A drawing that can be taken to any place of its drawstring, forwards and backwards, without drawing all
/// of it anew: on its way it keeps what it has drawn every so many commands. At each place it has drawn
/// just what `DrawPicture` up to there would.
class SteppedDrawing {
  public:
    /// `book` must outlive it. `Start` comes before all else.
    explicit SteppedDrawing(const PictureBook& book) : drawing_(book), fresh_(drawing_.Keep()) {}

    /// Clears the canvas in the colours of `picture`, with fresh attributes, and stands at the first word.
    void Start(const Picture& picture);

    /// Draws up to the word at `position`, where a command begins. The words that were drawn before are
    /// taken to be the same still, unless `Forget` has said otherwise. Throws fabula::Error when a command
    /// can't be drawn, and then stands before it.
    void GoTo(const std::vector<std::string>& words, std::size_t position);

    /// From the word at `index` on, the words are others now. It may have to go back; `GoTo` comes next.
    void Forget(std::size_t index);

    /// What is drawn up to another place in front of this one.
    Canvas PlanesAt(const std::vector<std::string>& words, std::size_t position) const;

    /// The index of the word before which it stands.
    std::size_t Position() const { return position_; }
    const Canvas& Planes() const { return drawing_.Planes(); }
    const DrawingState& State() const { return drawing_.State(); }

    /// How many commands lie between two snapshots at first, and the most of those, of some 350 KB each:
    /// where a drawstring has more commands, they are kept wider apart.
    static constexpr int kInterval = 16;
    static constexpr std::size_t kMostSnapshots = 128;

  private:
    struct Mark {
        std::size_t position;
        Drawing::Snapshot snapshot;
    };

    const Mark& MarkBefore(std::size_t position) const;
    void ReturnTo(std::size_t position);
    void PassMark();
    void ThinOut();

    Drawing drawing_;
    Drawing::Snapshot fresh_;
    std::size_t position_ = 0;
    std::vector<Mark> marks_;  ///< in order; the first at the first word
    int interval_ = kInterval;
    int sinceMark_ = 0;  ///< how many commands were drawn since the last mark
};

}  // namespace fabula::pictures
