#pragma once

#include "orvane/app/fields/cells/ValueCell.h"

/// A value of an enumeration, chosen from a list of its names.
class ChoiceCell final : public ValueCell {
public:
    void paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const override;
    [[nodiscard]] CellEditor* createEditor(const CellEdit& edit, QWidget* parent) const override;
};
