// SPDX-License-Identifier: BSD-3-Clause
#include "KnMFields.h"
#include "RatioReporter.h"

#include <charconv>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int valueCount = 1000000;
constexpr int numberCount = 3 * valueCount;

/// A million points of a scene: coordinates up to some hundreds, with all their digits.
const KnMFVec3f& points()
{
    static const KnMFVec3f& field = [&]() -> const KnMFVec3f& {
        auto& made = *new KnMFVec3f; // as long as the process
        std::mt19937 random(1); // NOLINT: the same points each time
        std::uniform_real_distribution<float> coordinate(-500.0F, 500.0F);
        std::vector<KbVec3f> values;
        values.reserve(valueCount);
        for (int i = 0; i < valueCount; ++i)
            values.emplace_back(coordinate(random), coordinate(random), coordinate(random));
        made.setValues(0, valueCount, values.data());
        return made;
    }();
    return field;
}

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void fieldWrite(benchmark::State& state)
{
    const KnMFVec3f& field = points();
    for (auto _ : state) {
        KbString text;
        field.get(text);
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations() * numberCount);
}

/// The rival: the same numbers, each with a blank behind it, into a buffer that is there already.
void bareWrite(benchmark::State& state)
{
    const float* numbers = points()[0].getValue();
    std::vector<char> buffer(static_cast<std::size_t>(numberCount) * 16);
    for (auto _ : state) {
        char* next = buffer.data();
        for (int i = 0; i < numberCount; ++i) {
            next = std::to_chars(next, buffer.data() + buffer.size(), numbers[i]).ptr;
            *next++ = ' ';
        }
        benchmark::DoNotOptimize(next);
    }
    state.SetItemsProcessed(state.iterations() * numberCount);
}

void fieldRead(benchmark::State& state)
{
    KbString text;
    points().get(text);
    for (auto _ : state) {
        KnMFVec3f field;
        require(field.set(text));
        benchmark::DoNotOptimize(field.getValues());
    }
    state.SetItemsProcessed(state.iterations() * numberCount);
}

/// The rival: the same numbers with one blank between, into an array that is there already.
void bareRead(benchmark::State& state)
{
    const float* numbers = points()[0].getValue();
    std::string text(static_cast<std::size_t>(numberCount) * 16, ' ');
    char* end = text.data();
    for (int i = 0; i < numberCount; ++i)
        end = std::to_chars(end, text.data() + text.size(), numbers[i]).ptr + 1;
    std::vector<float> values(numberCount);
    for (auto _ : state) {
        const char* next = text.data();
        for (float& value : values) {
            const auto [behind, error] = std::from_chars(next, end, value);
            require(error == std::errc());
            next = behind + 1;
        }
        benchmark::DoNotOptimize(values.data());
    }
    state.SetItemsProcessed(state.iterations() * numberCount);
}

BENCHMARK(fieldWrite)->Unit(benchmark::kMillisecond);
BENCHMARK(bareWrite)->Unit(benchmark::kMillisecond);
BENCHMARK(fieldRead)->Unit(benchmark::kMillisecond);
BENCHMARK(bareRead)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatio("Writing a million points, times the bare loop", "fieldWrite", "bareWrite");
    reporter.printRatio("Reading a million points, times the bare loop", "fieldRead", "bareRead");
    return 0;
}
