#include "listings/pages/outputs.h"

#include "listings/pages/html_page.h"
#include "listings/pages/text_page.h"
#include "text/encoding/utf8.h"

namespace fabula::listings {

std::string TextListing(const Report& report, const ReportRequest& request, store::Adventure& adventure) {
    TextPage page;
    WriteReport(report, request, adventure, page);
    return page.Take();
}

std::string HtmlListing(const Report& report, const ReportRequest& request, store::Adventure& adventure) {
    HtmlPage page(AdventureName(adventure));
    WriteReport(report, request, adventure, page);
    return page.Finish();
}

Paper PaperListing(const Report& report, const ReportRequest& request, store::Adventure& adventure) {
    Paper paper;
    WriteReport(report, request, adventure, paper);
    return paper;
}

bool IsHtmlName(const std::filesystem::path& file) {
    const std::string extension = text::LowerCase(file.extension().string());
    return extension == ".html" || extension == ".htm";
}

}  // namespace fabula::listings
