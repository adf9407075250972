#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "interchange/ace_tags.h"
#include "interchange/pc_dialect.h"

namespace fabula::interchange {

/// How texts stand in PC and ACE sources: "&" for itself, "<ht>" for a tab, and in ACE sources the tags of
/// that form. A "<" or ">" that belongs to no tag stands for itself too.
class PcTextForm {
  public:
    /// `tags` is nullptr for sources without tags of their own.
    PcTextForm(const PcDialect& dialect, const AceTags* tags) : dialect_(dialect), tags_(tags) {}

    /// The text of the lines of a source, joined by line-end markers, comments cut off.
    std::string FromSource(std::string_view source) const;

    struct Written {
        std::vector<std::string> lines;
        bool comesBack = true;  ///< reading the lines gives the text again
    };
    /// The lines of a text. The empty text has none; a line that begins with "/" gets a blank in front.
    Written ToSource(std::string_view text) const;

  private:
    Written Write(std::string_view text, std::string source) const;

    const PcDialect& dialect_;
    const AceTags* tags_;
};

}  // namespace fabula::interchange
