#pragma once

#include "orvane/app/fields/cells/ValueCell.h"

/// A set of bits, changed in a menu of check boxes. Bits without a name are kept, and listed where they are set.
class MaskCell final : public ValueCell {
public:
    void paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const override;
    [[nodiscard]] CellEditor* createEditor(const CellEdit& edit, QWidget* parent) const override;
};
