#pragma once

#include "orvane/app/fields/editors/CellEdit.h"
#include "orvane/app/fields/editors/NumberEditor.h"
#include "orvane/app/fields/values/FieldSet.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/input/NumberLimits.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRect>

#include <optional>

namespace meridane {
class Query;
}

class CellEditor;
class CellServices;
class NxField;
class QPainter;
class QWidget;

/// A cell as it is painted.
struct CellPaint {
    QRect area; ///< of the value, without margins
    QFont font;
    QPalette palette;
    QColor text; ///< of the value
    QColor background; ///< behind it
    bool isMixed = false; ///< whether the values of several nodes differ
    bool isEnabled = true;
    QWidget* view = nullptr; ///< whose style and screen are used
    CellServices* services = nullptr;
    const meridane::Query* query = nullptr; ///< whose words are highlighted; null for none
};

/// A number that a drag changes.
struct ScrubbedNumber {
    double value = 0;
    orvane::NumberLimits limits;
    FieldWriter::MoverOf moverOf;
};

/// How the values of some field classes are shown and edited in a cell of a table. There is one object for each kind of
/// value, see `orvane::cellOf`; it has no state. Thread of the user interface only.
class ValueCell {
public:
    ValueCell() = default;
    ValueCell(const ValueCell&) = delete;
    ValueCell& operator=(const ValueCell&) = delete;
    virtual ~ValueCell() = default;

    /// Paints the value. The painter's state needn't be restored.
    virtual void paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const = 0;

    /// The number of parts that are edited one after another.
    [[nodiscard]] virtual int parts(const NxField& field, const CellServices& services) const;
    /// The place of a part in that of the value.
    [[nodiscard]] virtual QRect partArea(
        const QRect& area, const NxField& field, int part, const CellServices& services) const;
    /// The place of the editor of a part: without what stays in sight beside it.
    [[nodiscard]] virtual QRect editorArea(
        const QRect& area, const NxField& field, int part, const CellServices& services, const QFont& font) const;
    /// The part at a position; -1 for none.
    [[nodiscard]] int partAt(
        const QRect& area, const NxField& field, const QPoint& position, const CellServices& services) const;

    /// The component whose letter is beside that part, and is dragged to change the number; -1 for none. The name of
    /// the field counts as that of the only part.
    [[nodiscard]] virtual int scrubbedComponent(const NxField& field, int part, const CellServices& services) const;
    /// The number that such a drag changes: the component, unless the part shows another one.
    [[nodiscard]] virtual ScrubbedNumber scrubbedNumber(
        const NxField& field, int part, const CellServices& services) const;

    /// The number that a part shows; nothing for a part that shows something else.
    [[nodiscard]] virtual std::optional<FieldNumber> number(
        const NxField& field, int part, const CellServices& services) const;

    /// A click on the value. True if it was all that was wanted; otherwise an editor opens.
    virtual bool click(const CellEdit& edit, const QRect& area, const QPoint& position) const;

    /// Whether files may be dropped on the cell.
    [[nodiscard]] virtual bool takesFiles() const { return false; }
    /// Writes the name of a file that was dropped.
    virtual void dropFile(const CellEdit& edit, const QString& fileName) const;

    /// What a tool tip says beside the facts of the field, such as that a file is missing; empty for nothing.
    [[nodiscard]] virtual QString toolTip(const FieldSet& fields, const CellServices& services) const;

    /// Makes the editor, a child of `parent`; null if values of this kind aren't edited.
    [[nodiscard]] virtual CellEditor* createEditor(const CellEdit& edit, QWidget* parent) const = 0;
};
