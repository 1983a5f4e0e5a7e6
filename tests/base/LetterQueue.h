#pragma once

#include "base/LetterSensor.h"

#include "meridane/base/NxDelayQueue.h"

#include <string>

/// A delay queue with three sensors that aren't scheduled yet, their protocol, and a count of the queue's wake-ups.
class LetterQueue : public NxDelayQueue {
public:
    /// Installs a wake-up hook that counts.
    void countWakeUps()
    {
        setWakeUpHook([](void* count) { ++*static_cast<int*>(count); }, &wakeUps);
    }

    std::string protocol;
    LetterSensor a{'a', protocol};
    LetterSensor b{'b', protocol};
    LetterSensor c{'c', protocol};
    int wakeUps = 0;
};
