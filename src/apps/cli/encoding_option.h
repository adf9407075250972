#pragma once

#include <string>

#include <CLI/CLI.hpp>

#include "interchange/shared/source_file.h"

namespace fabula::cli {

/// Adds --encoding to a verb that reads a source.
void AddEncodingOption(CLI::App& verb, interchange::Encoding& encoding);

}  // namespace fabula::cli
