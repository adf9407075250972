#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "listed_adventure.h"
#include "support/places.h"
#include "support/temp_folder.h"

// Lists the example games and compares each listing whole, pages and all, with tests/listings/golden. With
// FABULA_RECORD set the listings are written there instead, to be read before they are kept.

namespace fabula::listings {
namespace {

struct Case {
    std::string name;  ///< of the file
    std::string report;
    ReportRequest request = {};
};

const std::vector<Case>& Cases() {
    static const std::vector<Case> cases = {
        {"settings", "settings"},
        {"vocabulary", "vocabulary"},
        {"vocabulary-numbers", "vocabulary-numbers"},
        {"locations", "locations"},
        {"locations-complete", "locations", {.detail = Detail::Verbose, .complete = true}},
        {"objects", "objects"},
        {"objects-verbose", "objects", {.detail = Detail::Verbose}},
        {"messages", "messages"},
        {"system-messages", "system-messages"},
        {"flags", "flags"},
        {"user-flags", "user-flags", {.extraEntries = 60}},
        {"process-descriptions", "process-descriptions"},
        {"user-process-descriptions", "user-process-descriptions"},
        {"processes", "processes"},
        {"processes-verbose", "processes", {.detail = Detail::Verbose, .numbers = std::vector{1}}},
        {"verb-noun", "verb-noun", {.verb = "_", .noun = "_"}},
        {"character-sets", "character-sets"},
        {"character-sets-full", "character-sets-full"},
        {"graphics", "graphics"},
        {"gosub", "gosub"},
        {"templates", "templates"},
        {"brief", "adventure", {.detail = Detail::Brief}},
    };
    return cases;
}

std::string Contents(const std::filesystem::path& file) {
    std::ifstream input(file, std::ios::binary);
    std::ostringstream text;
    text << input.rdbuf();
    return text.str();
}

/// A copy of an example, as of a day that does not change.
class Example {
  public:
    explicit Example(const std::string& game) {
        const std::filesystem::path file = folder_ / "game.fbd";
        std::filesystem::copy_file(test::ExampleGames() / (game + ".fbd"), file);
        adventure_ = store::Adventure::Open(file);
        store::Cursor& settings = adventure_->OpenTable(store::TableNum::Adventure, "def");
        settings.SetField("datecreated", std::string("2001-03-05 14:07:09"));
        settings.Update();
    }

    store::Adventure& operator*() const { return *adventure_; }

  private:
    test::TempFolder folder_;
    std::unique_ptr<store::Adventure> adventure_;
};

/// The first line in which two listings differ.
std::string FirstDifference(const std::string& expected, const std::string& listed) {
    std::istringstream left(expected);
    std::istringstream right(listed);
    std::string want;
    std::string got;
    int line = 0;
    do {
        ++line;
        want.clear();
        got.clear();
        std::getline(left, want);
        std::getline(right, got);
    } while (want == got && (left || right));
    return "line " + std::to_string(line) + ": expected \"" + want + "\", listed \"" + got + "\"";
}

class ExampleGame : public testing::TestWithParam<std::string> {};

TEST_P(ExampleGame, IsListedAsTheGoldenFilesTell) {
    const Example game(GetParam());
    for (const Case& each : Cases()) {
        const std::filesystem::path golden =
            test::SourceFolder() / "tests/listings/golden" / GetParam() / (each.name + ".txt");
        const std::string listed = Listed(*game, each.report, each.request, kTextPageLines);
        if (std::getenv("FABULA_RECORD")) std::ofstream(golden, std::ios::binary) << listed;
        EXPECT_TRUE(listed == Contents(golden)) << golden << " is not what is listed:\n"
                                                << FirstDifference(Contents(golden), listed);
    }
}

TEST_P(ExampleGame, IsListedWholeAsItsReportsOneAfterTheOther) {
    const Example game(GetParam());
    std::string parts;
    for (const char* report :
         {"settings", "vocabulary", "locations", "objects", "messages", "system-messages", "flags",
          "process-descriptions", "processes", "character-sets", "graphics"}) {
        parts += Listed(*game, report, {.complete = true});
    }
    const std::string whole = Listed(*game, "adventure");
    const auto withoutPages = [](const std::string& listing) {
        std::istringstream lines(listing);
        std::string kept;
        for (std::string line; std::getline(lines, line);) {
            line.erase(0, line.find_first_not_of('\f'));
            if (line.size() < 78 || line.compare(69, 4, "Page") != 0) kept += line + "\n";
        }
        return kept;
    };
    EXPECT_EQ(withoutPages(whole), withoutPages(parts));
}

INSTANTIATE_TEST_SUITE_P(Games, ExampleGame, testing::Values("lighthouse", "signal_box", "cellar"));

}  // namespace
}  // namespace fabula::listings
