// SPDX-License-Identifier: BSD-3-Clause
#include "KnMFields.h"
#include "RatioReporter.h"

#include <charconv>
#include <cstdlib>
#include <limits>
#include <random>
#include <span>
#include <sstream>
#include <string>
#include <vector>

namespace {

/// The points of a scene: coordinates up to some hundreds, with all their digits.
class Points {
public:
    /// As many as the benchmark asks for.
    explicit Points(const benchmark::State& state)
    {
        std::mt19937 random(1); // NOLINT: the same points each time
        std::uniform_real_distribution<float> coordinate(-500.0F, 500.0F);
        std::vector<KbVec3f> values;
        values.reserve(static_cast<std::size_t>(state.range()));
        for (int i = 0; i < state.range(); ++i)
            values.emplace_back(coordinate(random), coordinate(random), coordinate(random));
        m_field.setValues(0, int(values.size()), values.data());
    }

    const KnMFVec3f& field() const { return m_field; }
    std::span<const float> numbers() const
    {
        return { m_field[0].getValue(), 3 * std::size_t(m_field.getNum()) };
    }

private:
    KnMFVec3f m_field;
};

constexpr std::size_t longestNumber = 16; // with a blank

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void fieldWrite(benchmark::State& state)
{
    const Points points(state);
    for (auto _ : state) {
        KbString text;
        points.field().get(text);
        benchmark::DoNotOptimize(text);
    }
}

/// The rival: the same numbers, each with a blank behind it, into a buffer that is there already.
void bareWrite(benchmark::State& state)
{
    const Points points(state);
    std::vector<char> buffer(points.numbers().size() * longestNumber);
    for (auto _ : state) {
        char* next = buffer.data();
        for (const float number : points.numbers()) {
            next = std::to_chars(next, buffer.data() + buffer.size(), number).ptr;
            *next++ = ' ';
        }
        benchmark::DoNotOptimize(next);
    }
}

/// With as many digits as give the same number back.
void streamWrite(benchmark::State& state)
{
    const Points points(state);
    for (auto _ : state) {
        std::ostringstream stream;
        stream.precision(std::numeric_limits<float>::max_digits10);
        for (const float number : points.numbers())
            stream << number << ' ';
        benchmark::DoNotOptimize(stream);
    }
}

void fieldRead(benchmark::State& state)
{
    KbString text;
    Points(state).field().get(text);
    for (auto _ : state) {
        KnMFVec3f field;
        require(field.set(text));
        benchmark::DoNotOptimize(field.getValues());
    }
}

/// The numbers with one blank between.
std::string bareText(std::span<const float> numbers)
{
    std::string text(numbers.size() * longestNumber, ' ');
    char* end = text.data();
    for (const float number : numbers)
        end = std::to_chars(end, text.data() + text.size(), number).ptr + 1;
    text.resize(std::size_t(end - text.data()));
    return text;
}

/// The rival: the same numbers into an array that is there already.
void bareRead(benchmark::State& state)
{
    const Points points(state);
    const std::string text = bareText(points.numbers());
    std::vector<float> values(points.numbers().size());
    for (auto _ : state) {
        const char* next = text.data();
        for (float& value : values) {
            const auto [behind, error] = std::from_chars(next, text.data() + text.size(), value);
            require(error == std::errc());
            next = behind + 1;
        }
        benchmark::DoNotOptimize(values.data());
    }
}

void streamRead(benchmark::State& state)
{
    const Points points(state);
    const std::string text = bareText(points.numbers());
    std::vector<float> values(points.numbers().size());
    for (auto _ : state) {
        std::istringstream stream(text);
        for (float& value : values)
            stream >> value;
        require(bool { stream });
        benchmark::DoNotOptimize(values.data());
    }
}

void inSizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Unit(benchmark::kMillisecond)->Arg(10'000)->Arg(100'000)->Arg(1'000'000);
}

// clazy:excludeall=non-pod-global-static the library keeps a benchmark in a static object
BENCHMARK(fieldWrite)->Apply(inSizes);
BENCHMARK(bareWrite)->Apply(inSizes);
BENCHMARK(streamWrite)->Apply(inSizes);
BENCHMARK(fieldRead)->Apply(inSizes);
BENCHMARK(bareRead)->Apply(inSizes);
BENCHMARK(streamRead)->Apply(inSizes);

} // namespace

int main(int argc, char** argv)
{
    return runBenchmarks(argc, argv,
        { { "Writing a million points, times the bare loop", "fieldWrite", "bareWrite" },
            { "Writing a million points, times a stream", "fieldWrite", "streamWrite" },
            { "Reading a million points, times the bare loop", "fieldRead", "bareRead" },
            { "Reading a million points, times a stream", "fieldRead", "streamRead" } });
}
