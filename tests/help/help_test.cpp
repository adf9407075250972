#include <algorithm>
#include <cctype>
#include <fstream>
#include <map>
#include <regex>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "help_pages.h"
#include "support/places.h"

namespace fabula::help_test {
namespace {

using testing::AnyOf;
using testing::Each;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;
using tinyxml2::XMLElement;

constexpr const char* kContents = "contents.html";

std::vector<std::string> PageNames() {
    std::vector<std::string> names;
    for (const HelpPage& page : HelpPages())
        names.push_back(page.name);
    return names;
}

TEST(HelpPages, AreWellFormed) {
    for (const HelpPage& page : HelpPages())
        EXPECT_EQ(page.fault, "") << page.name;
}

TEST(HelpPages, HaveNoEntitiesButThoseOfXml) {
    for (const HelpPage& page : HelpPages()) {
        const std::string content = HelpFile(page.name);
        for (std::size_t at = content.find('&'); at != std::string::npos; at = content.find('&', at + 1)) {
            EXPECT_THAT(content.substr(at, 6),
                        AnyOf(StartsWith("&amp;"), StartsWith("&lt;"), StartsWith("&gt;")))
                << page.name;
        }
    }
}

TEST(HelpPages, HaveATitleThatIsTheirOneHeading) {
    for (const HelpPage& page : HelpPages()) {
        const auto titles = Elements(page, "title");
        const auto headings = Elements(page, "h1");
        ASSERT_THAT(titles, SizeIs(1)) << page.name;
        ASSERT_THAT(headings, SizeIs(1)) << page.name;
        EXPECT_NE(ShownText(*titles[0]), "") << page.name;
        EXPECT_EQ(ShownText(*titles[0]), ShownText(*headings[0])) << page.name;
    }
}

TEST(HelpPages, HaveTitlesOfTheirOwn) {
    std::map<std::string, std::string> pageOfTitle;
    for (const HelpPage& page : HelpPages()) {
        const std::string title = ShownText(*Elements(page, "title").at(0));
        const auto [other, added] = pageOfTitle.emplace(title, page.name);
        EXPECT_TRUE(added) << title << ": " << page.name << " and " << other->second;
    }
}

TEST(HelpPages, UseOnlyWhatTheHelpWindowShows) {
    const std::set<std::string> kShown = {"html", "head", "meta", "title", "link", "body", "h1",    "h2",
                                          "h3",   "p",    "ul",   "ol",    "li",   "a",    "table", "tr",
                                          "th",   "td",   "pre",  "code",  "b",    "img"};
    for (const HelpPage& page : HelpPages()) {
        for (const XMLElement* element : Elements(page))
            EXPECT_TRUE(kShown.contains(element->Name())) << page.name << ": <" << element->Name() << ">";
    }
}

TEST(HelpPages, TakeTheOneStyleSheet) {
    for (const HelpPage& page : HelpPages()) {
        const auto sheets = Elements(page, "link");
        ASSERT_THAT(sheets, SizeIs(1)) << page.name;
        EXPECT_EQ(Attribute(*sheets[0], "href"), "help.css") << page.name;
        EXPECT_EQ(Attribute(*sheets[0], "type"), "text/css") << page.name;
    }
}

TEST(HelpPages, SetNoColoursSoThatLightAndDarkWindowsCanShowThem) {
    EXPECT_THAT(HelpFile("help.css"), Not(testing::ContainsRegex("(color|background)[-a-z]*:")));
    for (const HelpPage& page : HelpPages()) {
        for (const XMLElement* element : Elements(page)) {
            for (const char* attribute : {"style", "color", "bgcolor", "text", "background"})
                EXPECT_EQ(element->Attribute(attribute), nullptr) << page.name << ": " << attribute;
        }
    }
}

TEST(HelpPages, LeadNowhereOutside) {
    for (const HelpPage& page : HelpPages()) {
        for (const Link& link : Links(page)) {
            EXPECT_TRUE(PageExists(link.page)) << page.name << " leads to " << link.page;
        }
    }
}

TEST(HelpPages, HaveTheAnchorsThatLinksLeadTo) {
    for (const HelpPage& page : HelpPages()) {
        for (const Link& link : Links(page)) {
            if (link.anchor.empty() || !PageExists(link.page)) continue;
            EXPECT_THAT(AnchorNames(FindPage(link.page)), testing::Contains(link.anchor))
                << page.name << " leads to " << link.page << "#" << link.anchor;
        }
    }
}

TEST(HelpPages, NameEachAnchorOnceInSmallLetters) {
    for (const HelpPage& page : HelpPages()) {
        const std::vector<std::string> names = AnchorNames(page);
        EXPECT_THAT(std::set<std::string>(names.begin(), names.end()), SizeIs(names.size())) << page.name;
        EXPECT_THAT(names, Each(testing::MatchesRegex("[a-z][a-z0-9]*"))) << page.name;
    }
}

TEST(HelpPages, AreEachLinkedFromAPageOtherThanTheContents) {
    std::set<std::string> linked;
    for (const HelpPage& page : HelpPages()) {
        if (page.name == kContents) continue;
        for (const Link& link : Links(page)) {
            if (link.page != page.name) linked.insert(link.page);
        }
    }
    for (const std::string& name : PageNames()) {
        if (name == kContents || name == "welcome.html") continue;
        EXPECT_TRUE(linked.contains(name)) << name;
    }
}

TEST(Contents, HoldsEveryPageOnce) {
    std::vector<std::string> listed = {kContents};
    for (const Link& link : Links(FindPage(kContents)))
        listed.push_back(link.page);
    EXPECT_THAT(listed, testing::UnorderedElementsAreArray(PageNames()));
}

TEST(Contents, CallsPagesByTheBeginningOfTheirTitles) {
    for (const XMLElement* link : Elements(FindPage(kContents), "a")) {
        const HelpPage& page = FindPage(Attribute(*link, "href"));
        EXPECT_THAT(ShownText(*Elements(page, "title").at(0)), StartsWith(ShownText(*link))) << page.name;
    }
}

TEST(Contents, IsALinkAndPerhapsAListInEachItem) {
    const HelpPage& contents = FindPage(kContents);
    for (const XMLElement* list : Elements(contents, "ul")) {
        const auto items = Children(*list);
        EXPECT_THAT(items, Not(IsEmpty()));
        for (const XMLElement* item : items) {
            const auto parts = Children(*item);
            ASSERT_STREQ(item->Name(), "li");
            ASSERT_THAT(parts, AnyOf(SizeIs(1), SizeIs(2))) << ShownText(*item);
            EXPECT_STREQ(parts[0]->Name(), "a");
            EXPECT_NE(Attribute(*parts[0], "href"), "") << ShownText(*item);
            if (parts.size() == 2) {
                EXPECT_STREQ(parts[1]->Name(), "ul") << ShownText(*item);
            }
        }
    }
}

/// The controls by which F1 finds its place on the page of a screen.
const std::map<std::string, std::vector<std::string>> kScreens = {
    {"frmaboutadventure.html", {"advname", "advdesc", "advcontactinfo", "advpicloc"}},
    {"frmbothmessages.html", {"txtmessage", "updown1", "cmdupdate", "cmdexit"}},
    {"frmcolors.html", {"lblcolor", "cmdupdate", "cmdexit"}},
    {"frmdebug.html", {"txtinput", "lblresult"}},
    {"frmflags.html", {"cboflgtype", "cboflguse", "txtflgdesc", "cmdupdate", "cmdexit"}},
    {"frmkeychange.html",
     {"cbotable", "txtkey", "txtprocess", "txtw1", "txtw2", "cmdselect", "lstrows", "cmdfinish",
      "cmdexit"}},
    {"frmnewlocs.html", {"goesto", "cmdupdate", "cmdexit"}},
    {"frmsetup.html", {"adventype", "graphics", "charsets", "cmdexecute"}},
    {"frmsrcimport.html",
     {"optkind", "txtsource", "cboencoding", "txtdatabase", "txtnumber", "txtstatus", "cmdimport",
      "cmdexport", "cmdload"}},
    {"frmunmarlovel.html",
     {"optprogram", "txtunmarlo", "txtunvel", "txtinput", "txtoutput", "txtstatus", "cmdrun", "cmdexit"}},
    {"frmveladvsettings.html", {"txtadventurename", "txtauthor",     "txtsavename",       "txtversion",
                                "txtmaxobjects",    "txtmaxweight",  "cboprintwidth",     "lblbackcolor",
                                "lbltextcolor",     "cbofont",       "cbofontsize",       "fonttest",
                                "cmdgetpic",        "cmdgetabout",   "txtadvdesc",        "txtcontactinfo",
                                "cboadventype",     "chkgraphics",   "chkcharsets",       "chkgraphicsindb",
                                "chksound",         "cbodevice",     "cbochannel",        "cbovoice",
                                "sldvolume",        "sldbalance",    "sldbass",           "cmdtestvoice",
                                "cbosource",        "cbostartloc",   "txtdefaultpicture", "cmdclearpic",
                                "txtaboutpicture",  "cmdclearabout", "cmdupdate",         "cmdexit"}},
    {"frmvelcondact.html",
     {"lblreckey", "txttype", "cboword1", "cboword2", "cboca", "cboparam1", "cboparam2", "cmdadd",
      "txtallcas", "cmdupdate", "cmdexit"}},
    {"frmvelengmain.html",
     {"loadadv", "next", "sound", "debug", "exit", "txtstatus", "lblcommand", "lbllocation", "status1",
      "status2"}},
    {"frmvelidemain.html",
     {"tree",   "grid", "addnewbefore", "batexp",  "batimp", "decomp", "delete", "edit",    "exit",
      "export", "find", "import",       "loadset", "newadv", "newtab", "open",   "package", "preview",
      "print",  "run",  "saveset",      "tabsort", "verify", "undo",   "redo",   "filter",  "saveas"}},
    {"frmvellocation.html",
     {"txtdescription", "txtexits", "cboexit", "cboloc", "cmdadd", "cmdgetpic", "cmdupdate", "cmdexit"}},
    {"frmvelobjects.html",
     {"txtdescription", "cboobjword", "cboadjective", "optinitialloc", "cboinroom", "txtweight",
      "chkcontainer", "chkwearremove", "cmdupdate", "cmdexit"}},
    {"frmvelvocabulary.html", {"txtword", "txtwordnum", "opttype", "cmdupdate", "cmdexit"}},
    {"frmprint.html",
     {"cboform", "opttopt", "txtnum", "chkspecial", "cboverbtype", "cbonoun", "chkcomplete", "optcopt",
      "cmdprint", "cmdsave", "cmdexit"}},
    {"frmprintpreview.html", {"first", "prev", "next", "last", "print", "plus", "minus", "exit"}},
    {"frmtempsize.html", {"optsize", "cmdcontinue"}},
    {"frmverify.html", {"txtstatus", "cmdok", "cmdprint"}},
    {"charactereditor.html", {"squares", "commandline", "cmdupdate", "cmdexit"}},
    {"charactersetfiles.html", {"sets", "cmdexit"}},
    {"charactertable.html", {"set", "characters", "takefont", "cmdexit"}},
    {"pictureeditor.html",
     {"canvas", "commandline", "commands", "drawstring", "status", "saveasroompicture", "roomnumber",
      "filename", "browse", "importimage", "cmdupdate", "cmdexit"}},
};

TEST(Screens, HaveAPageWithAnAnchorForEachControl) {
    for (const auto& [name, controls] : kScreens)
        EXPECT_THAT(AnchorNames(FindPage(name)), IsSupersetOf(controls)) << name;
}

/// The words of a text, without what marks them up.
std::string WordsOf(std::string_view text) {
    std::string words;
    for (const char c : text) {
        const bool isWord =
            std::isalnum(static_cast<unsigned char>(c)) != 0 || (static_cast<unsigned char>(c) & 0x80) != 0;
        if (isWord) {
            words += c;
        } else if (!words.empty() && words.back() != ' ') {
            words += ' ';
        }
    }
    return words;
}

/// A page of docs/ as WordsOf sees its words: without images, the targets of links, numbers of lists and
/// the names of blocks.
std::string TextOfGuide(const std::filesystem::path& file) {
    std::ifstream stream(file);
    std::string text;
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with("![")) continue;
        if (line.starts_with("```")) line.clear();
        text += std::regex_replace(line, std::regex(R"((^[0-9]+\. )|(\]\([^)]*\)))"), " ") + "\n";
    }
    return text;
}

TEST(FirstGamePage, IsTheTutorialWordByWord) {
    const std::set<std::string> kBlocks = {"h1", "h2", "p", "li", "th", "td", "pre"};
    std::string page;
    for (const XMLElement* element : Elements(FindPage("firstgame.html"))) {
        if (kBlocks.contains(element->Name())) page += ShownText(*element) + " ";
    }
    EXPECT_EQ(WordsOf(page), WordsOf(TextOfGuide(test::SourceFolder() / "docs" / "tutorial.md")));
}

}  // namespace
}  // namespace fabula::help_test
