#include "help_pages.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "support/places.h"

namespace fabula::help_test {

namespace {

using tinyxml2::XMLElement;

const std::filesystem::path kHelp = test::SourceFolder() / "help";

std::vector<HelpPage> LoadPages() {
    std::vector<HelpPage> pages;
    for (const auto& entry : std::filesystem::directory_iterator(kHelp)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".htm" && extension != ".html") continue;
        HelpPage page{entry.path().filename().string(), std::make_unique<tinyxml2::XMLDocument>(), ""};
        const std::string content = HelpFile(page.name);
        if (page.document->Parse(content.data(), content.size()) != tinyxml2::XML_SUCCESS)
            page.fault = page.document->ErrorStr();
        pages.push_back(std::move(page));
    }
    std::sort(pages.begin(), pages.end(),
              [](const HelpPage& a, const HelpPage& b) { return a.name < b.name; });
    return pages;
}

void AddElements(const XMLElement& element, std::string_view tag, std::vector<const XMLElement*>& found) {
    if (tag.empty() || tag == element.Name()) found.push_back(&element);
    for (const XMLElement* child : Children(element))
        AddElements(*child, tag, found);
}

void AddText(const tinyxml2::XMLNode& node, std::string& text) {
    if (const tinyxml2::XMLText* run = node.ToText()) text += run->Value();
    for (const tinyxml2::XMLNode* child = node.FirstChild(); child; child = child->NextSibling())
        AddText(*child, text);
}

}  // namespace

const std::vector<HelpPage>& HelpPages() {
    static const std::vector<HelpPage> pages = LoadPages();
    return pages;
}

const HelpPage& FindPage(std::string_view name) {
    static const HelpPage missing{"", std::make_unique<tinyxml2::XMLDocument>(), "missing"};
    for (const HelpPage& page : HelpPages()) {
        if (page.name == name) return page;
    }
    ADD_FAILURE() << "There is no page help/" << name;
    return missing;
}

bool PageExists(std::string_view name) {
    const std::vector<HelpPage>& pages = HelpPages();
    return std::any_of(pages.begin(), pages.end(), [&](const HelpPage& page) { return page.name == name; });
}

std::string HelpFile(std::string_view name) {
    std::ifstream stream(kHelp / name, std::ios::binary);
    EXPECT_TRUE(stream) << "There is no file help/" << name;
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
}

std::vector<const XMLElement*> Elements(const HelpPage& page, std::string_view tag) {
    std::vector<const XMLElement*> found;
    if (const XMLElement* root = page.document->RootElement()) AddElements(*root, tag, found);
    return found;
}

std::vector<const XMLElement*> Children(const XMLElement& element) {
    std::vector<const XMLElement*> children;
    for (const XMLElement* child = element.FirstChildElement(); child; child = child->NextSiblingElement())
        children.push_back(child);
    return children;
}

std::string ShownText(const XMLElement& element) {
    std::string text;
    AddText(element, text);
    std::istringstream words(text);
    std::string shown;
    for (std::string word; words >> word;)
        shown += (shown.empty() ? "" : " ") + word;
    return shown;
}

std::string Attribute(const XMLElement& element, const char* name) {
    const char* value = element.Attribute(name);
    return value ? value : "";
}

std::vector<std::string> AnchorNames(const HelpPage& page) {
    std::vector<std::string> names;
    for (const XMLElement* anchor : Elements(page, "a")) {
        if (anchor->Attribute("name")) names.push_back(Attribute(*anchor, "name"));
    }
    return names;
}

std::vector<Link> Links(const HelpPage& page) {
    std::vector<Link> links;
    for (const XMLElement* anchor : Elements(page, "a")) {
        if (!anchor->Attribute("href")) continue;
        const std::string target = Attribute(*anchor, "href");
        const std::size_t mark = target.find('#');
        links.push_back({target.substr(0, mark), mark == std::string::npos ? "" : target.substr(mark + 1)});
    }
    return links;
}

std::vector<std::pair<std::string, std::string>> Facts(const HelpPage& page) {
    std::vector<std::pair<std::string, std::string>> facts;
    const auto tables = Elements(page, "table");
    if (tables.empty()) return facts;
    for (const XMLElement* row : Children(*tables.front())) {
        const auto cells = Children(*row);
        if (cells.size() == 2) facts.emplace_back(ShownText(*cells[0]), ShownText(*cells[1]));
    }
    return facts;
}

}  // namespace fabula::help_test
