// Encoded texts of values and qualifiers: decode and encode throughput (MB/s of encoded text)
// over a fixed corpus, next to a raw scan of the same bytes (memchr for each backslash and
// strtoul at each field) as the practical limit of any decoder.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "vxutil/foundation/CVXArithOpStruct.h"
#include "vxutil/foundation/CVXQualifierStruct.h"
#include "vxutil/foundation/CVXValueList.h"

namespace {

// Values of the common types, about as a search result brings them.
CVXValueList ValueCorpus() {
    std::mt19937 random(7);
    CVXValueList list;
    CVXValueStruct value;
    for (int i = 0; i < 2000; ++i) {
        switch (i % 5) {
            case 0:
                value.SetInteger(static_cast<std::int32_t>(random()));
                break;
            case 1:
                value.SetReal(static_cast<double>(random() % 100000) / 8.0);
                break;
            case 2:
                value.SetChar(std::string(random() % 40, 'x').c_str());
                break;
            case 3:
                value.SetEnum(random() % 10);
                break;
            default:
                value.SetDecimal(std::to_string(random() % 1000000).c_str());
                break;
        }
        list.AddValue(value);
    }
    return list;
}

std::vector<std::string> QualifierCorpus() {
    std::vector<std::string> texts;
    CVXValueStruct number, text;
    for (std::uint32_t i = 0; i < 500; ++i) {
        number.SetInteger(static_cast<std::int32_t>(i));
        text.SetChar("Printer%");
        const CVXQualifierStruct qualifier = CVXQualifierStruct::And(
            CVXQualifierStruct::Relation(
                CVXRelOpStruct(VX_REL_OP_GREATER,
                               CVXQualifierOperand::Arithmetic(
                                   CVXArithOpStruct(VX_ARITH_OP_ADD, CVXQualifierOperand::Field(i),
                                                    CVXQualifierOperand::Value(number))),
                               CVXQualifierOperand::Value(number))),
            CVXQualifierStruct::Relation(CVXRelOpStruct(
                VX_REL_OP_LIKE, CVXQualifierOperand::Field(8), CVXQualifierOperand::Value(text))));
        CGNString encoded;
        qualifier.Encode(encoded);
        texts.push_back(encoded.str());
    }
    return texts;
}

std::size_t TotalBytes(const std::vector<std::string>& texts) {
    std::size_t bytes = 0;
    for (const std::string& text : texts)
        bytes += text.size();
    return bytes;
}

// The tokenizer limit: find every backslash and read the number that starts each field.
unsigned long RawScan(const char* text, std::size_t length) {
    unsigned long sum = 0;
    const char* end = text + length;
    for (const char* field = text; field < end;) {
        sum += std::strtoul(field, nullptr, 10);
        const void* backslash = std::memchr(field, '\\', static_cast<std::size_t>(end - field));
        if (backslash == nullptr) break;
        field = static_cast<const char*>(backslash) + 1;
    }
    return sum;
}

void DecodeValues(benchmark::State& state) {
    CGNString encoded;
    ValueCorpus().GetEncodedText(encoded);
    for (auto _ : state) {
        CVXValueList list;
        const char* cursor = encoded.c_str();
        benchmark::DoNotOptimize(list.Decode(cursor));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * encoded.GetLength()));
}
BENCHMARK(DecodeValues);

void EncodeValues(benchmark::State& state) {
    const CVXValueList list = ValueCorpus();
    CGNString encoded;
    for (auto _ : state)
        benchmark::DoNotOptimize(list.GetEncodedText(encoded));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * encoded.GetLength()));
}
BENCHMARK(EncodeValues);

void RawScanValues(benchmark::State& state) {
    CGNString encoded;
    ValueCorpus().GetEncodedText(encoded);
    for (auto _ : state)
        benchmark::DoNotOptimize(RawScan(encoded.c_str(), encoded.GetLength()));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * encoded.GetLength()));
}
BENCHMARK(RawScanValues);

void DecodeQualifiers(benchmark::State& state) {
    const std::vector<std::string> texts = QualifierCorpus();
    for (auto _ : state) {
        for (const std::string& text : texts) {
            CVXQualifierStruct qualifier;
            const char* cursor = text.c_str();
            benchmark::DoNotOptimize(qualifier.Decode(cursor));
        }
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * TotalBytes(texts)));
}
BENCHMARK(DecodeQualifiers);

void EncodeQualifiers(benchmark::State& state) {
    const std::vector<std::string> texts = QualifierCorpus();
    std::vector<CVXQualifierStruct> qualifiers(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const char* cursor = texts[i].c_str();
        qualifiers[i].Decode(cursor);
    }
    CGNString encoded;
    for (auto _ : state) {
        for (const CVXQualifierStruct& qualifier : qualifiers)
            benchmark::DoNotOptimize(qualifier.Encode(encoded));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * TotalBytes(texts)));
}
BENCHMARK(EncodeQualifiers);

void RawScanQualifiers(benchmark::State& state) {
    const std::vector<std::string> texts = QualifierCorpus();
    for (auto _ : state) {
        for (const std::string& text : texts)
            benchmark::DoNotOptimize(RawScan(text.c_str(), text.size()));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * TotalBytes(texts)));
}
BENCHMARK(RawScanQualifiers);

}  // namespace
