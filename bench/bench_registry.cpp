// The system configuration store: a read of one value, as every settings call makes it (on
// POSIX from the parsed registry file held in memory, on Windows from the user's registry), and
// a write. The values live under a key of the benchmark's own, removed afterwards on Windows;
// on POSIX the registry file is in the benchmark's settings home.
#include <benchmark/benchmark.h>

#include <string>

#include "vxutil/gnrt/OSConfigReg.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

const CGNString kRoot = "SOFTWARE";

// A key holding `users` users and the last user, as the client keeps them.
class BenchKey {
public:
    explicit BenchKey(int users) : m_key("VxUtilBench\\Users" + std::to_string(users)) {
        for (int n = 1; n <= users; ++n) {
            CGNString name;
            name.Format("USER%d", n);
            OSSetSystemConfigReg(CGNString("user " + std::to_string(n)), m_key, name, kRoot);
        }
        OSSetSystemConfigReg(users, m_key, "LastUserLoggedIn", kRoot);
    }
    ~BenchKey() {
#ifdef _WIN32
        RegDeleteTreeA(HKEY_CURRENT_USER, "SOFTWARE\\VxUtilBench");
#endif
    }
    BenchKey(const BenchKey&) = delete;
    BenchKey& operator=(const BenchKey&) = delete;

    const CGNString& key() const {
        return m_key;
    }

private:
    CGNString m_key;
};

void ReadNumber(benchmark::State& state) {
    const BenchKey bench(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        long last = 0;
        benchmark::DoNotOptimize(
            OSGetSystemConfigReg(last, -1, bench.key(), "LastUserLoggedIn", kRoot));
        benchmark::DoNotOptimize(last);
    }
}
BENCHMARK(ReadNumber)->Arg(1)->Arg(100);

void ReadString(benchmark::State& state) {
    const BenchKey bench(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        CGNString user;
        benchmark::DoNotOptimize(OSGetSystemConfigReg(user, "", bench.key(), "USER1", kRoot));
        benchmark::DoNotOptimize(user);
    }
}
BENCHMARK(ReadString)->Arg(1)->Arg(100);

void WriteNumber(benchmark::State& state) {
    const BenchKey bench(static_cast<int>(state.range(0)));
    int last = 0;
    for (auto _ : state) {
        ++last;
        benchmark::DoNotOptimize(OSSetSystemConfigReg(last, bench.key(), "Last", kRoot));
    }
}
BENCHMARK(WriteNumber)->Arg(1)->Arg(100);

}  // namespace
