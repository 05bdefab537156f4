// Foundation class costs: a sequential scan of a long list by index (linear over the scan
// thanks to the position cache), building the array of records, and the byte list's text
// encoding and decoding next to a plain hexadecimal loop over the same bytes.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

#include "vxutil/foundation/CVXByteList.h"
#include "vxutil/foundation/CVXInternalId.h"
#include "vxutil/foundation/CVXInternalIdList.h"

namespace {

CVXInternalIdList IdList(int count) {
    CVXInternalIdList list;
    for (int i = 0; i < count; ++i) {
        // Appending walks the list; insert at the head and let the ids run backwards instead.
        const CVXInternalId id(static_cast<std::uint32_t>(count - i));
        list.InsertItem(0, &id);
    }
    return list;
}

void SequentialGetItem(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    CVXInternalIdList list = IdList(count);
    for (auto _ : state) {
        std::uint32_t sum = 0;
        for (int i = 0; i < count; ++i) {
            sum += static_cast<const CVXInternalId*>(list.GetItem(i))->GetId();
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * count);
    state.SetComplexityN(count);
}
BENCHMARK(SequentialGetItem)->RangeMultiplier(10)->Range(100, 10000)->Complexity(benchmark::oN);

void BuildArray(benchmark::State& state) {
    CVXInternalIdList list = IdList(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(list.BuildArray());
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BuildArray)->Arg(10000);

constexpr std::size_t kBlockSize = 1 << 20;

std::vector<unsigned char> Block() {
    std::vector<unsigned char> bytes(kBlockSize);
    std::uint32_t state = 12345;
    for (unsigned char& byte : bytes) {
        state = state * 1103515245u + 12345u;
        byte = static_cast<unsigned char>(state >> 24);
    }
    return bytes;
}

void ByteListEncode(benchmark::State& state) {
    std::vector<unsigned char> bytes = Block();
    CVXByteList list(VXByteList{9, static_cast<std::uint32_t>(bytes.size()), bytes.data()});
    for (auto _ : state)
        benchmark::DoNotOptimize(list.GetText());
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kBlockSize));
}
BENCHMARK(ByteListEncode);

// The baseline: a plain loop over the bytes, two digits each.
std::string PlainHex(const std::vector<unsigned char>& bytes) {
    static const char digits[] = "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (unsigned char byte : bytes) {
        text += digits[byte >> 4];
        text += digits[byte & 0x0F];
    }
    return text;
}

void PlainHexEncode(benchmark::State& state) {
    const std::vector<unsigned char> bytes = Block();
    for (auto _ : state)
        benchmark::DoNotOptimize(PlainHex(bytes));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kBlockSize));
}
BENCHMARK(PlainHexEncode);

void ByteListDecode(benchmark::State& state) {
    std::vector<unsigned char> bytes = Block();
    CVXByteList source(VXByteList{9, static_cast<std::uint32_t>(bytes.size()), bytes.data()});
    const std::string text = source.GetText()->str();
    CVXByteList list;
    for (auto _ : state)
        benchmark::DoNotOptimize(list.ReadText(text.c_str()));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kBlockSize));
}
BENCHMARK(ByteListDecode);

int Nibble(char c) {
    return c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10;
}

void PlainHexDecode(benchmark::State& state) {
    const std::vector<unsigned char> bytes = Block();
    const std::string text = PlainHex(bytes);
    std::vector<unsigned char> decoded(bytes.size());
    for (auto _ : state) {
        for (std::size_t i = 0; i < decoded.size(); ++i) {
            decoded[i] =
                static_cast<unsigned char>(Nibble(text[2 * i]) << 4 | Nibble(text[2 * i + 1]));
        }
        benchmark::DoNotOptimize(decoded.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kBlockSize));
}
BENCHMARK(PlainHexDecode);

}  // namespace
