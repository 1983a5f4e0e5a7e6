#pragma once

#include "orvane/app/fields/cells/ValueCell.h"

/// An image as a thumbnail with its size and channels, enlarged by a click.
class ImageCell final : public ValueCell {
public:
    void paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const override;
    [[nodiscard]] bool takesFiles() const override { return true; }
    void dropFile(const CellEdit& edit, const QString& fileName) const override;
    [[nodiscard]] CellEditor* createEditor(const CellEdit& edit, QWidget* parent) const override;
};
