// Filling a CKorvelListCtrl as the accounts dialog does when it rebuilds a pane: 1,000 rows of
// six columns, on the offscreen platform. Hidden, the cost is the item model's; shown, the view
// also keeps its layout up to date, unless the filler holds it in update mode.
#include <benchmark/benchmark.h>

#include "BenchApplication.h"
#include "vxutil/listctrl/qt/CKorvelListCtrl.h"

namespace {

constexpr int kColumns = 6;

void Fill(CKorvelListCtrl& list, int rows) {
    list.DeleteAllItems();
    for (int row = 0; row < rows; ++row) {
        list.InsertItem(row, QStringLiteral("server%1").arg(row));
        for (int column = 1; column < kColumns; ++column)
            list.SetItemText(row, column, QString::number(row * column));
    }
}

// range(0): rows; range(1): 0 hidden, 1 shown, 2 shown and filled in update mode.
void BM_FillKorvelList(benchmark::State& state) {
    vx::bench::EnsureApplication();
    const auto rows = static_cast<int>(state.range(0));
    const auto how = state.range(1);
    CKorvelListCtrl list;
    for (int column = 0; column < kColumns; ++column)
        list.InsertColumn(column, QString::number(column), 80);
    list.EnableColumnSize(1, false);
    list.EnableColumnToggle(1, true, 3205);
    if (how != 0) list.show();
    for (auto _ : state) {
        if (how == 2) list.SetUpdateMode(true);
        Fill(list, rows);
        if (how == 2) list.SetUpdateMode(false);
        QApplication::processEvents();  // the layout and paint the fill caused
    }
    state.SetItemsProcessed(state.iterations() * rows * kColumns);
}

}  // namespace

BENCHMARK(BM_FillKorvelList)
    ->ArgNames({"rows", "shown"})
    ->Args({1000, 0})
    ->Args({1000, 1})
    ->Args({1000, 2})
    ->Unit(benchmark::kMillisecond);
