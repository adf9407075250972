#include "authoring/drawing/tracing_image.h"

#include <algorithm>

#include "platform/file_names.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace fabula::authoring {
namespace {

constexpr std::string_view kTracingSection = "Tracing";
constexpr std::string_view kBar = "|";

std::string KeyOf(const std::filesystem::path& adventure, int picture) {
    return platform::PlaceCode(adventure) + "-" + std::to_string(picture);
}

int NumberWithin(std::string_view text, int lowest, int highest) {
    return static_cast<int>(
        std::clamp<std::int64_t>(text::WholeNumber(text).value_or(lowest), lowest, highest));
}

}  // namespace

std::optional<TracingImage> FindTracing(const platform::Settings& settings,
                                        const std::filesystem::path& adventure, int picture) {
    const std::string value = settings.Get(kTracingSection, KeyOf(adventure, picture));
    const auto pieces = text::Split(value, kBar);
    constexpr std::size_t kPieces = 5;
    if (pieces.size() < kPieces) return std::nullopt;
    // The name of a file may hold a bar itself, so it comes last.
    const std::size_t behindNumbers =
        pieces[0].size() + pieces[1].size() + pieces[2].size() + pieces[3].size() + 4 * kBar.size();
    return TracingImage{value.substr(behindNumbers), NumberWithin(pieces[0], 0, 100),
                        NumberWithin(pieces[1], -kWidestTracing, kWidestTracing),
                        NumberWithin(pieces[2], -kWidestTracing, kWidestTracing),
                        NumberWithin(pieces[3], kNarrowestTracing, kWidestTracing)};
}

void KeepTracing(platform::Settings& settings, const std::filesystem::path& adventure, int picture,
                 const std::optional<TracingImage>& tracing) {
    std::string value;
    if (tracing) {
        for (const int number : {tracing->strength, tracing->left, tracing->top, tracing->width})
            value.append(std::to_string(number)).append(kBar);
        value += tracing->file.string();
    }
    settings.Set(kTracingSection, KeyOf(adventure, picture), value);
}

}  // namespace fabula::authoring
