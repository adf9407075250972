// Any bytes as the data file of a classic game: a report is written, or they are refused.

#include "document_harness.h"
#include "packages/travel_report.h"

using namespace fabula;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::DocumentHarness harness;
    harness.Write(data, size);
    interchange::NoObserver nobody;
    interchange::JobStatus status(nobody);
    try {
        packages::Analyze_advent(*harness.document, harness.source, harness.folder / "report.lis", status);
    } catch (const Error&) {
    }
    harness.UndoAll();
    return 0;
}
