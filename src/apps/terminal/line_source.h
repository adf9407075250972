#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace fabula::terminal {

/// What someone who types is asked.
struct Question {
    std::string_view prompt =
        {};  ///< shown by a source that draws its own line; sequences between kPromptMark
    /// How long to wait, counted from the last key; forever without one.
    std::optional<std::chrono::milliseconds> timeOut = std::nullopt;
    bool remember = false;  ///< the line goes into the history
};

/// Stands around what takes no column in a prompt.
inline constexpr char kPromptMark = '\x01';

struct TypedLine {
    enum class Kind {
        Line,
        TimeOut,
        End,  ///< there will be no more
    };
    Kind kind = Kind::End;
    std::string text = {};  ///< without its end
    bool shown = false;     ///< it stands on the screen already, with its prompt and its end
};

/// Where the player's lines come from.
class LineSource {
  public:
    virtual ~LineSource() = default;
    virtual TypedLine Read(const Question& question) = 0;
    /// Whether a whole line is there already, so that Read will not wait for anybody.
    virtual bool HasLine() const { return false; }
};

/// Of a longer line the rest is left away.
inline constexpr std::size_t kLongestTypedLine = 64 * 1024;

}  // namespace fabula::terminal
