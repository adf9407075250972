#pragma once

#include <algorithm>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "store/adventure.h"
#include "store/create.h"
#include "support/doubles/scripted_person.h"
#include "support/places.h"
#include "support/raw_database.h"
#include "support/temp_folder.h"
#include "text/fields.h"

namespace fabula::store {

inline constexpr const char* kIfid = "5EED0000-0000-4000-8000-000000000001";

/// Default data of the project as a test changes them, and the adventure that is made of them.
class Create : public testing::Test {
  protected:
    Create() {
        std::filesystem::create_directory(folder_ / "data");
        std::filesystem::create_directory(folder_ / "games");
        const std::string data = test::ReadBytes(test::DefaultData());
        for (const std::string_view line : text::Split(data, "\n"))
            lines_.emplace_back(line);
    }

    std::filesystem::path DataFile() const { return folder_.Path() / "data" / "Fabula.ini"; }

    void WriteData() const {
        std::string bytes;
        for (const std::string& line : lines_)
            bytes += (bytes.empty() ? "" : "\n") + line;
        test::WriteBytes(DataFile(), bytes);
    }

    /// The place of a line in the data; of a section, "::NAME".
    std::size_t Find(const std::string& line) const {
        const auto found = std::find(lines_.begin(), lines_.end(), line);
        if (found == lines_.end()) throw std::logic_error("the data has no line " + line);
        return static_cast<std::size_t>(found - lines_.begin());
    }

    /// Puts `content` in place of what stands in a section.
    void Replace(const std::string& section, const std::vector<std::string>& content) {
        const auto begin = lines_.begin() + static_cast<std::ptrdiff_t>(Find("::" + section)) + 1;
        const auto place = lines_.erase(begin, std::find(begin, lines_.end(), "::END"));
        lines_.insert(place, content.begin(), content.end());
    }

    void RemoveSection(const std::string& section) {
        const auto begin = lines_.begin() + static_cast<std::ptrdiff_t>(Find("::" + section));
        lines_.erase(begin, std::find(begin, lines_.end(), "::END") + 1);
    }

    static AdventureSetup SetupFor(AdventureKind kind) {
        AdventureSetup setup;
        setup.ChooseType(kind);
        return setup;
    }

    void MakeWith(const std::filesystem::path& data, const AdventureSetup& setup = {}) {
        const platform::FixedClock clock({2026, 3, 4, 5, 6, 7});
        platform::NoEvents events;
        CreateAdventure(file_, setup, {person_, clock, events, data, [] { return std::string(kIfid); }});
    }
    void Make(const AdventureSetup& setup = {}) {
        WriteData();
        MakeWith(DataFile(), setup);
    }

    /// What creation says of the data, without the part that names the file.
    std::string ErrorOf(const AdventureSetup& setup = {}) {
        const std::string start = "The default data " + DataFile().string() + " ";
        try {
            Make(setup);
        } catch (const Error& error) {
            const std::string message = error.what();
            return message.rfind(start, 0) == 0 ? message.substr(start.size()) : message;
        }
        return "no error";
    }

    /// What creation says of a section with this content. Its lines are told as "@1" for the first, and so
    /// on.
    std::string ErrorIn(const std::string& section, const std::vector<std::string>& content) {
        Replace(section, content);
        const std::size_t first = Find("::" + section) + 1;
        std::string error = ErrorOf();
        for (std::size_t i = content.size(); i >= 1; --i) {
            const std::string at = "line " + std::to_string(first + i) + ":";
            if (const auto found = error.find(at); found != std::string::npos)
                error.replace(found, at.size(), "line @" + std::to_string(i) + ":");
        }
        return error;
    }

    std::unique_ptr<Adventure> Open() const { return Adventure::Open(file_, OpenMode::ReadOnly); }

    std::vector<std::string> FilesInGames() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.Path() / "games"))
            names.push_back(entry.path().filename());
        return names;
    }

    test::TempFolder folder_;
    const std::filesystem::path file_ = folder_ / "games/island.fbd";
    std::vector<std::string> lines_;
    platform::ScriptedPerson person_;
};

}  // namespace fabula::store
