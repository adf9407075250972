#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "pictures/canvas.h"
#include "platform/settings.h"

namespace fabula::authoring {

/// An image that an author has laid under a picture to trace it. It is remembered in the author's own
/// settings, by adventure and picture, and never in the game.
struct TracingImage {
    std::filesystem::path file;
    int strength = 50;  ///< in hundredths
    int left = 0;       ///< its top left, in pixels of the picture
    int top = 0;
    int width =
        pictures::kCanvasWidth;  ///< as wide as it is shown, in pixels of the picture; its height follows

    friend bool operator==(const TracingImage&, const TracingImage&) = default;
};

inline constexpr int kNarrowestTracing = 8;
inline constexpr int kWidestTracing = 1024;

/// That of a picture of an adventure; nullopt when there is none.
std::optional<TracingImage> FindTracing(const platform::Settings& settings,
                                        const std::filesystem::path& adventure, int picture);
/// Remembers it, or that there is none.
void KeepTracing(platform::Settings& settings, const std::filesystem::path& adventure, int picture,
                 const std::optional<TracingImage>& tracing);

}  // namespace fabula::authoring
