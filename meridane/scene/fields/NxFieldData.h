#pragma once

#include "meridane/base/types/NxType.h"
#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/FieldDeclaration.h"

#include <cstddef>
#include <string_view>
#include <vector>

class NxField;
class NxFieldContainer;

/// Describes one node class and its fields: their names, their places in an instance, their defaults and their facts.
///
/// It is collected from the members of one instance, which is kept because it holds the defaults. Fields are in the
/// order of declaration, those of base classes first.
class NxFieldData {
public:
    /// Makes an instance with `create` and describes it. The instance is kept. An exception of `create` is passed on to
    /// the caller, and nothing is kept. `description` is what the class is, a literal of one sentence with a full stop.
    explicit NxFieldData(NxFieldContainer* (*create)(), std::string_view description = {});
    ~NxFieldData();
    NxFieldData(const NxFieldData&) = delete;
    NxFieldData& operator=(const NxFieldData&) = delete;

    /// The number of fields, those of base classes included.
    [[nodiscard]] int getNumFields() const noexcept { return static_cast<int>(m_fields.size()); }
    /// The position of the field in the container, or -1 when it is none of its fields.
    [[nodiscard]] int getIndex(const NxFieldContainer* container, const NxField* field) const;
    /// The position of the field of that name, or -1.
    [[nodiscard]] int getIndex(const VbName& name) const;
    /// The field at that position of that container, an instance of the class; null for a position out of range.
    [[nodiscard]] NxField* getField(const NxFieldContainer* container, int index) const;
    /// The name of the field at that position; the empty name for a position out of range.
    [[nodiscard]] VbName getFieldName(int index) const;
    /// The field at that position in the kept instance, which holds the default; null for a position out of range.
    [[nodiscard]] const NxField* getDefault(int index) const;
    /// What the class declares of the field at that position; empty facts for a position out of range, and for a field
    /// that was declared by its name alone.
    [[nodiscard]] const NxFieldFacts& getFacts(int index) const;
    /// The class that declares the field at that position, which may be a base class of the described one; the bad type
    /// for a position out of range.
    [[nodiscard]] NxType getDeclaringType(int index) const;
    /// What the class is, in one sentence; empty if it doesn't say.
    [[nodiscard]] std::string_view getDescription() const noexcept { return m_description; }

private:
    friend class NxField;
    friend class NxFieldContainer;

    class Collecting;

    struct Entry {
        VbName name;
        std::ptrdiff_t offset; // from the container to the field
        const NxFieldContainer* container; // the instance that it was collected from
        NxType declaringType;
        NxFieldFacts facts;
    };

    /// The description that is being collected on this thread; collections may be nested. The library is loaded when
    /// the program starts, so its thread-local variables are accessed without a call. Every constructor of a field
    /// reads this one.
    [[gnu::tls_model("initial-exec")]] static constinit thread_local NxFieldData* s_collector;

    [[nodiscard]] static bool isCollecting() noexcept { return s_collector != nullptr; }

    /// Called by the constructors of container and fields while an instance is being described.
    static void collectContainer(const NxFieldContainer* container);
    static void collectField(
        const NxFieldContainer* container, const NxField* field, meridane::FieldDeclaration declaration);

    std::vector<Entry> m_fields;
    std::string_view m_description;
    NxFieldContainer* m_prototype = nullptr;
};

namespace meridane {

/// What the class of the field's node declares of it; empty facts for a field without a node.
[[nodiscard]] const NxFieldFacts& factsOf(const NxField& field);

} // namespace meridane
