#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "interchange/pc/ace_tags.h"
#include "interchange/pc/pc_dialect.h"
#include "text/tag_catalogue.h"

namespace fabula::interchange {

/// How texts stand in PC and ACE sources: "&" for itself, "<ht>" for a tab, and in ACE sources the tags of
/// that form. A "<" or ">" that belongs to no tag stands for itself too, and so does what looks like a tag
/// and is none of Fabula's, or has a value that its tag can't have.
class PcTextForm {
  public:
    /// `known` are the tags of the adventure; `tags` is nullptr for sources without tags of their own.
    PcTextForm(const PcDialect& dialect, text::TagCatalogue known, const AceTags* tags)
        : dialect_(dialect), known_(std::move(known)), tags_(tags) {}

    /// The text of the lines of a source, joined by line-end markers, comments cut off.
    std::string FromSource(std::string_view source) const;

    /// What in a line looks like a tag and is read as text.
    struct BadTag {
        std::size_t position = 0;  ///< of its "<" in the line
        std::string message;       ///< as a text's screen would tell it
    };
    std::vector<BadTag> FindBadTags(std::string_view line) const;

    struct Written {
        std::vector<std::string> lines;
        bool comesBack = true;  ///< reading the lines gives the text again
    };
    /// The lines of a text. The empty text has none; a line that begins with "/" gets a blank in front.
    Written ToSource(std::string_view text) const;

  private:
    Written Write(std::string_view text, std::string source) const;
    std::string Convert(std::string_view tag) const;
    std::string FaultOf(std::string_view tag) const;

    const PcDialect& dialect_;
    text::TagCatalogue known_;
    const AceTags* tags_;
};

}  // namespace fabula::interchange
