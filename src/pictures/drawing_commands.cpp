#include <algorithm>
#include <array>

#include "pictures/drawing.h"
#include "pictures/drawstring.h"
#include "platform/error.h"

namespace fabula::pictures {

/// The parameters of one command in a drawstring, read as numbers when they are asked for.
class CommandArguments {
  public:
    CommandArguments(const Drawing& drawing, const Command& command, std::span<const std::string> words,
                     int scale)
        : drawing_(drawing), command_(command), words_(words), scale_(scale) {}

    int operator[](std::size_t place) const { return Number(Word(place)); }

    /// The number behind the "=" of the first parameter, "sc=4".
    int GoSubScale() const {
        const std::string_view word = Word(0);
        const std::size_t equals = word.find('=');
        return Number(equals == std::string_view::npos ? "" : word.substr(equals + 1));
    }

    /// The scale of the drawstring that the command stands in.
    int Scale() const { return scale_; }

  private:
    /// An empty one where the drawstring ended too early.
    std::string_view Word(std::size_t place) const {
        return place < words_.size() ? std::string_view(words_[place]) : std::string_view();
    }

    int Number(std::string_view word) const {
        const std::optional<int> value = ParameterValue(word);
        if (!value) drawing_.Fail("a parameter of " + command_.name + " is missing or is no number.");
        return *value;
    }

