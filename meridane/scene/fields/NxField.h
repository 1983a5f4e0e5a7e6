#pragma once

#include "meridane/base/types/NxTypedObject.h"
#include "meridane/scene/fields/detail/SensorList.h"

#include <cstddef>
#include <string>

class NxFieldContainer;
class NxFieldSensor;
class VbString;

namespace meridane {
class TextReader;
}

/// One named value, or list of values, of a node.
///
/// A field belongs to its container as a member and lives as long as it does. A field made with a null container stands
/// alone. Every change of the value or of the ignored flag notifies the sensors that are attached to the field and the
/// node sensors of its container. Thread of the user interface only.
class NxField : public NxTypedObject {
public:
    [[nodiscard]] static NxType getClassTypeId();
    ~NxField() override;

    /// Writes the value in its text form.
    void get(VbString& text) const;
    /// Takes the value from its text form. A text that doesn't parse whole leaves the field untouched, notifies nobody
    /// and gives false.
    bool set(const VbString& text);
    bool set(const char* text);

    /// Sets the ignored flag: whether the scene ignores the value. Observers are told if the flag changes.
    void setIgnored(int flag);
    [[nodiscard]] bool isIgnored() const noexcept { return m_ignored; }

    /// The node that owns the field, or null for a field that stands alone.
    [[nodiscard]] NxFieldContainer* getContainer() const noexcept { return m_container; }
    /// True when the value equals, to the bit, the one that a new node of the container's class has. False for a field
    /// that stands alone.
    [[nodiscard]] bool isDefault() const;

    /// True when both are of the same class and hold the same value to the bit (so a NaN is the same as itself, and
    /// 0 isn't the same as -0). The ignored flag doesn't count.
    [[nodiscard]] virtual bool isSame(const NxField& other) const = 0;
    /// Takes the value of a field of the same class and gives true. Another class, or a value that doesn't fit in
    /// memory, changes nothing and gives false.
    virtual bool copyFrom(const NxField& other) = 0;
    /// About how many bytes the value holds.
    [[nodiscard]] virtual std::size_t valueBytes() const = 0;

    /// Tells the observers that the value changed.
    void touch();

    /// How far a slice of reading got.
    enum class Progress { Done, More, Failed };

    /// Reads the value from its text form in slices of about `budget` values, behind which it can be called again
    /// with `first` false. It reads straight into the field, notifies nobody, stops behind the value, and leaves the
    /// field in an undefined state when it fails: made for a new field that nobody looks at yet. The reader tells what
    /// was expected.
    virtual Progress readText(meridane::TextReader& reader, bool first, std::size_t budget) = 0;
    /// Appends the text form in slices of about `budget` values. `position` starts at 0 and is the writer's own from
    /// then on. True when there is more to write.
    virtual bool writeText(std::string& text, std::size_t& position, std::size_t budget) const = 0;

protected:
    /// True when the other field is of the same class, so that it may be cast to it. The types of two classes that
    /// couldn't be registered are equal, though the classes aren't.
    [[nodiscard]] bool isOfSameClass(const NxField& other) const;

    /// Registers the field with the class of the container while the class is being described. The name must be a
    /// literal.
    NxField(NxFieldContainer* container, const char* name);

private:
    friend class NxFieldSensor;

    /// Takes the text's value through a new value, so that the present one survives a text that doesn't parse.
    virtual bool assignText(meridane::TextReader& reader) = 0;

    NxFieldContainer* m_container;
    meridane::SensorList<NxFieldSensor> m_sensors;
    bool m_ignored = false;
};

/// Stands first in the declaration of a field class: `NX_FIELD(NxSFFloat)`.
#define NX_FIELD(Class)                                                                                                \
public:                                                                                                                \
    [[nodiscard]] static NxType getClassTypeId();                                                                      \
    [[nodiscard]] NxType getTypeId() const override;                                                                   \
                                                                                                                       \
private:

/// Stands in a source file that includes `VbName.h`: `NX_FIELD_SOURCE(NxSFFloat, NxSField, "SFFloat")`. The class is
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
