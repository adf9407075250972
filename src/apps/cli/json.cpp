#include "cli/json.h"

#include <iostream>

namespace fabula::cli {

void PrintList(const Json& list) {
    std::cout << list.dump(2, ' ', true, Json::error_handler_t::replace) << "\n";
}

}  // namespace fabula::cli
