#pragma once

#include "orvane/app/input/NumberLimits.h"

#include <QList>

#include <optional>

class NxField;
class OrvServices;
class QLineEdit;
class QTableView;
class QWidget;

/// A line for a number in an editor of a plug-in, as the application sees it from outside: what it shows and takes.
/// Valid as long as the line shows the same field.
class EditorLine {
public:
    /// Nothing if the line isn't one for a number: it is outside of the docks, read-only, or for a text. `before` is
    /// what it showed before the user typed into it.
    [[nodiscard]] static std::optional<EditorLine> of(QLineEdit* line, const QString& before);

    [[nodiscard]] QLineEdit* line() const noexcept { return m_line; }
    /// The table whose cell it edits; null for a line outside of tables.
    [[nodiscard]] QTableView* table() const noexcept { return m_table; }
    /// Which numbers it takes: those that its validator, its spin box and the type of the field take.
    [[nodiscard]] const orvane::NumberLimits& limits() const noexcept { return m_limits; }
    /// The number that it shows with that text, with all digits that the field has; NaN if the text is no number.
    [[nodiscard]] double valueOf(const QString& text) const;
    /// Whether the text can become a number by typing on, so that the editor may have it.
    [[nodiscard]] bool takesBeginning(const QString& text) const;
    /// Whether the text is a number that the editor reads at Return.
    [[nodiscard]] bool takes(const QString& text) const;
    /// A text for the number that the validator of the line takes: the number as it is, or without a decimal sign,
    /// since validators limit the decimals. Empty if there is none.
    [[nodiscard]] static QString acceptableText(const QLineEdit* line, const QString& number);
    /// The text of the C locale by which the editor reads exactly that number; empty if it takes no such text.
    [[nodiscard]] QString textFor(double number) const;

    /// Whether its editor waits for Return, since the numbers belong together: that of a rotation.
    [[nodiscard]] bool waitsForReturn() const;
    /// Whether it is a part of a cell's editor, such as a slider with a line.
    [[nodiscard]] bool isPartOfCell() const;
    /// Writes the number to the field itself. False if the place in the field isn't known.
    [[nodiscard]] bool write(OrvServices& services, double number) const;
    /// The number that the field has in the place of the line; NaN if that isn't known.
    [[nodiscard]] double present() const;
    /// The field, if its values are numbers; else null.
    [[nodiscard]] NxField* field() const noexcept { return m_field; }
    /// The row of the list that it shows; -1 if that isn't known.
    [[nodiscard]] int row() const noexcept { return m_place.row; }

    /// Gives the line of a cell the number of its cell, with all digits. The lines of some tables open with the text of
    /// another cell, and write it when they are closed.
    void showOwnValue() const;
    /// Whether it is the line of a cell in a table whose first column shows rows as a whole.
    [[nodiscard]] bool isBesideWhole() const noexcept { return m_isShifted; }
    /// Gives the other lines of the editor, as far as they show numbers rounded to six digits, all digits that their
    /// numbers have. Most editors write all their lines when one is changed.
    void refineOthers() const;

private:
    struct Place {
        int row = -1;
        int component = -1; // -1: not known
    };

    explicit EditorLine(QLineEdit* line)
        : m_line(line)
    {
    }

    void findPlace(const QWidget* frame, const NxField* field);
    void findLimits(const NxField* field);
    [[nodiscard]] static QList<QLineEdit*> linesIn(const QWidget* frame);
    [[nodiscard]] bool takesWithoutValidator(const QString& text) const;

    QLineEdit* m_line;
    QTableView* m_table = nullptr;
    NxField* m_field = nullptr; // null unless its values are numbers
    Place m_place;
    bool m_isShifted = false;
    QList<QLineEdit*> m_group; // of the components, in their order; empty if they aren't known
    orvane::NumberLimits m_limits;
};
