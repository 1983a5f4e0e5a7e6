#pragma once

#include "meridane/base/NxDelayQueueSensor.h"

#include <functional>
#include <string>

/// A sensor that adds its letter to a protocol when called, and then does what `also` says.
class LetterSensor : public NxDelayQueueSensor {
public:
    LetterSensor(char letter, std::string& protocol, int priority = defaultPriority)
        : NxDelayQueueSensor(call, this)
        , m_letter(letter)
        , m_protocol(protocol)
    {
        setPriority(priority);
    }

    [[nodiscard]] int isIdleOnly() const override { return idleOnly ? 1 : 0; }

    std::function<void()> also;
    bool idleOnly = false;

private:
    static void call(void* data, NxSensor*)
    {
        auto* const self = static_cast<LetterSensor*>(data);
        self->m_protocol += self->m_letter;
        const std::function<void()> copy = self->also; // it may delete the sensor
        if (copy)
            copy();
    }

    char m_letter;
    std::string& m_protocol;
};
