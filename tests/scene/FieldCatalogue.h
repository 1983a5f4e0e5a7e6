#pragma once

#include "RandomValues.h"

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxRef.h"

#include <QMetaType>

#include <string>
#include <vector>

class NxEnumeration;
class NxField;

/// One entry a field class: how to make, fill, feed and spoil a field of it.
struct FieldKind {
    /// A text that the class takes, and the form in which the field gives it back.
    struct Accepted {
        std::string text;
        std::string canonical;
    };

    NxType type;
    /// A node with one field of the class, named "field".
    NxRef<NxFieldContainer> (*makeNode)();
    /// Sets a random value, with one notification.
    void (*setRandom)(NxField& field, RandomValues& random);
    std::vector<Accepted> accepted;
    std::vector<std::string> refused;
};
Q_DECLARE_METATYPE(const FieldKind*)

/// All field classes of the toolkit.
const std::vector<FieldKind>& fieldCatalogue();
/// The field of a node that `FieldKind::makeNode` made.
NxField& fieldOf(const NxRef<NxFieldContainer>& node);
/// Adds a column "kind" and a row for each class.
void addFieldKindRows();

/// What the catalogue's enumeration fields know: None 0, Filled 1, Lines 2, Points 4, Both 3, Low -5.
const NxEnumeration& catalogueEnumeration();
