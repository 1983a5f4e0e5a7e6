#pragma once

#include "orvane/app/fields/cells/ValueCell.h"

/// A boolean as a check box, half checked for values that differ.
class FlagCell final : public ValueCell {
public:
    void paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const override;
    bool click(const CellEdit& edit, const QRect& area, const QPoint& position) const override;
    [[nodiscard]] CellEditor* createEditor(const CellEdit& edit, QWidget* parent) const override;
};
