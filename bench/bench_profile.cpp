// Profile file costs: reading one key from a 200-line file, from the cache and after the file
// changed on disk, and writing one key.
#include <benchmark/benchmark.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

#include "BenchHome.h"
#include "vxutil/platform/ProfileFile.h"

namespace {

namespace fs = std::filesystem;

// 20 sections of 9 keys each, with a comment line: 200 lines.
std::string ProfileText() {
    std::string text;
    for (int section = 0; section < 20; ++section) {
        text += "[Section" + std::to_string(section) + "]\r\n; settings of this part\r\n";
        for (int key = 0; key < 8; ++key)
            text += "Key" + std::to_string(key) + "=value " + std::to_string(section * 10 + key) +
                    "\r\n";
    }
    return text;
}

std::string MakeProfile(const char* name) {
    const std::string path = vx::bench::BenchHome() + "/" + name;
    std::ofstream(path, std::ios::binary) << ProfileText();
    // An old file: the cache trusts its stamp at once.
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(1));
    return path;
}

void ReadCached(benchmark::State& state) {
    const std::string path = MakeProfile("cached.ini");
    for (auto _ : state)
        benchmark::DoNotOptimize(vx::ProfileGetString("Section19", "Key7", "", path.c_str()));
}
BENCHMARK(ReadCached);

// The anchor of ReadCached: the one look at the file's stamp that a read cannot skip, since
// another process may have rewritten the file since the last call.
void StatOfTheFile(benchmark::State& state) {
    const std::string path = MakeProfile("stat.ini");
    struct stat info {};
    for (auto _ : state)
        benchmark::DoNotOptimize(::stat(path.c_str(), &info));
}
BENCHMARK(StatOfTheFile);

void ReadAfterChange(benchmark::State& state) {
    const std::string path = MakeProfile("changed.ini");
    auto stamp = fs::last_write_time(path);
    for (auto _ : state) {
        state.PauseTiming();
        stamp += std::chrono::seconds(1);
        fs::last_write_time(path, stamp);
        state.ResumeTiming();
        benchmark::DoNotOptimize(vx::ProfileGetString("Section19", "Key7", "", path.c_str()));
    }
}
BENCHMARK(ReadAfterChange);

void WriteOneKey(benchmark::State& state) {
    const std::string path = MakeProfile("written.ini");
    int counter = 0;
    for (auto _ : state) {
        const std::string value = std::to_string(++counter);
        benchmark::DoNotOptimize(
            vx::ProfileWriteString("Section10", "Key4", value.c_str(), path.c_str()));
    }
}
BENCHMARK(WriteOneKey)->Unit(benchmark::kMicrosecond);

}  // namespace
