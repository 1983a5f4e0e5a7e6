#pragma once

#include "meridane/scene/fields/NxSField.h"
#include "meridane/scene/text/ValueText.h"

#include <type_traits>

namespace meridane {

/// The base of all fields with a single value. `Format` reads and writes the value's text.
///
/// The virtual operations are defined in SingleFieldText.h, which the source file of a field class includes to
/// instantiate them once.
template <typename Value, typename Format = ValueFormat<Value>>
class SingleField : public NxSField {
public:
    /// How a value is passed: numbers by value, all others by reference.
    using Read = std::conditional_t<std::is_arithmetic_v<Value>, Value, const Value&>;

    /// `container` may be null, for a field without a node.
    SingleField(NxFieldContainer* container, const FieldDeclaration& declaration, Read value = Value(),
        Format format = Format())
        : NxSField(container, declaration)
        , m_value(value)
        , m_format(format)
    {
    }

    /// The value; a reference is valid as long as the field. It has the value even while the field is ignored.
    [[nodiscard]] Read getValue() const noexcept { return m_value; }
    /// Sets the value and notifies the observers, even if the value is the same.
    void setValue(Read value)
    {
        recordValue();
        m_value = value;
        touch();
    }

    /// Whether the other field is of this class and its value has the same bits.
    [[nodiscard]] bool isSame(const NxField& other) const override;
    /// Copies the value of a field of this class and notifies the observers.
    bool copyFrom(const NxField& other) override;
    /// The size of the value, with the memory that it owns, in bytes.
    [[nodiscard]] std::size_t valueBytes() const override;
    /// Reads the value in one call, or in several if the slices of the reader interrupt it.
    Progress readText(TextReader& reader, bool first, std::size_t budget) override;
    /// Appends the value in one call; a long text takes several.
    bool writeText(std::string& text, std::size_t& position, std::size_t budget) const override;
    /// A record with a copy of the value.
    [[nodiscard]] std::unique_ptr<ChangeRecord> recordOfValue() override;

protected:
    /// What reads and writes the text of the value, such as the names of an enumeration.
    [[nodiscard]] const Format& format() const noexcept { return m_format; }

private:
    bool assignText(TextReader& reader) override;

    Value m_value; // first: a small one fits into the padding after the flag of the field
    [[no_unique_address]] Format m_format;
};

} // namespace meridane
