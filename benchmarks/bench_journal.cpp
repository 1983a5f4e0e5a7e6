// What the journal of changes adds to writes, and what it keeps.

#include "Figure.h"
#include "Timing.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

#include <chrono>
#include <cstdlib>
#include <functional>
#include <utility>

#include <malloc.h>

namespace {

using meridane::Journal;
using meridane::JournalStep;

constexpr int rounds = 15;
constexpr int shortList = 10;
constexpr int longList = 1'000'000;

/// A scene of one node with a field of each class.
struct Scene {
    NxRef<NxGroup> root{new NxGroup};
    NxRef<NxFieldGallery> gallery{new NxFieldGallery};

    Scene() { root->addChild(gallery.get()); }
};

std::unique_ptr<Journal> record(NxGroup& scene)
{
    auto journal = std::make_unique<Journal>(scene);
    while (journal->run(std::chrono::hours(1))) { }
    journal->record();
    return journal;
}

void ignore(void* /*data*/, NxSensor* /*sensor*/) { }

// One step of many writes, as a long drag.
double writeWatched(bool recorded)
{
    const Scene scene;
    const auto journal = recorded ? record(*scene.root) : nullptr;
    NxFieldSensor sensor(&ignore, nullptr);
    sensor.attach(&scene.gallery->sfFloat);
    const double time = bench::seconds([&scene] {
        for (int i = 0; i < 1'000'000; ++i)
            scene.gallery->sfFloat.setValue(static_cast<float>(i));
    });
    if (journal != nullptr && journal->finishStep()->bytes() > 1024)
        std::abort(); // that is the other bar of a drag
    return time;
}

using Change = std::function<void(NxMFFloat&)>;

/// Steps of one change each at the end of the list, where the change itself costs little.
double changeRows(int rows, const std::vector<Change>& changes)
{
    const Scene scene;
    scene.gallery->mfFloat.setValues(std::vector<float>(static_cast<std::size_t>(rows), 1));
    const auto journal = record(*scene.root);
    std::vector<JournalStep> steps;
    const auto makeStep = [&](const Change& change) {
        change(scene.gallery->mfFloat);
        steps.push_back(*journal->finishStep());
    };
    for (const Change& change : changes)
        makeStep(change); // the list allocates what it needs
    return bench::seconds([&] {
        for (int i = 0; i < 2000; ++i) {
            for (const Change& change : changes)
                makeStep(change);
        }
    });
}

void measureRows(const char* name, const std::vector<Change>& changes)
{
    bench::compare(
        name, 1.5, rounds, [&changes] { return changeRows(longList, changes); },
        [&changes] { return changeRows(shortList, changes); });
}

void measureAllRows()
{
    measureRows("journal: edit a cell of 1,000,000, against 10",
        {[](NxMFFloat& list) { list.set1Value(list.getNum() - 3, list[list.getNum() - 3] + 1); }});
    measureRows("journal: add a row to 1,000,000 and delete it, against 10",
        {[](NxMFFloat& list) { list.insertSpace(list.getNum() - 1, 1); },
            [](NxMFFloat& list) { list.deleteValues(list.getNum() - 2, 1); }});
    measureRows("journal: swap two rows of 1,000,000, against 10", {[](NxMFFloat& list) {
        const float first = list[list.getNum() - 4];
        list.set1Value(list.getNum() - 4, list[list.getNum() - 1]);
        list.set1Value(list.getNum() - 1, first + 1);
    }});
}

std::size_t allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void measureMemory()
{
    constexpr int nodes = 10'000;
    constexpr int steps = 100;
    const Scene scene;
    for (int i = 0; i < nodes; ++i)
        scene.root->addChild(new NxFieldGallery);
    const auto journal = record(*scene.root);
    std::vector<JournalStep> kept;
    const std::size_t before = allocatedBytes();
    for (int step = 0; step < steps; ++step) {
        for (int i = 1; i <= nodes; ++i)
            static_cast<NxFieldGallery*>(scene.root->getChild(i))->sfFloat.setValue(static_cast<float>(step + 1));
        kept.push_back(*journal->finishStep());
    }
    constexpr double megabyte = 1 << 20;
    bench::report({"journal: memory of 1,000,000 records", "MB",
        static_cast<double>(allocatedBytes() - before) / megabyte, 0, 128});
}

} // namespace

int main()
{
    bench::compare(
        "journal: 1,000,000 writes of a watched field, against none", 1.2, rounds, [] { return writeWatched(true); },
        [] { return writeWatched(false); });
    measureAllRows();
    measureMemory();
    return 0;
}
