// Capturing the changes of a scene for recovery: how long its slices block, and what it adds to writes.

#include "Figure.h"
#include "LargeScene.h"
#include "Timing.h"

#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/recovery/RecoveryCapture.h"
#include "meridane/scene/recovery/RecoveryFileReader.h"
#include "meridane/scene/recovery/RecoveryReplay.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <utility>
#include <vector>

namespace {

using meridane::Journal;
using meridane::RecoveryCapture;
using meridane::RecoveryDescription;
using meridane::RecoveryFileReader;
using meridane::RecoveryReplay;
using Base = RecoveryDescription::Base;

constexpr int rounds = 5;
constexpr int longList = 10'000'000;
constexpr double millisecondsPerSecond = 1e3;
constexpr double longestBlock = 8; // ms
constexpr std::chrono::milliseconds slice(2);

NxRef<NxGroup> readScene(std::string text)
{
    NxSceneReader reader(std::move(text), "scene.mrd");
    if (reader.run() != NxSceneReader::State::Done)
        std::abort();
    return reader.takeScene();
}

std::unique_ptr<Journal> record(NxGroup& scene)
{
    auto journal = std::make_unique<Journal>(scene);
    while (journal->run(std::chrono::hours(1))) { }
    journal->record();
    return journal;
}

RecoveryDescription description(Base base)
{
    RecoveryDescription description;
    description.base = base;
    description.fileName = "/scene.mrd";
    return description;
}

/// Captures all that is dirty. Returns the processor time of the longest slice in seconds, and appends the bytes.
double captureAll(RecoveryCapture& capture, std::string& file)
{
    double longest = 0;
    bool more = true;
    while (more) {
        std::string bytes; // which the application hands over to be written
        const double start = bench::processorTime();
        more = capture.run(bytes, slice);
        longest = std::max(longest, bench::processorTime() - start);
        file += bytes;
    }
    return longest;
}

void reportLongest(const char* name, const std::function<double()>& longestSlice)
{
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(longestSlice() * millisecondsPerSecond);
    bench::report({name, "ms", bench::median(std::move(times)), 0, longestBlock});
}

void measureSnapshot()
{
    const std::string text = bench::sceneText(bench::largeSceneNodes);
    const NxRef<NxGroup> scene = readScene(text);
    const auto journal = record(*scene);
    reportLongest("recovery: longest slice, snapshot of 1,000,000 nodes", [&] {
        RecoveryCapture capture(*journal, description(Base::Nothing));
        std::string file;
        return captureAll(capture, file);
    });
    reportLongest("recovery: longest slice, first capture of a file of 1,000,000 nodes", [&] {
        RecoveryCapture capture(*journal, description(Base::File));
        std::string file;
        return captureAll(capture, file);
    });

    std::string snapshot;
    bench::compare(
        "recovery: snapshot of 1,000,000 nodes, against their text", 1.5, rounds,
        [&] {
            snapshot.clear();
            RecoveryCapture capture(*journal, description(Base::Nothing));
            return bench::seconds([&] { captureAll(capture, snapshot); });
        },
        [&] { return bench::seconds([&] { static_cast<void>(NxSceneWriter::toText(scene.get())); }); });
    bench::compare(
        "recovery: replay of 1,000,000 nodes, against reading their text", 1.5, rounds,
        [&] {
            NxRef<NxGroup> recovered;
            return bench::seconds([&] {
                RecoveryFileReader file(snapshot);
                if (file.run() != RecoveryFileReader::State::Done)
                    std::abort();
                RecoveryReplay replay(file, nullptr);
                if (replay.run() != RecoveryReplay::State::Done)
                    std::abort();
                recovered = replay.takeScene();
            });
        },
        [&] {
            NxRef<NxGroup> read;
            return bench::seconds([&] { read = readScene(text); });
        });
}

/// A scene of one node with a field of each class, and its capture.
struct CapturedScene {
    NxRef<NxGroup> root{new NxGroup};
    NxRef<NxFieldGallery> gallery{new NxFieldGallery};
    std::unique_ptr<Journal> journal;
    std::unique_ptr<RecoveryCapture> capture;
    std::string file;

    explicit CapturedScene(bool isCaptured = true)
    {
        root->addChild(gallery.get());
        journal = record(*root);
        if (!isCaptured)
            return;
        capture = std::make_unique<RecoveryCapture>(*journal, description(Base::File));
        captureAll(*capture, file);
    }
};

void measureLongList()
{
    reportLongest("recovery: longest slice, list of 10,000,000 rows", [] {
        CapturedScene scene;
        scene.gallery->mfFloat.setValues(std::vector<float>(longList, 2));
        return captureAll(*scene.capture, scene.file);
    });
    reportLongest("recovery: longest slice, 100,000 single rows of a list of 10,000,000", [] {
        CapturedScene scene;
        scene.gallery->mfFloat.setValues(std::vector<float>(longList, 2));
        captureAll(*scene.capture, scene.file);
        for (int row = 0; row < longList; row += 100)
            scene.gallery->mfFloat.set1Value(row, 3);
        return captureAll(*scene.capture, scene.file);
    });
}

void ignore(void* /*data*/, NxSensor* /*sensor*/) { }

// A drag of many writes, which is captured now and then.
double writeWatched(bool isCaptured)
{
    constexpr int writes = 1'000'000;
    constexpr int writesPerCapture = 100'000;
    CapturedScene scene(isCaptured);
    NxFieldSensor sensor(&ignore, nullptr);
    sensor.attach(&scene.gallery->sfFloat);
    const double time = bench::seconds([&scene] {
        for (int i = 0; i < writes; ++i) {
            scene.gallery->sfFloat.setValue(static_cast<float>(i));
            if (scene.capture != nullptr && i % writesPerCapture == 0)
                scene.capture->run(scene.file, slice);
        }
    });
    if (scene.journal->finishStep()->bytes() > 1024)
        std::abort(); // the step stays as small as without a capture
    return time;
}

} // namespace

int main()
{
    measureSnapshot();
    measureLongList();
    bench::compare(
        "recovery: 1,000,000 captured writes of a watched field, against the journal", 1.1, 15,
        [] { return writeWatched(true); }, [] { return writeWatched(false); });
    return 0;
}
