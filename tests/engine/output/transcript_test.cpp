#include "engine/output/transcript.h"

#include <sstream>

#include <gtest/gtest.h>

namespace fabula::engine {
namespace {

TEST(Transcript, TypedLinesStandBehindAMarkAtTheHeadOfTheirLine) {
    std::ostringstream written;
    Transcript transcript(written);
    transcript.Write("What now?");
    transcript.Typed("NORTH");
    transcript.Write("A ");
    transcript.Write("moor.");
    transcript.EndLine();
    transcript.Typed("SOUTH");
    EXPECT_EQ(written.str(), "What now?\n>NORTH\nA moor.\n>SOUTH\n");
}

TEST(Transcript, ClearedPaneIsAnEmptyLineButNotAtTheBeginning) {
    std::ostringstream written;
    Transcript transcript(written);
    transcript.NewPage();
    transcript.Write("One.");
    transcript.NewPage();
    transcript.Write("Two.");
    transcript.EndLine();
    transcript.NewPage();
    transcript.Write("Three.");
    EXPECT_EQ(written.str(), "One.\n\nTwo.\n\nThree.");
}

}  // namespace
}  // namespace fabula::engine
