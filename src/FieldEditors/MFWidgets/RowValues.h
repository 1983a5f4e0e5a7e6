#pragma once

#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/SFWidgets/NumberLine.h"

#include "meridane/scene/fields/NxMField.h"

#include <QString>

#include <cstddef>
#include <type_traits>

// What the editors of lists with several components a row share.
namespace orvane {

/// The list as one of that class; null when it is none, or null itself.
template <typename List>
[[nodiscard]] List* listAs(NxMField* field)
{
    return field != nullptr && field->isOfType(List::getClassTypeId()) ? static_cast<List*>(field) : nullptr;
}

[[nodiscard]] inline bool hasRow(const NxMField& field, int row)
{
    return row >= 0 && row < field.getNum();
}

/// The value of a row, or a new one for a row that doesn't exist.
template <typename List>
[[nodiscard]] auto valueOf(const List& list, int row)
{
    using Value = std::remove_cvref_t<decltype(list[row])>;
    return hasRow(list, row) ? list[row] : Value();
}

/// Changes a row's value and writes it, then pushes the command, even if the value stays the same. The field ignores
/// the write to a row that doesn't exist. Nothing happens with a field of another class.
template <typename List, typename Change>
void changeRow(NxMField* field, int row, Change change)
{
    List* const list = listAs<List>(field);
    if (list == nullptr)
        return;
    auto value = valueOf(*list, row);
    change(value);
    list->set1Value(row, value);
    pushSetRowCommand(list, row);
}

/// Changes one component of a row's vector like that. A component that the vector doesn't have leaves it as it is.
template <typename List, typename Component>
void setComponent(NxMField* field, int row, int component, Component number)
{
    changeRow<List>(field, row, [component, number](auto& vector) {
        if (component >= 0 && component < static_cast<int>(vector.count))
            vector[static_cast<std::size_t>(component)] = number;
    });
}

/// The text of one component of a vector; empty for a row or a component that doesn't exist.
template <typename List>
[[nodiscard]] QString componentText(NxMField* field, int row, int component)
{
    const List* const list = listAs<List>(field);
    if (list == nullptr || !hasRow(*list, row))
        return {};
    const auto& vector = (*list)[row];
    if (component < 0 || component >= static_cast<int>(vector.count))
        return {};
    const auto number = vector[static_cast<std::size_t>(component)];
    if constexpr (std::is_same_v<std::remove_cv_t<decltype(number)>, float>)
        return numberText(number);
    else
        return QString::number(number);
}

/// Exchanges the values of two rows; nothing happens when one doesn't exist.
template <typename List>
void swapValues(NxMField* field, int first, int second)
{
    List* const list = listAs<List>(field);
    if (list == nullptr || !hasRow(*list, first) || !hasRow(*list, second))
        return;
    const auto value = valueOf(*list, first);
    list->set1Value(first, valueOf(*list, second));
    list->set1Value(second, value);
}

} // namespace orvane
