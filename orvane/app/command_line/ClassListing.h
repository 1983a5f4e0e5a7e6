#pragma once

#include "orvane/app/base/Result.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QStringList>

#include <vector>

class QTextStream;

/// Prints what is declared of node classes: what they are, and of each field type, default, unit, range and
/// description.
class ClassListing {
public:
    /// Of the classes of those names, or of all in the order of their names if there are none. Fails for a name that no
    /// class has, with the names that it may have meant.
    [[nodiscard]] static orvane::Result<ClassListing> of(const QStringList& names);

    /// A paragraph for each class, with a line for each field.
    void print(QTextStream& output) const;
    /// One JSON object, a line for each class.
    void printJson(QTextStream& output) const;

private:
    /// An instance of each class.
    std::vector<NxRef<NxNode>> m_nodes;
};
