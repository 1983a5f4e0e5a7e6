#pragma once

#include "meridane/base/values/VbName.h"

#include <cstddef>
#include <vector>

class NxField;
class NxFieldContainer;

/// Describes the fields of one node class: their names, their places in an instance and their defaults.
///
/// It is collected from the members of one instance, which is kept because it holds the defaults. Fields are in the
/// order of declaration, those of base classes first.
class NxFieldData {
public:
    /// Makes an instance with `create` and describes it. The instance is kept. An exception of `create` is passed on to
    /// the caller, and nothing is kept.
    explicit NxFieldData(NxFieldContainer* (*create)());
    ~NxFieldData();
    NxFieldData(const NxFieldData&) = delete;
    NxFieldData& operator=(const NxFieldData&) = delete;

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

private:
    friend class NxField;
    friend class NxFieldContainer;

    struct Entry {
        VbName name;
        std::ptrdiff_t offset; // from the container to the field
        const NxFieldContainer* container; // the instance that it was collected from
    };

    /// Called by the constructors of container and fields while an instance is being described.
    static void collectContainer(const NxFieldContainer* container);
    static void collectField(const NxFieldContainer* container, const NxField* field, const char* name);

    std::vector<Entry> m_fields;
    NxFieldContainer* m_prototype = nullptr;
};
