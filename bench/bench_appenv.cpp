// CAppEnv over many users: GetListOfUsers with 10, 100 and 1,000 users, FindHomeDirectory of the
// last of them, and AddUser and DeleteUser among them. Reads take one consistent view of the
// users per operation (on POSIX the parsed registry file while it is unchanged); a change of
// several values is written as one unit.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <map>
#include <memory>
#include <string>

#include "BenchHome.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/OSConfigReg.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

// A user registry holding `users` users ("user 1" ...): on POSIX a settings home of its own
// below the benchmark's; on Windows a key of its own that HKEY_CURRENT_USER is redirected to
// while the store is in use, deleted at the end.
class UserStore {
public:
    explicit UserStore(int users) : m_name("appenv-" + std::to_string(users)) {
#ifdef _WIN32
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegCreateKeyExA(HKEY_CURRENT_USER, (std::string(kParentKey) + "\\" + m_name).c_str(), 0,
                        nullptr, 0, KEY_ALL_ACCESS, nullptr, &m_key, nullptr);
#endif
        Use();
        for (int n = 1; n <= users; ++n) {
            const std::string slot = std::to_string(n);
            OSSetSystemConfigReg(CGNString("user " + slot), "Korvel\\VXUser\\Users",
                                 CGNString("USER" + slot), "SOFTWARE");
            OSSetSystemConfigReg(CGNString("/home/vx/user" + slot), "Korvel\\VXUser\\Users",
                                 CGNString("VXPATH" + slot), "SOFTWARE");
        }
    }
    UserStore(const UserStore&) = delete;
    UserStore& operator=(const UserStore&) = delete;

#ifdef _WIN32
    ~UserStore() {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegCloseKey(m_key);
        RegDeleteTreeA(HKEY_CURRENT_USER, kParentKey);
    }
#endif

    // Makes this the store that CAppEnv reads.
    void Use() const {
#ifdef _WIN32
        RegOverridePredefKey(HKEY_CURRENT_USER, m_key);
#else
        setenv("VX_CONFIG_HOME", (vx::bench::BenchHome() + "/" + m_name).c_str(), 1);
#endif
    }

private:
    std::string m_name;
#ifdef _WIN32
    static constexpr const char* kParentKey = "Software\\VxUtilBench";
    HKEY m_key = nullptr;
#endif
};

// Stores are filled once per size and kept for every run of that size.
const UserStore& StoreWith(int users) {
    static std::map<int, std::unique_ptr<UserStore>> stores;
    auto& store = stores[users];
    if (!store) store = std::make_unique<UserStore>(users);
    store->Use();
    return *store;
}

void GetListOfUsers(benchmark::State& state) {
    StoreWith(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        CGNStringList names, folders;
        CAppEnv::GetListOfUsers(names, folders);
        benchmark::DoNotOptimize(names.GetCount());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(GetListOfUsers)->Arg(10)->Arg(100)->Arg(1000)->Complexity(benchmark::oN);

void FindHomeDirectoryOfTheLastUser(benchmark::State& state) {
    StoreWith(static_cast<int>(state.range(0)));
    const CGNString last = CGNString("user " + std::to_string(state.range(0)));
    for (auto _ : state) {
        CGNString folder;
        benchmark::DoNotOptimize(CAppEnv::FindHomeDirectory(last, folder));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(FindHomeDirectoryOfTheLastUser)->Arg(10)->Arg(100)->Arg(1000)->Complexity(benchmark::oN);

// A user added after all the others (and removed again outside the timing).
void AddUser(benchmark::State& state) {
    StoreWith(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(CAppEnv::AddUser("new user", "/home/vx/new"));
        state.PauseTiming();
        CAppEnv::DeleteUser("new user");
        state.ResumeTiming();
    }
}
BENCHMARK(AddUser)->Arg(1000)->Unit(benchmark::kMicrosecond);

// The first user deleted, so that every later slot moves down (and added again at the end,
// outside the timing).
void DeleteUser(benchmark::State& state) {
    StoreWith(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        CGNStringList names, folders;
        state.PauseTiming();
        CAppEnv::GetListOfUsers(names, folders);
        const CGNString name = names.GetAt(0);
        const CGNString folder = folders.GetAt(0);
        state.ResumeTiming();
        benchmark::DoNotOptimize(CAppEnv::DeleteUser(name));
        state.PauseTiming();
        CAppEnv::AddUser(name, folder);
        state.ResumeTiming();
    }
}
BENCHMARK(DeleteUser)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
