#pragma once

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxRef.h"

class NxField;

/// A spare field like a given one, in a new node that is in no scene: to try a text or a value without any observer of
/// the scene noticing.
class FieldTrial {
public:
    /// `original` must have a node.
    explicit FieldTrial(const NxField& original);

    /// The spare field, which has the default of its class; null if no node of the class can be made.
    [[nodiscard]] NxField* field() const noexcept { return m_field; }

private:
    NxRef<NxFieldContainer> m_node;
    NxField* m_field = nullptr;
};
