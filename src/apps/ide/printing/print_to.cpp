#include "ide/printing/print_to.h"

#include "ide/printing/paper_output.h"
#include "listings/outputs.h"
#include "platform/error.h"
#include "qt/strings.h"
#include "store/file_copy.h"

namespace fabula::ide {

void PrintTo(const std::filesystem::path& file, const std::filesystem::path& adventure,
             const std::string& report, bool force) {
    const listings::Report* const found = listings::FindReport(report);
    if (!found) throw Error("There is no report '" + report + "'; 'fabula list --help' shows them.");
    store::CheckTarget(file, store::Content::Text);
    std::error_code error;  // what can't be looked at fails when it is written
    if (!force && !store::IsStream(file) && std::filesystem::exists(file, error))
        throw Error("Could not write " + file.string() + ": it exists already; --force replaces it.");
    const auto opened = store::Adventure::Open(adventure, store::OpenMode::ReadOnly);
    const std::string title = listings::AdventureName(*opened) + ": " + report;
    const listings::Paper paper = listings::PaperListing(*found, {}, *opened);
    store::WriteFile(file, PdfOf(paper, qt::ToQt(title)));
}

}  // namespace fabula::ide
