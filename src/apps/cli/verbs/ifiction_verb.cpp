#include <iostream>

#include "cli/verbs.h"
#include "packages/cover.h"
#include "packages/ifiction.h"
#include "text/encoding/safe_text.h"

namespace fabula::cli {
namespace {

struct IfictionOptions {
    std::string file;
};

int PrintRecord(const IfictionOptions& options) {
    const auto adventure = OpenToRead(options.file);
    const packages::GameFacts facts = packages::ReadFacts(*adventure);
    const packages::CoverSearch search = packages::FindCover(*adventure, facts);
    std::cout << packages::IFictionRecord(facts, search.cover ? &*search.cover : nullptr);
    if (!search.cover) std::cerr << text::SafeLines(search.why) << "\n";
    return kDone;
}

}  // namespace

void AddIfictionVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<IfictionOptions>();
    AddAdventureOption(verb, options->file)->required();
    Runs(verb, chosen, options, PrintRecord);
}

}  // namespace fabula::cli
