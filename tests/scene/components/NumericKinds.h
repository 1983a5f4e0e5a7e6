#pragma once

#include "scene/FieldCatalogue.h"

#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxMField.h"

#include <QTest>

#include <string>
#include <vector>

/// What the tests of components share: the classes whose values are numbers.
namespace components {

inline bool isList(const FieldKind& kind)
{
    return kind.type.isDerivedFrom(NxMField::getClassTypeId());
}
inline std::string textOf(const NxField& field)
{
    VbString text;
    field.get(text);
    return std::string(text.view());
}

inline void addNumericKinds(bool listsOnly = false)
{
    QTest::addColumn<const FieldKind*>("kind");
    for (const FieldKind& kind : fieldCatalogue()) {
        if (meridane::FieldComponents::of(kind.type) != nullptr && (!listsOnly || isList(kind)))
            QTest::newRow(kind.type.getName().getString()) << &kind;
    }
}
/// Numbers that every type of component takes, different from each other where there are enough.
inline double smallNumber(const meridane::FieldComponents& components, std::size_t index)
{
    return components.number() == meridane::FieldComponents::Number::Flag ? static_cast<double>(index % 2)
                                                                          : static_cast<double>(index % 100);
}
/// Gives a list of that many rows, which differ; a single value is one row.
inline void fill(NxField& field, const meridane::FieldComponents& components, int rows)
{
    if (auto* const list = dynamic_cast<NxMField*>(&field)) {
        list->deleteValues(0, -1);
        list->insertSpace(0, rows);
    }
    std::vector<double> numbers(static_cast<std::size_t>(components.count()));
    std::size_t next = 1;
    for (int row = 0; row < components.rows(field); ++row) {
        for (double& number : numbers)
            number = smallNumber(components, next++);
        QVERIFY(components.setRow(field, row, numbers));
    }
}

} // namespace components
