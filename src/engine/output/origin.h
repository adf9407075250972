#pragma once

#include <array>
#include <ostream>
#include <string>
#include <string_view>

#include "engine/numbers.h"

namespace fabula::engine {

/// The record that a printed text is of. Of a message with the description of an object in it the message.
struct TextRecord {
    enum class Kind {
        None,  ///< of no record: line ends, and what the engine says by itself
        Location,
        ShortLocation,
        Object,
        Message,
        SystemMessage,
        Flag,  ///< its value as a number
    };
    Kind kind = Kind::None;
    int number = 0;

    static constexpr TextRecord Of(PlaceNumber location) { return {Kind::Location, location.value}; }
    static constexpr TextRecord Of(ObjectNumber object) { return {Kind::Object, object.value}; }
    static constexpr TextRecord Of(MessageNumber message) { return {Kind::Message, message.value}; }
    static constexpr TextRecord Of(SystemMessageNumber message) {
        return {Kind::SystemMessage, message.value};
    }
    static constexpr TextRecord Of(FlagNumber flag) { return {Kind::Flag, flag.value}; }

    friend bool operator==(const TextRecord&, const TextRecord&) = default;
};

/// Where a run stands in the process tables. Outside of them (the turn cycle describes, asks and answers by
/// itself) there is no process; within one there may be no entry, and in an entry no condition or action.
struct RunPlace {
    static constexpr int kNone = -1;
    static constexpr ProcessNumber kNoProcess{kNone};

    ProcessNumber process = kNoProcess;
    int entry = kNone;           ///< its place in the table, counted from 0
    int record = kNone;          ///< its record key (`canum`)
    std::string_view name = {};  ///< of the condition or action, "" for none
    int paramCount = 0;
    std::array<int, 2> params{};
};

/// Where a run of text comes from: what ran, and the record that it stands in.
struct Origin {
    RunPlace place;
    TextRecord record;
};

/// Learns where each run of text comes from, before GameWindow::Write gets the same text.
class OriginSink {
  public:
    virtual ~OriginSink() = default;
    virtual void Printing(std::string_view text, const Origin& origin) = 0;
};

/// "Process 0, entry 3 (record 57), LET 5 40000", as far as it is known; "" for none.
std::string TextOf(const RunPlace& place);

/// "message 12"; "" for none.
std::string TextOf(const TextRecord& record);

/// Writes a line for each run of text, with tabs between its three columns: the place, the record, the
/// text. What is not known is "-".
class OriginLog final : public OriginSink {
  public:
    explicit OriginLog(std::ostream& out) : out_(out) {}
    void Printing(std::string_view text, const Origin& origin) override;

  private:
    std::ostream& out_;
};

}  // namespace fabula::engine
