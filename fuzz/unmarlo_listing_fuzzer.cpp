// Any bytes as a listing of UnMarlo: a game is read from them, or they are refused.

#include "reader_harness.h"

using namespace fabula;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::ReaderHarness harness("unmarlo", store::AdventureKind::Marlo);
    harness.Read(data, size);
    return 0;
}
