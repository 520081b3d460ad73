// The main of a benchmark program on the Qt backend: Google Benchmark takes
// its flags first, then a QApplication on the offscreen platform (unless the
// environment names another) and the Qt platform run the registered
// benchmarks. beforeQt runs after them, while the QApplication still stands.
#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>
#include <functional>

#include "platform/qt/QtPlatform.h"

namespace bench {

inline int RunQtBenchmarks(int argc, char** argv, void (*registerBenchmarks)(),
                           const std::function<void()>& beforeQtGoes = {}) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    registerBenchmarks();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    int qtArgc = 1;
    QApplication app(qtArgc, argv);
    CQtPlatform platform;
    benchmark::RunSpecifiedBenchmarks();
    if (beforeQtGoes) beforeQtGoes();
    benchmark::Shutdown();
    return 0;
}

}  // namespace bench
