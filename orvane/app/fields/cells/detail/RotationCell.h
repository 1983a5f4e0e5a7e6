#pragma once

#include "orvane/app/fields/cells/detail/NumberCell.h"

/// A rotation as axis and angle, or as Euler degrees, and a popup with both.
class RotationCell final : public NumberCell {
public:
    void paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const override;
    [[nodiscard]] int parts(const NxField& field, const CellServices& services) const override;
    [[nodiscard]] QRect partArea(
        const QRect& area, const NxField& field, int part, const CellServices& services) const override;
    [[nodiscard]] int scrubbedComponent(const NxField& field, int part, const CellServices& services) const override;
    [[nodiscard]] ScrubbedNumber scrubbedNumber(
        const NxField& field, int part, const CellServices& services) const override;
    [[nodiscard]] std::optional<FieldNumber> number(
        const NxField& field, int part, const CellServices& services) const override;
    [[nodiscard]] QString toolTip(const FieldSet& fields, const CellServices& services) const override;
    [[nodiscard]] CellEditor* createEditor(const CellEdit& edit, QWidget* parent) const override;
};
