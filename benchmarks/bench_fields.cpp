// Fields without a window: the text form of a long list, and writes of a watched field.

#include "Pairs.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/fields/list/NxMFFloat.h"
#include "meridane/scene/fields/single/NxSFFloat.h"

#include <array>
#include <charconv>
#include <functional>
#include <random>
#include <vector>

namespace {

constexpr int valueCount = 1'000'000;
constexpr int writeCount = 1'000'000;

std::vector<float> makeValues()
{
    std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same values in each run
    std::uniform_real_distribution<float> distribution(-1000, 1000);
    std::vector<float> values;
    for (int i = 0; i < valueCount; ++i)
        values.push_back(distribution(random));
    return values;
}

const std::vector<float>& values()
{
    static const std::vector<float> all = makeValues();
    return all;
}

const VbString& valuesText()
{
    static const VbString text = [] {
        NxMFFloat list(nullptr, "list", values());
        VbString written;
        list.get(written);
        return written;
    }();
    return text;
}

void readList(benchmark::State& state)
{
    NxMFFloat list(nullptr, "list");
    for ([[maybe_unused]] auto step : state) {
        list.set(valuesText());
        benchmark::DoNotOptimize(list.getValues().data());
    }
}

// The numbers alone, in a list that begins empty as the field's does: what separates them is skipped unseen.
void readBare(benchmark::State& state)
{
    const std::string_view text = valuesText().view();
    for ([[maybe_unused]] auto step : state) {
        std::vector<float> list;
        const char* const end = text.data() + text.size();
        for (const char* at = text.data() + 1; at < end;) {
            float value = 0;
            at = std::from_chars(at, end, value).ptr + 2;
            list.push_back(value);
        }
        benchmark::DoNotOptimize(list.data());
    }
}

void writeList(benchmark::State& state)
{
    const NxMFFloat list(nullptr, "list", values());
    for ([[maybe_unused]] auto step : state) {
        VbString text;
        list.get(text);
        benchmark::DoNotOptimize(text.toUtf8());
    }
}

void writeBare(benchmark::State& state)
{
    for ([[maybe_unused]] auto step : state) {
        std::string text = "[";
        for (const float value : values()) {
            std::array<char, 32> digits;
            text.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr);
            text += ", ";
        }
        benchmark::DoNotOptimize(text.data());
    }
}

void writeWatched(benchmark::State& state)
{
    int calls = 0;
    NxSFFloat field(nullptr, "field");
    NxFieldSensor sensor([](void* data, NxSensor*) { ++*static_cast<int*>(data); }, &calls);
    sensor.attach(&field);
    for ([[maybe_unused]] auto step : state) {
        for (int i = 0; i < writeCount; ++i)
            field.setValue(static_cast<float>(i));
        NxDelayQueue::getDefault().process();
        benchmark::DoNotOptimize(calls);
    }
}

void writeCalling(benchmark::State& state)
{
    float value = 0;
    std::function<void()> called = [] {};
    benchmark::DoNotOptimize(called);
    for ([[maybe_unused]] auto step : state) {
        for (int i = 0; i < writeCount; ++i) {
            value = static_cast<float>(i);
            benchmark::DoNotOptimize(value);
            called();
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    bench::addPair("list of 1,000,000 floats: read from text", 1.25, readList, readBare);
    bench::addPair("list of 1,000,000 floats: write to text", 1.25, writeList, writeBare);
    bench::addPair("1,000,000 writes of a watched field", 3, writeWatched, writeCalling);
    return bench::runPairs(argc, argv);
}
