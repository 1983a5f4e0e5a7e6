#pragma once

#include "orvane/app/fields/cells/ValueCell.h"
#include "orvane/app/input/NumberLimits.h"
#include "orvane/app/look/Look.h"

/// A number, or the components of a vector, box or plane side by side, each with its letter.
class NumberCell : public ValueCell {
public:
    void paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const override;
    [[nodiscard]] int parts(const NxField& field, const CellServices& services) const override;
    [[nodiscard]] QRect partArea(
        const QRect& area, const NxField& field, int part, const CellServices& services) const override;
    [[nodiscard]] QRect editorArea(const QRect& area, const NxField& field, int part, const CellServices& services,
        const QFont& font) const override;
    [[nodiscard]] int scrubbedComponent(const NxField& field, int part, const CellServices& services) const override;
    [[nodiscard]] std::optional<FieldNumber> number(
        const NxField& field, int part, const CellServices& services) const override;
    [[nodiscard]] CellEditor* createEditor(const CellEdit& edit, QWidget* parent) const override;

protected:
    /// An editor for a component of the field; null if it has vanished.
    [[nodiscard]] static CellEditor* createNumberEditor(const CellEdit& edit, int component, QWidget* parent);
};

namespace orvane {

/// One of `count` equal parts of an area side by side.
[[nodiscard]] QRect columnOf(const QRect& area, int count, int column);
/// How the number of a component is painted.
struct PaintedNumber {
    QString letter;
    look::Tint tint;
    QString text; ///< empty for numbers that differ
    NumberLimits::Range range = NumberLimits::Range::Usual;
};
void paintNumber(QPainter& painter, const CellPaint& cell, const QRect& area, const PaintedNumber& number);

} // namespace orvane
