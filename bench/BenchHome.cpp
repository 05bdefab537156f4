#include "BenchHome.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <random>
#include <system_error>

namespace vx::bench {
namespace {

std::string g_home;

std::filesystem::path MakeUniqueFolder() {
    std::random_device random;
    const auto base = std::filesystem::temp_directory_path();
    for (;;) {
        auto candidate = base / ("vxutil-bench-" + std::to_string(random()));
        if (std::filesystem::create_directory(candidate)) return candidate;
    }
}

}  // namespace

const std::string& BenchHome() {
    return g_home;
}

}  // namespace vx::bench

int main(int argc, char** argv) {
    const auto folder = vx::bench::MakeUniqueFolder();
    vx::bench::g_home = folder.string();
#ifdef _WIN32
    _putenv_s("VX_CONFIG_HOME", vx::bench::g_home.c_str());
#else
    setenv("VX_CONFIG_HOME", vx::bench::g_home.c_str(), 1);
#endif
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    return 0;
}
