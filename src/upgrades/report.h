#pragma once

#include <string>

namespace fabula::upgrades {

/// What an upgrade has to tell the author, shown when it is done.
struct Report {
    enum class Kind {
        Notice,     ///< read and forgotten
        List,       ///< records that the author may want to look at, to be read and printed
        FlagChange  ///< a list that comes again until it is cancelled or its entries are changed
    };
    Kind kind = Kind::List;
    std::string title;
    std::string text;  ///< lines separated by "\n"

    friend bool operator==(const Report&, const Report&) = default;
};

}  // namespace fabula::upgrades
