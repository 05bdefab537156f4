// Opening the accounts dialog on the offscreen platform for a client with 1,000 users, whose
// selected user has 50 servers: reading the users, showing each home folder in its stored letter
// case, filling both lists, the first layout and paint. Target: under 100 ms. The home folders
// share one parent folder, as home folders do, and the letter-case lookup lists that folder once
// per user.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "BenchApplication.h"
#include "BenchHome.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/login/qt/CLoginPropDlg.h"
#include "vxutil/platform/RApplication.h"

namespace {

constexpr int kUsers = 1000;
constexpr int kServers = 50;

std::string UserName(int i) {
    return "user" + std::to_string(1000 + i);
}

// Users with a folder each; the first one has the servers.
void StoreUsers() {
    const std::filesystem::path base = std::filesystem::path(vx::bench::BenchHome()) / "users";
    for (int i = 0; i < kUsers; ++i) {
        const std::filesystem::path folder = base / UserName(i);
        std::filesystem::create_directories(folder);
        CAppEnv::AddUser(UserName(i), folder.string());
    }
    std::ofstream servers(base / UserName(0) / "VX");
    for (int i = 0; i < kServers; ++i)
        servers << "server" << i << " VX;NT;" << 2000 + i << ";390600;" << 3000 + i << "\n";
}

void BM_OpenAccountsDialog(benchmark::State& state) {
    vx::bench::EnsureApplication();
    static RApplication client("Accounts bench", "vxbenchaccounts");
    RApplication::SetCurrent(&client);
    static const bool stored = (StoreUsers(), true);
    (void)stored;
    const QString user = QString::fromStdString(UserName(0));
    for (auto _ : state) {
        auto dialog = std::make_unique<CLoginPropDlg>(user, nullptr, nullptr);
        dialog->show();
        QApplication::processEvents();  // the first layout and paint
        state.PauseTiming();
        dialog.reset();
        state.ResumeTiming();
    }
    RApplication::SetCurrent(nullptr);
}

}  // namespace

BENCHMARK(BM_OpenAccountsDialog)->Unit(benchmark::kMillisecond);
