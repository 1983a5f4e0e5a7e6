#pragma once

#include "meridane/base/types/NxTypedObject.h"
#include "meridane/scene/fields/ChangeRecorder.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/detail/SensorList.h"

#include <cstddef>
#include <memory>
#include <string>

/// \file
/// The base of field classes, and the macros with which a class is declared and registered.

class NxFieldContainer;
class NxFieldSensor;
class VbString;

namespace meridane {
class ChangeRecord;
class IgnoredRecord;
template <typename Value>
class ValueRecord;
class TextReader;
} // namespace meridane

/// One named value, or list of values, of a node.
///
/// A field belongs to its container as a member and lives as long as it does. A field made with a null container has
/// no node. Every change of the value or of the ignored flag notifies the sensors that are attached to the field and
/// the node sensors of its container. Thread of the user interface only.
class NxField : public NxTypedObject {
public:
    /// The run-time type of all fields, an abstract one.
    [[nodiscard]] static NxType getClassTypeId();
    ~NxField() override;

    /// Writes the value in its text form.
    void get(VbString& text) const;
    /// Sets the value from its text form. A text that doesn't parse as a whole changes nothing, notifies nobody and
    /// returns false.
    bool set(const VbString& text);
    /// The same for NUL-terminated UTF-8.
    bool set(const char* text);

    /// Sets the ignored flag: whether the scene ignores the value. Observers are notified if the flag changes.
    void setIgnored(int flag);
    /// Whether the scene ignores the value, so that the default applies.
    [[nodiscard]] bool isIgnored() const noexcept { return m_ignored; }

    /// The node that owns the field, or null.
    [[nodiscard]] NxFieldContainer* getContainer() const noexcept { return m_container; }
    /// Whether all bits of the value equal those of a new node of the container's class. False for a field without a
    /// node.
    [[nodiscard]] bool isDefault() const;

    /// Whether both are of the same class and all bits of the values are equal, so that a NaN equals itself and 0
    /// doesn't equal -0. The ignored flag isn't compared.
    [[nodiscard]] virtual bool isSame(const NxField& other) const = 0;
    /// Copies the value of a field of the same class and returns true. Changes nothing and returns false for another
    /// class, or if the value doesn't fit in memory.
    virtual bool copyFrom(const NxField& other) = 0;
    /// The approximate size of the value in bytes.
    [[nodiscard]] virtual std::size_t valueBytes() const = 0;

    /// Notifies the observers that the value changed.
    void touch();

    /// A record with a copy of the present value, which keeps the node alive. The field must have one.
    [[nodiscard]] virtual std::unique_ptr<meridane::ChangeRecord> recordOfValue() = 0;

    /// Writes the value of a record that `recordOfValue` has made of this field. The record holds the value before
    /// then, so that a second call takes the first one back. Observers are notified. Returns false and changes nothing
    /// if the write doesn't fit in memory, which is reported.
    bool exchangeValue(meridane::ChangeRecord& record);

    /// The result of a slice of reading.
    enum class Progress { Done, More, Failed };

    /// Reads the value from its text form in slices of about `budget` values; it is called again with `first` false. It
    /// reads directly into the field, notifies nobody and stops after the value. If it fails, the value is undefined,
    /// so it is meant for a new field without observers. The reader has the message of the failure.
    virtual Progress readText(meridane::TextReader& reader, bool first, std::size_t budget) = 0;
    /// Appends the text form in slices of about `budget` values. `position` starts at 0 and is then changed only by
    /// this function. Returns true if there is more to write.
    virtual bool writeText(std::string& text, std::size_t& position, std::size_t budget) const = 0;

protected:
    /// Reports the value to the attached recorder if it follows the node. Every write calls it directly before it
    /// changes the value; further writes within a step of the recorder report nothing. May throw `std::bad_alloc`, then
    /// the value must not be changed.
    void recordValue()
    {
        if (meridane::ChangeRecorder::attached() != nullptr && !m_isRecorded) [[unlikely]]
            makeRecord();
    }
    /// The attached recorder if the next write needs a record, otherwise null. For classes that record less than the
    /// whole value.
    [[nodiscard]] meridane::ChangeRecorder* recorder() const;
    /// Notes that the recorder has the whole value, so that the further writes of the step need no record.
    void noteRecorded() noexcept { m_isRecorded = true; }

    /// Whether the other field is of the same class, so that it may be cast to it. The types of two classes that
    /// couldn't be registered are equal, though the classes aren't.
    [[nodiscard]] bool isOfSameClass(const NxField& other) const;

    /// Registers the field with the class of the container while the class is being described.
    NxField(NxFieldContainer* container, const meridane::FieldDeclaration& declaration)
        : m_container(container)
    {
        // Inline, and with the declaration passed as a copy, so that the compiler makes it in this branch only.
        if (NxFieldData::isCollecting()) [[unlikely]]
            NxFieldData::collectField(container, this, declaration);
    }

private:
    friend class NxFieldSensor;
    friend class meridane::ChangeRecorder;
    friend class meridane::IgnoredRecord;
    template <typename Value>
    friend class meridane::ValueRecord;

    void makeRecord();

    /// Reads the text into a new value first, so that the present one is kept if the text doesn't parse.
    virtual bool assignText(meridane::TextReader& reader) = 0;

    NxFieldContainer* m_container;
    meridane::SensorList<NxFieldSensor> m_sensors;
    bool m_ignored = false;
    bool m_isRecorded = false; // the recorder has the whole value from before the present step
    bool m_isIgnoredRecorded = false; // and the flag
};

/// The first line in the declaration of a field class: `NX_FIELD(NxSFFloat)`.
#define NX_FIELD(Class)                                                                                                \
public:                                                                                                                \
    [[nodiscard]] static NxType getClassTypeId();                                                                      \
    [[nodiscard]] NxType getTypeId() const override;                                                                   \
                                                                                                                       \
private:

/// A line in a source file that includes `VbName.h`: `NX_FIELD_SOURCE(NxSFFloat, NxSField, "SFFloat")`. The class is
/// registered when the library that holds it is loaded; its instances need a container, so a type alone makes none.
#define NX_FIELD_SOURCE(Class, Parent, name)                                                                           \
    NxType Class::getClassTypeId()                                                                                     \
    {                                                                                                                  \
        static const NxType type = NxType::registerClass(name, Parent::getClassTypeId(), nullptr);                     \
        return type;                                                                                                   \
    }                                                                                                                  \
    NxType Class::getTypeId() const                                                                                    \
    {                                                                                                                  \
        return getClassTypeId();                                                                                       \
    }                                                                                                                  \
    namespace {                                                                                                        \
    [[maybe_unused]] const NxType registered##Class = Class::getClassTypeId();                                         \
    }
