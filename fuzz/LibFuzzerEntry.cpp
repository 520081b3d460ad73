// The entry point libFuzzer calls with each input.
#include <cstdlib>

#include "ZoneFuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static const bool trace = std::getenv("TEXTZONE_FUZZ_TRACE") != nullptr;
    CZoneFuzzer::SetTrace(trace);
    CZoneFuzzer::Run(pData, nSize);
    return 0;
}
