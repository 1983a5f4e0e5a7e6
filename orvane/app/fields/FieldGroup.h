#pragma once

#include "orvane/app/fields/FieldRow.h"

#include <QSet>
#include <QString>

#include <memory>
#include <vector>

/// Rows of the field table below one heading: the fields of one class, the favourites, or unknown fields.
struct FieldGroup {
    enum class Kind { Favorites, Class, Unknown };

    Kind kind = Kind::Class;
    QString key; ///< by which the group is remembered: the name of the class, or a mark that is none
    std::vector<FieldRow*> rows;
    std::vector<FieldRow*> shown; ///< those of them that pass the filter

    /// In the language of the moment.
    [[nodiscard]] QString title() const;
    /// How many of the rows have a value that isn't the default.
    [[nodiscard]] int changedCount() const;
};

namespace orvane {

/// The rows of the fields that all nodes have, in the order of the first node, and of its unknown fields if it is the
/// only one.
[[nodiscard]] std::vector<std::unique_ptr<FieldRow>> fieldRows(const std::shared_ptr<const FieldSet::Nodes>& nodes);

/// By what a field is remembered as a favourite: the class that declares it, and its name.
[[nodiscard]] QString favoriteKey(const FieldRow& row);

/// Groups the rows: the favourites first, then class by class, the most derived one first.
[[nodiscard]] std::vector<std::unique_ptr<FieldGroup>> fieldGroups(
    const std::vector<std::unique_ptr<FieldRow>>& rows, const QSet<QString>& favorites);

} // namespace orvane
