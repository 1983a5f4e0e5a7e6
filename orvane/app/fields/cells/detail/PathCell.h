#pragma once

#include "orvane/app/fields/cells/ValueCell.h"

/// The path of a file, with a mark where the file is missing.
class PathCell final : public ValueCell {
public:
    void paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const override;
    [[nodiscard]] bool takesFiles() const override { return true; }
    void dropFile(const CellEdit& edit, const QString& fileName) const override;
    [[nodiscard]] QString toolTip(const FieldSet& fields, const CellServices& services) const override;
    [[nodiscard]] CellEditor* createEditor(const CellEdit& edit, QWidget* parent) const override;
};
