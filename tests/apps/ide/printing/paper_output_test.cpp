// Listings as PDF files, read back by a program of others.

#include "ide/printing/paper_output.h"

#include <QFontMetrics>
#include <QPdfWriter>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ide/printing/sheet_painter.h"
#include "listings/pages/outputs.h"
#include "platform/error.h"
#include "support/places.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

/// The words of each line that has any, one blank between two.
std::vector<std::string> WordsOfLines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream input(text);
    for (std::string line; std::getline(input, line);) {
        std::istringstream words(line);
        std::string joined;
        for (std::string word; words >> word;)
            joined += (joined.empty() ? "" : " ") + word;
        if (!joined.empty()) lines.push_back(joined);
    }
    return lines;
}

std::string Contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string TextOf(const std::filesystem::path& pdf) {
    const ProgramResult result =
        RunProgram("/usr/bin/pdftotext", {"-layout", "-enc", "UTF-8", pdf.string(), "-"});
    EXPECT_EQ(result.status, 0) << result.errors;
    return result.output;
}

class PdfOfAGame : public testing::TestWithParam<std::string> {
  protected:
    TempFolder folder_;
};

TEST_P(PdfOfAGame, HoldsTheTextOfTheListingLineByLine) {
    const auto adventure =
        store::Adventure::Open(ExampleGames() / (GetParam() + ".fbd"), store::OpenMode::ReadOnly);
    for (const char* name : {"settings", "locations", "objects", "messages", "system-messages", "flags",
                             "processes", "vocabulary", "gosub"}) {
        const listings::Report& report = *listings::FindReport(name);
        const std::string pdf = ide::PdfOf(listings::PaperListing(report, {}, *adventure), "Test");
        std::ofstream(folder_ / "x.pdf", std::ios::binary) << pdf;
        EXPECT_EQ(WordsOfLines(TextOf(folder_ / "x.pdf")),
                  WordsOfLines(listings::TextListing(report, {}, *adventure)))
            << name;
    }
}

TEST_P(PdfOfAGame, HasThePagesOfTheListing) {
    const auto adventure =
        store::Adventure::Open(ExampleGames() / (GetParam() + ".fbd"), store::OpenMode::ReadOnly);
    const listings::Report& report = *listings::FindReport("flags");
    const std::string pdf = ide::PdfOf(listings::PaperListing(report, {}, *adventure), "Test");
    std::ofstream(folder_ / "x.pdf", std::ios::binary) << pdf;
    const std::string inPdf = TextOf(folder_ / "x.pdf");
    const std::string text = listings::TextListing(report, {}, *adventure);
    EXPECT_EQ(std::count(inPdf.begin(), inPdf.end(), '\f'), std::count(text.begin(), text.end(), '\f') + 1);
}

INSTANTIATE_TEST_SUITE_P(Games, PdfOfAGame, testing::Values("lighthouse", "signal_box", "cellar"));

class PrintTo : public testing::Test {
  protected:
    ProgramResult Run(std::vector<std::string> arguments) {
        return RunProgram(Program().parent_path() / "FabulaIDE", arguments);
    }
    std::string File(const char* name) const { return (folder_ / name).string(); }
    static std::string Game() { return (ExampleGames() / "cellar.fbd").string(); }

    TempFolder folder_;
};

TEST_F(PrintTo, MakesAPdfWithoutADisplay) {
    const ProgramResult result = Run({"--print-to", File("x.pdf"), Game(), "adventure"});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(Contents(File("x.pdf")).starts_with("%PDF-"));
}

TEST_F(PrintTo, RefusesAReportThatIsNotThere) {
    const ProgramResult result = Run({"--print-to", File("x.pdf"), Game(), "rooms"});
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.errors.find("There is no report 'rooms'"), std::string::npos) << result.errors;
    EXPECT_FALSE(std::filesystem::exists(File("x.pdf")));
}

TEST_F(PrintTo, TakesTheRangeAndTheDetailOfTheListing) {
    const auto printed = [&](std::vector<std::string> options) {
        std::vector<std::string> arguments{"--print-to", File("x.pdf"), Game(), "--force"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        EXPECT_EQ(Run(arguments).status, 0);
        return WordsOfLines(TextOf(File("x.pdf")));
    };
    const auto listed = [](const char* golden) {
        return WordsOfLines(
            Contents(SourceFolder() / "tests/listings/golden/cellar" / (std::string(golden) + ".txt")));
    };
    EXPECT_EQ(printed({"processes", "--range", "1", "--verbose"}), listed("processes-verbose"));
    EXPECT_EQ(printed({"locations", "--complete", "--verbose"}), listed("locations-complete"));
    EXPECT_EQ(printed({"user-flags", "--range", "60"}), listed("user-flags"));
    EXPECT_EQ(printed({"verb-noun", "--verb", "_", "--noun", "_"}), listed("verb-noun"));
    EXPECT_EQ(printed({"adventure", "--brief"}), listed("brief"));
}

TEST_F(PrintTo, TellsARangeThatIsNone) {
    const auto fault = [&](std::vector<std::string> options) {
        std::vector<std::string> arguments{"--print-to", File("x.pdf"), Game()};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const ProgramResult result = Run(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_FALSE(std::filesystem::exists(File("x.pdf")));
        return result.errors;
    };
    EXPECT_TRUE(fault({"processes", "--range", "5-3"})
                    .ends_with("FabulaIDE: Beginning range > ending range in 5-3\n"));
    EXPECT_TRUE(
        fault({"objects", "--range", "1"}).ends_with("FabulaIDE: The report 'objects' takes no range.\n"));
    EXPECT_TRUE(fault({"adventure", "--brief", "--verbose"})
                    .ends_with("FabulaIDE: --brief and --verbose exclude each other.\n"));
}

TEST_F(PrintTo, ReplacesAFileByForceAlone) {
    std::ofstream(File("x.pdf")) << "mine";
    EXPECT_EQ(Run({"--print-to", File("x.pdf"), Game(), "objects"}).status, 1);
    EXPECT_EQ(std::filesystem::file_size(File("x.pdf")), 4u);
    EXPECT_EQ(Run({"--print-to", File("x.pdf"), Game(), "objects", "--force"}).status, 0);
    EXPECT_GT(std::filesystem::file_size(File("x.pdf")), 4u);
}

TEST_F(PrintTo, TellsAnOutputThatCannotBeWrittenInOneSentence) {
    const ProgramResult result = Run({"--print-to", File("no/such.pdf"), Game(), "objects"});
    EXPECT_EQ(result.status, 1);
    const std::string told = "FabulaIDE: Could not write " + File("no/such.pdf");
    EXPECT_TRUE(result.errors.ends_with(told + ": No such file or directory.\n")) << result.errors;
}

TEST(PaintPages, DeviceThatCannotBeUsedIsToldInOneSentence) {
    QPdfWriter device("/no/such/folder/listing.pdf");
    try {
        ide::PaintPages(device, listings::Paper());
        FAIL();
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(), "Could not print the listing: the printer can't be used.");
    }
}

TEST(ListingFont, HasLettersOfOneWidth) {
    const QFontMetrics metrics(ide::ListingFont());
    EXPECT_EQ(metrics.horizontalAdvance('i'), metrics.horizontalAdvance('W'));
}

}  // namespace
}  // namespace fabula::test
