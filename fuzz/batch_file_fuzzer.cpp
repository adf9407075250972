// Any bytes as a batch file: they change an adventure in one step that can be undone, or are refused.

#include "authoring/batch/batch_import.h"
#include "document_harness.h"

using namespace fabula;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::DocumentHarness harness;
    harness.Write(data, size);
    interchange::NoObserver nobody;
    interchange::JobStatus status(nobody);
    try {
        authoring::ImportBatch(*harness.document, harness.source, status);
    } catch (const Error&) {
    }
    harness.UndoAll();
    return 0;
}
