#include "engine/saved_game.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "condacts/numbers.h"
#include "platform/whole_file.h"
#include "store/extensions.h"
#include "store/file/file_copy.h"
#include "text/numbers.h"

namespace fabula::engine {

namespace {

constexpr int kHeaderLines = 2;
constexpr int kLines = kHeaderLines + 3 * RunState::kSlots;

/// More than any saved game takes: every value at its longest.
std::size_t LargestFile(const RunState& state) {
    const int values = state.FlagCount() + state.ObjectCount() + state.LocationCount();
    return 4096 + RunState::kSlots * (static_cast<std::size_t>(values) * 7 + 8);
}

std::string HeaderLine(const GameData& data, const RunState& state) {
    return "Fabula," + data.saveName + ",10,10," + std::to_string(state.FlagCount() - 1);
}

/// The stores in the order of the file's lines.
std::vector<std::span<std::int16_t>> Stores(RunState& state) {
    std::vector<std::span<std::int16_t>> stores;
    for (int slot = 0; slot < RunState::kSlots; ++slot)
        stores.push_back(state.VisitedMarks(slot));
    for (int slot = 0; slot < RunState::kSlots; ++slot)
        stores.push_back(state.ObjectPlaces(slot));
    for (int slot = 0; slot < RunState::kSlots; ++slot)
        stores.push_back(state.Flags(slot));
    return stores;
}

std::vector<std::string_view> SplitLines(std::string_view content) {
    std::vector<std::string_view> lines;
    while (!content.empty()) {
        const std::size_t end = content.find('\n');
        if (end == std::string_view::npos) return {};  // the last line was cut
        std::string_view line = content.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
        content.remove_prefix(end + 1);
    }
    return lines;
}

/// Exactly `count` numbers of 16 bits, or nothing.
std::optional<std::vector<std::int16_t>> ParseNumbers(std::string_view line, std::size_t count) {
    std::vector<std::int16_t> numbers;
    numbers.reserve(count);
    while (numbers.size() < count) {
        if (!numbers.empty()) {
            if (!line.starts_with(',')) return std::nullopt;
            line.remove_prefix(1);
        }
        const std::optional<int> value = text::TakeNumber(line);
        if (!value || !condacts::FitsNumber(*value)) return std::nullopt;
        numbers.push_back(static_cast<std::int16_t>(*value));
    }
    if (!line.empty()) return std::nullopt;
    return numbers;
}

bool AreMarks(const std::vector<std::int16_t>& values) {
    return std::all_of(values.begin(), values.end(), [](int mark) { return mark == 0 || mark == 1; });
}

}  // namespace

std::string SavedGameText(const GameData& data, RunState& state) {
    std::string content = HeaderLine(data, state) + "\n10\n";
    for (const std::span<std::int16_t> store : Stores(state)) {
        for (std::size_t i = 0; i < store.size(); ++i) {
            if (i > 0) content += ',';
            content += std::to_string(store[i]);
        }
        content += '\n';
    }
    return content;
}

void WriteSavedGame(const std::filesystem::path& file, std::string_view text) {
    store::CheckTarget(file, store::Content::Text, store::extension::kSavedGame);
    store::WriteFile(file, text);
}

std::string ReadSavedGame(const std::filesystem::path& file, const RunState& state) {
    const std::size_t limit = LargestFile(state);
    std::string content =
        platform::ReadStartOfFile(file, limit + 1, "read the saved game " + file.string());
    return content.size() > limit ? "" : content;
}

bool TakeSavedGame(std::string_view text, const GameData& data, RunState& state, const FlagsFit& fits) {
    const std::vector<std::string_view> lines = SplitLines(text);
    if (lines.size() != kLines || lines[0] != HeaderLine(data, state) || lines[1] != "10") return false;

    const std::vector<std::span<std::int16_t>> stores = Stores(state);
    std::vector<std::vector<std::int16_t>> values;
    for (std::size_t i = 0; i < stores.size(); ++i) {
        auto numbers = ParseNumbers(lines[kHeaderLines + i], stores[i].size());
        if (!numbers) return false;
        values.push_back(std::move(*numbers));
    }
    for (std::size_t slot = 0; slot < RunState::kSlots; ++slot) {
        const std::vector<std::int16_t>& flags = values[2 * RunState::kSlots + slot];
        if (!AreMarks(values[slot]) ||
            !data.LocationExists(PlaceNumber(flags[static_cast<std::size_t>(flag::kLocation.value)])) ||
            !fits(flags))
            return false;
    }
    for (std::size_t i = 0; i < stores.size(); ++i)
        std::copy(values[i].begin(), values[i].end(), stores[i].begin());
    return true;
}

}  // namespace fabula::engine
