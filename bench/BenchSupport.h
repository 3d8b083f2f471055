#pragma once

#include <QByteArray>

#include <cstdint>
#include <cstdlib>

/// The application object of a benchmark that draws, without a display. `Application` is QGuiApplication, or
/// QApplication for windows.
template<typename Application>
Application& offscreenApplication() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "bench";
    static char* arguments[] = {name, nullptr};
    static Application instance(count, arguments);
    return instance;
}

/// How many calls the sample has: what CALLSCOPE_BENCH_CALLS says, else a million.
inline std::int64_t wantedCalls() {
    const char* text = std::getenv("CALLSCOPE_BENCH_CALLS");
    const std::int64_t wanted = text ? std::atoll(text) : 0;
    return wanted > 0 ? wanted : 1'000'000;
}
