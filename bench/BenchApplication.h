// The widgets benchmarks' Qt application: created on first use, on the offscreen platform, so
// that they run without a display and measure no window system.
#pragma once

#include <QApplication>

namespace vx::bench {

inline void EnsureApplication() {
    static int argc = 1;
    static char name[] = "vxutil_bench";
    static char* argv[] = {name, nullptr};
    if (QApplication::instance() != nullptr) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication app(argc, argv);
}

}  // namespace vx::bench
