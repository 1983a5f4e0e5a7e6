#pragma once

#include "orvane/app/fields/cells/ValueCell.h"

/// A matrix: its translation, rotation and scale in words, or its elements; edited in a popup.
class MatrixCell final : public ValueCell {
public:
    void paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const override;
    [[nodiscard]] CellEditor* createEditor(const CellEdit& edit, QWidget* parent) const override;
};
