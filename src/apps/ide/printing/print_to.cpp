#include "ide/printing/print_to.h"

#include "ide/printing/paper_output.h"
#include "listings/pages/outputs.h"
#include "platform/error.h"
#include "qt/strings.h"
#include "store/file/file_copy.h"

namespace fabula::ide {

void PrintTo(const PrintToOrder& order) {
    const listings::Report* const report = listings::FindReport(order.report);
    if (!report) throw Error("There is no report '" + order.report + "'; 'fabula list --help' shows them.");
    if (order.options.brief && order.options.verbose)
        throw Error("--brief and --verbose exclude each other.");
    store::CheckTarget(order.file, store::Content::Text);
    std::error_code error;  // what can't be looked at fails when it is written
    if (!order.force && !store::IsStream(order.file) && std::filesystem::exists(order.file, error))
        throw Error("Could not write " + order.file.string() + ": it exists already; --force replaces it.");
    const auto opened = store::Adventure::Open(order.adventure, store::OpenMode::ReadOnly);
    const std::string title = listings::AdventureName(*opened) + ": " + order.report;
    const listings::ReportRequest request = listings::RequestOf(*report, order.options, *opened);
    const listings::Paper paper = listings::PaperListing(*report, request, *opened);
    store::WriteFile(order.file, PdfOf(paper, qt::ToQt(title)));
}

}  // namespace fabula::ide
