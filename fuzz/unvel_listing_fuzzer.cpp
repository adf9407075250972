// Any bytes as a listing of UnVel: a game is read from them, or they are refused.

#include "reader_harness.h"

using namespace fabula;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::ReaderHarness harness("unvel", store::AdventureKind::Vel);
    harness.Read(data, size);
    return 0;
}
