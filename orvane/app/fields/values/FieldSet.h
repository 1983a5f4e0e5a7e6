#pragma once

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxRef.h"

#include <QMetaType>
#include <QString>

#include <memory>
#include <span>
#include <vector>

class NxField;
class NxFieldData;

/// The fields of one row of the field table: the field of one name and class in each of the selected nodes.
///
/// A set keeps its nodes alive, so that its fields exist as long as it does. Copies are cheap. Thread of the user
/// interface only.
class FieldSet {
public:
    using Nodes = std::vector<NxRef<NxFieldContainer>>;

    /// The empty set.
    FieldSet() = default;
    /// One field. A field without a node must outlive the set.
    explicit FieldSet(NxField& field);
    /// A field, and the fields like it in the other nodes. `nodes` holds the node of the field. The set is empty if one
    /// of the nodes has no such field.
    FieldSet(NxField& first, const std::shared_ptr<const Nodes>& nodes);

    [[nodiscard]] bool isEmpty() const noexcept { return m_fields == nullptr; }
    [[nodiscard]] int count() const noexcept { return isEmpty() ? 0 : static_cast<int>(m_fields->size()); }
    /// The field of the node that was selected last. The set must not be empty.
    [[nodiscard]] NxField& first() const noexcept { return *m_fields->front(); }
    /// All fields, beginning with `first`.
    [[nodiscard]] std::span<NxField* const> fields() const noexcept;
    /// What the set is called in messages, such as "arm.rotation", or "radius of 12 nodes".
    [[nodiscard]] QString name() const;

    /// Whether the values are not all the same.
    [[nodiscard]] bool isMixed() const;
    /// The same for one component of values that consist of numbers; a component that isn't there isn't mixed.
    [[nodiscard]] bool isMixed(int component) const;
    /// Whether any of the values isn't the default of its class.
    [[nodiscard]] bool isChanged() const;
    /// Whether all of the fields are ignored.
    [[nodiscard]] bool isIgnored() const;
    /// Whether some of the fields are ignored, and others aren't.
    [[nodiscard]] bool isIgnoredMixed() const;

    /// The index of the field in nodes described by `data` that can be edited together with `field`: it has the same
    /// name, class and, for an enumeration, the same choices. -1 if there is none.
    [[nodiscard]] static int indexOfLike(const NxFieldData& data, const NxField& field);

    friend bool operator==(const FieldSet& left, const FieldSet& right);

private:
    NxRef<NxFieldContainer> m_node; // of a single field
    std::shared_ptr<const Nodes> m_nodes; // of several
    std::shared_ptr<const std::vector<NxField*>> m_fields; // null for the empty set
};

Q_DECLARE_METATYPE(const FieldSet*)
