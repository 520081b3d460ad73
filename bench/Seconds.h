// Wall time of one call, for the tasks that Google Benchmark times manually.
#pragma once

#include <chrono>

namespace bench {

template <class F>
double Seconds(F&& f) {
    const auto t0 = std::chrono::steady_clock::now();
    f();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
}

}  // namespace bench
