#pragma once

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/components/detail/ComponentParts.h"

#include <algorithm>
#include <array>
#include <limits>

namespace meridane {

/// What single values and lists of a type of value share.
template <typename Value>
class ValueComponents : public FieldComponents {
public:
    using Parts = ComponentParts<Value>;
    using Conversion = ComponentNumber<typename Parts::Part>;

    explicit ValueComponents(std::span<const std::string_view> names) noexcept
        : m_names(names)
    {
    }

    [[nodiscard]] int count() const noexcept final { return static_cast<int>(Parts::count); }
    [[nodiscard]] std::string_view name(int component) const noexcept final
    {
        const auto index = static_cast<std::size_t>(component);
        return component >= 0 && index < m_names.size() ? m_names[index] : std::string_view();
    }
    [[nodiscard]] Number number() const noexcept final { return numberOf<typename Parts::Part>(); }
    [[nodiscard]] double lowest() const noexcept final { return Conversion::lowest; }
    [[nodiscard]] double highest() const noexcept final { return Conversion::highest; }

protected:
    ~ValueComponents() = default;

    [[nodiscard]] static bool has(int component) noexcept
    {
        return component >= 0 && static_cast<std::size_t>(component) < Parts::count;
    }
    [[nodiscard]] static double part(const Value& value, int component) noexcept
    {
        return Conversion::to(Parts::get(value, static_cast<std::size_t>(component)));
    }
    /// The value with another number in one component, which must fit.
    [[nodiscard]] static Value withPart(const Value& value, int component, double number) noexcept
    {
        std::array<typename Parts::Part, Parts::count> parts;
        for (std::size_t i = 0; i < Parts::count; ++i)
            parts[i] = Parts::get(value, i);
        parts[static_cast<std::size_t>(component)] = Conversion::from(number);
        return Parts::join(parts);
    }
    /// Puts a value together. Returns false if there aren't as many numbers as components, or one of them doesn't fit.
    [[nodiscard]] static bool join(std::span<const double> numbers, Value& value) noexcept
    {
        if (numbers.size() != Parts::count || !std::ranges::all_of(numbers, &Conversion::fits))
            return false;
        std::array<typename Parts::Part, Parts::count> parts;
        std::ranges::transform(numbers, parts.begin(), &Conversion::from);
        value = Parts::join(parts);
        return true;
    }

private:
    std::span<const std::string_view> m_names;
};

} // namespace meridane
