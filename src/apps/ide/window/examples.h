#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace fabula::ide {

/// An example game of the installation.
struct Example {
    std::filesystem::path file;
    std::string name;   ///< "The Lighthouse"
    std::string about;  ///< one sentence
};

/// The example games that are in the folder "examples" of one of `folders`, which are looked through in
/// their order.
std::vector<Example> FindExamples(const std::vector<std::filesystem::path>& folders);

/// The example as the author's own file in `folder`, with its pictures: copied there when there is none of
/// its name yet. Throws fabula::Error when it can't be written.
std::filesystem::path TakeExample(const Example& example, const std::filesystem::path& folder);

}  // namespace fabula::ide
