#pragma once

namespace meridane {

/// The sensors that watch one object, in the order in which they were attached. The list is linked through
/// the sensors, so an object without sensors only has one pointer.
template <typename Sensor>
class SensorList {
public:
    SensorList() noexcept = default;
    SensorList(const SensorList&) = delete;
    SensorList& operator=(const SensorList&) = delete;
    ~SensorList() = default;

    [[nodiscard]] bool isEmpty() const noexcept { return m_first == nullptr; }

    void append(Sensor* sensor) noexcept
    {
        Sensor** place = &m_first;
        while (*place != nullptr)
            place = &(*place)->m_next;
        *place = sensor;
    }

    void remove(Sensor* sensor) noexcept
    {
        Sensor** place = &m_first;
        while (*place != sensor)
            place = &(*place)->m_next;
        *place = sensor->m_next;
        sensor->m_next = nullptr;
    }

    void notify() const
    {
        for (Sensor* sensor = m_first; sensor != nullptr; sensor = sensor->m_next)
            sensor->notify();
    }

    /// Notifies every sensor that the object is being destroyed, which detaches it.
    void dyingReference()
    {
        while (m_first != nullptr) {
            Sensor* const sensor = m_first;
            sensor->dyingReference();
            if (m_first == sensor)
                sensor->detach(); // in case an override didn't
        }
    }

private:
    Sensor* m_first = nullptr;
};

} // namespace meridane
