#include <gtest/gtest.h>

#include "interchange/reading.h"

namespace fabula::interchange {
namespace {

using store::Cursor;
using store::TableNum;

bool Has(const std::string& file, const std::string& lines) {
    return file.find(lines) != std::string::npos;
}

void SetMessage(store::Adventure& adventure, std::int64_t number, const std::string& text) {
    Cursor& messages = adventure.OpenTable(TableNum::Messages, "def");
    messages.AddNew();
    messages.SetField("msgnum", number);
    messages.SetField("msgmsg", text);
    messages.Update();
}

TEST(ExportFabula, BeginsWithTheVersion) {
    const test::OpenedAdventure adventure;
    EXPECT_TRUE(Written(*adventure, "fabula").starts_with("4.0.0\r\n5|advnum|1\r\n"));
}

TEST(ExportFabula, WritesTheKeyAndThenTheFieldsByName) {
    const test::OpenedAdventure adventure;
    SetMessage(*adventure, 3, "Hello.");
    EXPECT_TRUE(Has(Written(*adventure, "fabula"), "2|msgnum|3\r\n2|msgmsg|Hello.\r\n"));
}

TEST(ExportFabula, WritesTheTablesInTheirOrder) {
    const test::OpenedAdventure adventure;
    SetMessage(*adventure, 0, "x");
    const std::string file = Written(*adventure, "fabula");
    std::string order;
    std::string last;
    for (std::size_t at = file.find("\r\n") + 2; at < file.size(); at = file.find("\r\n", at) + 2) {
        const std::string number = file.substr(at, file.find('|', at) - at);
        if (number != last) order += number + ":";
        last = number;
    }
    EXPECT_EQ(order, "5:8:1:2:7:15:9:33:") << "objects, entries and pictures have no records yet";
}

TEST(ExportFabula, WritesTruthAndDatesInOneForm) {
    const test::OpenedAdventure adventure;
    Cursor& settings = adventure->OpenTable(TableNum::Adventure, "def");
    settings.SetField("sound", std::int64_t{1});
    settings.SetField("datecreated", std::string("2001-03-05 14:07:09"));
    settings.Update();
    const std::string file = Written(*adventure, "fabula");
    EXPECT_TRUE(Has(file, "5|sound|True\r\n"));
    EXPECT_TRUE(Has(file, "5|graphics|False\r\n"));
    EXPECT_TRUE(Has(file, "5|DateCreated|2001-03-05 14:07:09\r\n"));
}

TEST(ExportFabula, WritesLineEndsAsATag) {
    const test::OpenedAdventure adventure;
    SetMessage(*adventure, 3,
               "a\u008C"
               "b");
    EXPECT_TRUE(Has(Written(*adventure, "fabula"), "2|msgmsg|a<CR>b\r\n"));
}

TEST(ExportFabula, HasALineForACommentOnlyWhereThereIsOne) {
    const test::OpenedAdventure adventure;
    SetMessage(*adventure, 3, "Hello.");
    SetMessage(*adventure, 4, "Bye.");
    Cursor& message = adventure->OpenTable(TableNum::Messages, "def", "msgnum=4");
    message.SetField("comment", std::string("When\u008C"
                                            "he leaves"));
    message.Update();
    const std::string file = Written(*adventure, "fabula");
    EXPECT_TRUE(Has(file,
                    "2|msgnum|3\r\n2|msgmsg|Hello.\r\n"
                    "2|msgnum|4\r\n2|comment|When<CR>he leaves\r\n2|msgmsg|Bye.\r\n"));
    EXPECT_EQ(file.find("comment|"), file.rfind("comment|"));
}

TEST(ExportFabula, WritesNullAsAnEmptyValue) {
    const test::OpenedAdventure adventure;
    Cursor& messages = adventure->OpenTable(TableNum::Messages, "def");
    messages.AddNew();
    messages.SetField("msgnum", std::int64_t{3});
    messages.Update();
    EXPECT_TRUE(Has(Written(*adventure, "fabula"), "2|msgnum|3\r\n2|msgmsg|\r\n"));
}

TEST(ExportFabula, NamesWhatWillNotComeBackAndGoesOn) {
    const test::OpenedAdventure adventure;
    SetMessage(*adventure, 1, "left|right");
    SetMessage(*adventure, 2, "a<CR>b");
    SetMessage(*adventure, 3, "a\nb");
    Cursor& settings = adventure->OpenTable(TableNum::Adventure, "def");
    settings.SetField("author", std::string("Ann\u008C"
                                            "Bob"));
    settings.Update();
    std::string status;
    const std::string file = Written(*adventure, "fabula", &status);
    EXPECT_EQ(status,
              "Adventure 1, author: line ends will come back as <CR>.\n"
              "Messages 1, msgmsg: what stands behind the first | will not come back.\n"
              "Messages 2, msgmsg: <CR> will come back as a line end.\n"
              "Messages 3, msgmsg: carriage returns and line feeds are written as <CR>.\n");
    EXPECT_TRUE(Has(file, "2|msgmsg|left|right\r\n"));
    EXPECT_TRUE(Has(file, "2|msgmsg|a<CR>b\r\n"));
}

TEST(ExportFabula, ATagInATextOfOneLineComesBackAndIsNoLoss) {
    const test::OpenedAdventure adventure;
    Cursor& settings = adventure->OpenTable(TableNum::Adventure, "def");
    settings.SetField("author", std::string("Ann<CR>Bob"));
    settings.Update();
    std::string status;
    EXPECT_TRUE(Has(Written(*adventure, "fabula", &status), "5|author|Ann<CR>Bob\r\n"));
    EXPECT_EQ(status, "");
}

TEST(ExportFabula, ACharacterThatCannotBeWrittenFailsWithItsRecord) {
    const test::OpenedAdventure adventure;
    SetMessage(*adventure, 5, "Say 中.");
    std::string status;
    EXPECT_EQ(Written(*adventure, "fabula", &status), "");
    EXPECT_EQ(status, "ERROR: Messages 5, msgmsg: the character U+4E2D can't be written in this file.\n");
}

TEST(ExportFabula, AFieldOfAnUnknownTypeIsToldAndLeftOut) {
    const test::OpenedAdventure adventure;
    Cursor& field = adventure->OpenTable(TableNum::Tables, "def", "tablenum=2 and fieldname='msgmsg'");
    field.SetField("fieldtype", std::string("adbstr"));
    field.Update();
    SetMessage(*adventure, 5, "x");
    const test::TempFolder folder;
    platform::ScriptedPerson person;
    NoObserver nobody;
    JobStatus status(nobody);
    ExportContext context{*adventure, folder / "out", person, status};
    EXPECT_TRUE(FindFileKind("fabula")->write(context));
    using Shown = platform::ScriptedPerson::Shown;
    EXPECT_EQ(person.Boxes(), (std::vector<Shown>{{"invalid field name adbstr", "Error"},
                                                  {"Fabula Export completed", "Fabula"}}));
}

TEST(ExportFabula, AFieldThatComesToTravelTravels) {
    const test::OpenedAdventure adventure;
    Cursor& field =
        adventure->OpenTable(TableNum::Tables, "def", "tablenum=5 and fieldname='graphicsindb'");
    field.SetField("export", std::int64_t{2});
    field.Update();
    EXPECT_TRUE(Has(Written(*adventure, "fabula"), "5|graphicsindb|False\r\n"));
}

}  // namespace
}  // namespace fabula::interchange
