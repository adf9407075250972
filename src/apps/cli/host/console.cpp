#include "cli/host/console.h"

#include "cli/installation.h"

namespace fabula::cli {

interchange::JobHost Console::JobHost() {
    return {person_, clock_, events_, observer_, DefaultDataFile()};
}

}  // namespace fabula::cli
