#pragma once

#include "orvane/app/fields/cells/detail/NumberCell.h"

/// A colour: a swatch that opens a popup, and the components as numbers.
class ColorCell final : public NumberCell {
public:
    void paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const override;
    [[nodiscard]] int parts(const NxField& field, const CellServices& services) const override;
    [[nodiscard]] QRect partArea(
        const QRect& area, const NxField& field, int part, const CellServices& services) const override;
    [[nodiscard]] int scrubbedComponent(const NxField& field, int part, const CellServices& services) const override;
    [[nodiscard]] CellEditor* createEditor(const CellEdit& edit, QWidget* parent) const override;
};