    const Drawing& drawing_;
    const Command& command_;
    std::span<const std::string> words_;
    int scale_;
};

struct Drawing::Routine {
    CommandNumber number;
    void (*run)(Drawing& drawing, const CommandArguments& arguments);
};

std::span<const Drawing::Routine> Drawing::Routines() {
    using Arguments = CommandArguments;
    static constexpr std::array kRoutines = {
        Routine{kAbsMove, [](Drawing& d, const Arguments& a) { d.DrawAbsMove(a[0], a[1], a.Scale()); }},
        Routine{kPlot, [](Drawing& d, const Arguments& a) { d.DrawPlot(a[0], a[1], a[2]); }},
        Routine{kRelMove, [](Drawing& d, const Arguments& a) { d.DrawRelMove(a[0], a[1], a.Scale()); }},
        Routine{kLine, [](Drawing& d, const Arguments& a) { d.DrawLine(a[0], a[1], a[2], a.Scale()); }},
        Routine{kFill, [](Drawing& d, const Arguments& a) { d.DrawFill(a[0], a[1], a.Scale()); }},
        Routine{kShade,
                [](Drawing& d, const Arguments& a) { d.DrawShade(a[0], a[1], a[2], a[3], a.Scale()); }},
        Routine{kText, [](Drawing& d, const Arguments& a) { d.DrawText(a[0], a[1], a[2], a[3], a[4]); }},
        Routine{kBlock, [](Drawing& d, const Arguments& a) { d.DrawBlock(a[0], a[1], a[2], a[3]); }},
        Routine{kInk, [](Drawing& d, const Arguments& a) { d.DrawInk(a[0]); }},
        Routine{kPaper, [](Drawing& d, const Arguments& a) { d.DrawPaper(a[0]); }},
        Routine{kBright, [](Drawing& d, const Arguments& a) { d.DrawBright(a[0]); }},
        Routine{kFlash, [](Drawing& d, const Arguments& a) { d.DrawFlash(a[0]); }},
        Routine{kGoSub, [](Drawing& d, const Arguments& a) { d.DrawGoSub(a.GoSubScale(), a[1]); }},
        Routine{kQShade,
                [](Drawing& d, const Arguments& a) { d.DrawQShade(a[0], a[1], a[2], a[3], a.Scale()); }},
        Routine{kRPlot, [](Drawing& d, const Arguments& a) { d.DrawRPlot(a[0], a[1], a[2]); }},
        Routine{kQFill, [](Drawing& d, const Arguments& a) { d.DrawQFill(a[0], a[1], a.Scale()); }},
        Routine{kBShade,
                [](Drawing& d, const Arguments& a) { d.DrawBShade(a[0], a[1], a[2], a[3], a.Scale()); }},
    };
    return kRoutines;
}

Drawing::Drawing(const PictureBook& book, DrawWatcher* watcher) : book_(book), watcher_(watcher) {
    state_.inkColour = book.textColour;
    state_.paperColour = book.backColour;
}

void Drawing::CommDraw(const Picture& picture, std::string_view drawstring, std::size_t lastWord) {
    if (watcher_ != nullptr) watcher_->Status("Drawing.....");
    DrawClear(picture);
    DrawOver(false);
    canvas_.colour.SetMode(WritingMode::Copy);
    callees_.clear();
    commandsLeft_ = kMostCommands;
    DrawWords(DrawstringWords(drawstring), 0, lastWord);
}

std::size_t Drawing::DrawCommand(const std::vector<std::string>& words, std::size_t index) {
    callees_.clear();
    return RunCommand(words, index, 0);
}

void Drawing::Restore(const Snapshot& snapshot) {
    canvas_ = snapshot.canvas;
    state_ = snapshot.state;
    commandsLeft_ = snapshot.commandsLeft;
}

void Drawing::DrawWords(const std::vector<std::string>& words, int scale, std::size_t lastWord) {
    std::size_t index = 0;
    while (index < words.size() && index <= lastWord) {
        index = RunCommand(words, index, scale);
    }
}

std::size_t Drawing::RunCommand(const std::vector<std::string>& words, std::size_t index, int scale) {
    if (commandsLeft_-- <= 0) {
        throw Error("Picture " + std::to_string(picture_) +
                    " can't be drawn: with its subroutines it runs more than " +
                    std::to_string(kMostCommands) + " commands.");
    }
    const Command* command = book_.commands.Find(words[index]);
    ++index;
    if (command == nullptr) return index;
    const auto wanted = static_cast<std::size_t>(command->drawnParameters);
    const std::size_t given = std::min(wanted, words.size() - index);
    const auto routines = Routines();
    const auto routine = std::find_if(routines.begin(), routines.end(),
                                      [command](const Routine& r) { return r.number == command->number; });
    if (routine != routines.end()) {
        routine->run(*this,
                     CommandArguments(*this, *command, std::span(words).subspan(index, given), scale));
    }
    return index + given;
}

void Drawing::DrawGoSub(int scale, int number) {
    const Picture* subroutine = book_.FindPicture(number);
    if (subroutine == nullptr) Fail("there is no picture " + std::to_string(number) + " for its GOSUB.");
    callees_.push_back(number);
    if (callees_.size() > kDeepestGoSub) FailTooDeep();
    const int inkOfTheCaller = state_.currentInk;
    state_.currentInk = subroutine->ink == kColourOfTheAdventure ? state_.defaultInk : subroutine->ink;
    DrawWords(DrawstringWords(subroutine->drawstring), scale, kWholeDrawstring);
    state_.currentInk = inkOfTheCaller;
    callees_.pop_back();
}

void Drawing::FailTooDeep() const {
    std::vector<int> pictures{picture_};
    for (const int callee : callees_) {
        if (std::find(pictures.begin(), pictures.end(), callee) == pictures.end())
            pictures.push_back(callee);
    }
    std::string list = std::to_string(pictures.front());
    for (std::size_t i = 1; i < pictures.size(); ++i) {
        list += (i + 1 == pictures.size() ? " and " : ", ") + std::to_string(pictures[i]);
    }
    throw Error("Picture " + std::to_string(picture_) + " can't be drawn: its GOSUBs are nested over " +
                std::to_string(kDeepestGoSub) + " deep, in " +
                (pictures.size() == 1 ? "picture " : "pictures ") + list + ".");
}

void Drawing::Fail(const std::string& why) const {
    const int picture = callees_.empty() ? picture_ : callees_.back();
    throw Error("Picture " + std::to_string(picture) + " can't be drawn: " + why);
}

}  // namespace fabula::pictures
