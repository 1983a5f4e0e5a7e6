// Going back through the undo history with the journal, against the commands' own undos.

#include "Timing.h"
#include "extender/SetValueCommand.h"

#include "orvane/extender/detail/OrvHistory.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/fields/NxNodeSensor.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr int steps = 10'000;

void ignore(void* /*data*/, NxSensor* /*sensor*/) { }

double goBack(bool recorded)
{
    const NxRef<NxGroup> scene(new NxGroup);
    const NxRef<NxFieldGallery> gallery(new NxFieldGallery);
    scene->addChild(gallery.get());
    meridane::Journal journal(*scene);
    while (journal.run(std::chrono::hours(1))) { }
    journal.record();
    OrvHistory history;
    history.setJournal(recorded ? &journal : nullptr);
    // As the tool observes what is selected: by a sensor on each field of the node, and one on the node.
    std::vector<std::unique_ptr<NxFieldSensor>> sensors;
    for (NxField* field : gallery->getFields()) {
        sensors.push_back(std::make_unique<NxFieldSensor>(&ignore, nullptr));
        sensors.back()->attach(field);
    }
    NxNodeSensor nodeSensor(&ignore, nullptr);
    nodeSensor.attach(gallery.get());
    NxField* const fields[] = {&gallery->sfFloat, &gallery->sfVec3f, &gallery->sfString};
    for (int i = 0; i < steps; ++i) {
        const std::string number = std::to_string(i) + ".5";
        const std::string texts[] = {number, number + " 1 2", '"' + number + '"'};
        // As the editors do: the field is written first.
        auto command = std::make_unique<SetValueCommand>(*fields[i % 3]);
        fields[i % 3]->set(VbString(texts[i % 3]));
        history.push(std::move(command), {i, fields[i % 3], gallery.get(), gallery.get()});
        history.finishStep(); // as at the end of each action
    }
    return bench::seconds([&history] {
        while (history.canUndo()) {
            history.undo();
            NxDelayQueue::getDefault().process();
        }
    });
}

} // namespace

int main()
{
    bench::compare(
        "history: from the newest of 10,000 steps to the oldest", 2, 15, [] { return goBack(true); },
        [] { return goBack(false); });
    return 0;
}
