#pragma once

#include "orvane/app/fields/cells/ValueCell.h"

/// Any single value as its text form, in one line: for names, and for the classes that have no kind of their own.
class LineCell final : public ValueCell {
public:
    void paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const override;
    [[nodiscard]] CellEditor* createEditor(const CellEdit& edit, QWidget* parent) const override;
};
