// The entry point libFuzzer calls with each input. The operations run are
// counted and reported when the fuzzer exits.
#include <cstdio>
#include <cstdlib>

#include "ZoneFuzzer.h"

namespace {

struct OperationCount {
    long runs = 0;
    long operations = 0;
    ~OperationCount() {
        std::fprintf(stderr, "%ld runs, %ld operations\n", runs, operations);
    }
} s_count;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static const bool trace = std::getenv("TEXTZONE_FUZZ_TRACE") != nullptr;
    CZoneFuzzer::SetTrace(trace);
    s_count.operations += CZoneFuzzer::Run(pData, nSize);
    ++s_count.runs;
    return 0;
}
