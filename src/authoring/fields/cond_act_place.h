#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "authoring/fields/cond_act_help.h"

// For the files of CondActHelp.

namespace fabula::authoring {

/// Where a cursor stands.
struct CondActHelp::Place {
    std::size_t begin = 0;  ///< of the token at the cursor; both are the cursor where there is none
    std::size_t end = 0;
    bool known = true;  ///< false behind a name that is none: nothing can be told there
    const condacts::CondAct* condAct = nullptr;  ///< whose parameter stands here; nullptr where a name does
    std::size_t parameter = 0;
    std::string before;  ///< the condact and its parameters up to here
};

/// Whether a word of `text` begins with `typed`, case ignored.
bool HasWordWith(std::string_view text, std::string_view typed);

}  // namespace fabula::authoring
