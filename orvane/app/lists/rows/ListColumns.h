#pragma once

#include <QList>
#include <QString>

#include <span>
#include <string>
#include <vector>

class NxMField;
class NxMFEnum;
class NxMFName;
class NxMFString;

namespace meridane {
class FieldComponents;
}

/// The columns that the values of a list have: the components of its numbers, or one column for texts and for classes
/// that the toolkit doesn't know.
class ListColumns {
public:
    enum class Kind {
        Number,
        Flag, ///< true or false
        Choice, ///< a value of an enumeration
        Text, ///< a text or a name, as it is
        Value, ///< the text form of a value of an unknown class
    };
    /// A value of an enumeration.
    struct Choice {
        QString name;
        int value = 0;
    };

    /// No columns.
    ListColumns() = default;
    /// The list must live longer.
    explicit ListColumns(NxMField& list);

    [[nodiscard]] int count() const noexcept { return m_count; }
    /// All columns of a list are of one kind.
    [[nodiscard]] Kind kind() const noexcept { return m_kind; }
    /// Whether the cells are numbers: those of the kinds Number, Flag and Choice.
    [[nodiscard]] bool isNumeric() const noexcept { return m_components != nullptr; }
    /// The title of a column, such as "x".
    [[nodiscard]] QString title(int column) const;
    /// The names by which expressions know the numbers of a row, in the order of the columns.
    [[nodiscard]] std::vector<std::string> variables() const;
    /// Whether the first three components are a colour.
    [[nodiscard]] bool isColor() const noexcept { return m_isColor; }
    /// The components of a numeric list, otherwise null.
    [[nodiscard]] const meridane::FieldComponents* components() const noexcept { return m_components; }
    /// The values of the enumeration, for the kind Choice.
    [[nodiscard]] QList<Choice> choices() const;

    /// The text of a cell as it is edited and copied; empty for a row that doesn't exist.
    [[nodiscard]] QString text(int row, int column) const;
    /// The same of a numeric list, appended in UTF-8.
    void appendNumber(std::string& text, double number) const;
    /// Why no row of the list can have that text; empty if one can, or if only writing shows it.
    [[nodiscard]] QString textRefusal(const QString& text) const;
    /// The number of a cell of a numeric list; NaN for a row that doesn't exist.
    [[nodiscard]] double number(int row, int column) const;

private:
    [[nodiscard]] QString textOf(int row) const;

    NxMField* m_list = nullptr;
    const meridane::FieldComponents* m_components = nullptr;
    const NxMFString* m_strings = nullptr;
    const NxMFName* m_names = nullptr;
    const NxMFEnum* m_enums = nullptr;
    int m_count = 0;
    Kind m_kind = Kind::Value;
    bool m_isColor = false;
    bool m_isFloat = false;
};
