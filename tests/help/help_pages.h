#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tinyxml2.h>

namespace fabula::help_test {

/// One page of help/, parsed. Pages are written as well-formed XML.
struct HelpPage {
    std::string name;  ///< of the file
    std::unique_ptr<tinyxml2::XMLDocument> document;
    std::string fault;  ///< why it is not well formed; "" when it is
};

/// All pages, in the order of their names.
const std::vector<HelpPage>& HelpPages();

/// The page of a file name. A page that is missing fails the test and is an empty document.
const HelpPage& FindPage(std::string_view name);

bool PageExists(std::string_view name);

/// The file of a page, or another file of the folder.
std::string HelpFile(std::string_view name);

/// All elements of a page, from the outside in; of one tag when it is given.
std::vector<const tinyxml2::XMLElement*> Elements(const HelpPage& page, std::string_view tag = {});

/// The children of an element that are elements.
std::vector<const tinyxml2::XMLElement*> Children(const tinyxml2::XMLElement& element);

/// What a reader sees of an element: its text with runs of blanks and line ends as one blank.
std::string ShownText(const tinyxml2::XMLElement& element);

std::string Attribute(const tinyxml2::XMLElement& element, const char* name);

/// The names that links may lead to, as often as they stand there.
std::vector<std::string> AnchorNames(const HelpPage& page);

struct Link {
    std::string page;    ///< the page that it leads to
    std::string anchor;  ///< "" for its top
};

std::vector<Link> Links(const HelpPage& page);

/// The rows of the first table of a page, heading cell and other cell: what the page states as facts.
std::vector<std::pair<std::string, std::string>> Facts(const HelpPage& page);

}  // namespace fabula::help_test
