#pragma once

#include "orvane/app/fields/values/FieldSet.h"

#include "meridane/base/types/NxType.h"
#include "meridane/scene/fields/NxFieldContainer.h"

#include <QString>

#include <optional>

/// A row of the field table: the same field of all selected nodes, or a field that the class of the node doesn't have.
///
/// What it shows is found out when it is needed, and kept until `forget`.
class FieldRow {
public:
    /// `declaringType` is the class that declares the field.
    FieldRow(FieldSet fields, QString name, NxType declaringType);
    /// A field that the class doesn't have.
    explicit FieldRow(const NxFieldContainer::UnknownField& field);

    /// Up to how many characters of a value are shown.
    static constexpr qsizetype shownCharacters = 120;

    /// Empty for a field that the class doesn't have.
    [[nodiscard]] const FieldSet& fields() const noexcept { return m_fields; }
    [[nodiscard]] NxField* first() const noexcept { return m_fields.isEmpty() ? nullptr : &m_fields.first(); }
    [[nodiscard]] const QString& name() const noexcept { return m_name; }
    [[nodiscard]] const NxType& declaringType() const noexcept { return m_declaringType; }
    /// The name of the field's class.
    [[nodiscard]] QString type() const;
    [[nodiscard]] bool isList() const;

    /// The value in one line; a dash for several values, and for a list also the number of its rows.
    [[nodiscard]] const QString& text() const;
    /// The same for a set like that of the row.
    [[nodiscard]] static QString textOf(const FieldSet& fields);
    [[nodiscard]] bool isMixed() const { return state().isMixed; }
    [[nodiscard]] bool isChanged() const { return state().isChanged; }
    [[nodiscard]] bool isIgnored() const { return state().isIgnored; }
    /// The text of several values.
    [[nodiscard]] static QString mixedText();

    /// Forgets the value, which has changed.
    void forget();

private:
    struct State {
        bool isMixed = false;
        bool isChanged = false;
        bool isIgnored = false;
    };
    [[nodiscard]] State state() const;

    FieldSet m_fields;
    QString m_name;
    NxType m_declaringType;
    mutable std::optional<State> m_state; // of several fields, and of an unknown one
    mutable QString m_text; // null when it has to be made
};
