#pragma once

#include "orvane/app/fields/cells/ValueCell.h"

/// A text: a short one is edited in the line, and all in a popup with several lines. Only the first line is shown.
class TextCell final : public ValueCell {
public:
    void paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const override;
    [[nodiscard]] int parts(const NxField& field, const CellServices& services) const override;
    [[nodiscard]] QRect partArea(
        const QRect& area, const NxField& field, int part, const CellServices& services) const override;
    [[nodiscard]] CellEditor* createEditor(const CellEdit& edit, QWidget* parent) const override;
};
