#pragma once

#include "orvane/app/fields/editors/NumberEditor.h"

#include <QPersistentModelIndex>
#include <QRect>
#include <QString>

#include <optional>

class CellServices;
class FieldSet;
class FieldTableModel;
class FieldTableView;
class ValueDelegate;

/// A cell of the field table, or a part of its value, as people meet it who can't see it: what it is called, what it
/// says, and what can be done with it. It stays usable when its row has gone, and is empty then. Thread of the user
/// interface only.
class FieldPart {
public:
    enum class Kind {
        Group, ///< the row of a group, which folds
        Label, ///< a text that isn't edited in place: names, types, marks and lists
        Number,
        Flag,
        Choice,
        Text, ///< a value that is edited as a text
        Opener, ///< opens an editor for the whole value, beside other parts
        Several, ///< a value of several parts
    };
    /// Instead of the number of a part.
    static constexpr int whole = -1;

    /// The view lives longer.
    FieldPart(FieldTableView& view, const QModelIndex& index, int part = whole);

    [[nodiscard]] FieldTableView& view() const noexcept { return m_view; }
    [[nodiscard]] const QPersistentModelIndex& index() const noexcept { return m_index; }
    [[nodiscard]] int part() const noexcept { return m_part; }
    [[nodiscard]] bool isValid() const noexcept { return m_index.isValid(); }

    [[nodiscard]] Kind kind() const;
    /// The number of parts of the whole; 0 unless it has several.
    [[nodiscard]] int partCount() const;
    /// Such as "rotation x".
    [[nodiscard]] QString name() const;
    /// The value, such as "0.5", "mixed" or "#cc331a, dark red".
    [[nodiscard]] QString value() const;
    /// What the field is for, and what is unusual about its value.
    [[nodiscard]] QString description() const;
    /// In pixels of the screen.
    [[nodiscard]] QRect area() const;
    [[nodiscard]] Qt::CheckState checkState() const;

    /// The number of a part, with its limits; nothing for others.
    [[nodiscard]] std::optional<FieldNumber> number() const;
    /// The number of the field that was selected last; nothing for other parts.
    [[nodiscard]] std::optional<double> presentNumber() const;
    /// Writes it as one step. A message beside the table says why a number isn't taken.
    void setNumber(double value);
    /// Changes the number of each field by so many steps of the arrow keys, as one step.
    void step(int count);
    /// Writes the value of the whole from its text form, as one step.
    void setText(const QString& text);
    /// Does what Return does on the part: folds a group, changes a flag, opens an editor.
    void activate();

private:
    [[nodiscard]] const FieldTableModel& model() const;
    [[nodiscard]] ValueDelegate* delegate() const;
    /// Null where no value is shown; those that are pending in a deferred edit.
    [[nodiscard]] const FieldSet* fields() const;
    [[nodiscard]] bool isMixed() const;
    [[nodiscard]] int shownPart() const;
    [[nodiscard]] QString rangeWarning() const;
    void refuse(const QString& why);

    FieldTableView& m_view;
    QPersistentModelIndex m_index;
    int m_part;
};
