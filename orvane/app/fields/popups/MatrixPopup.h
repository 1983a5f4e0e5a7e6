#pragma once

#include "orvane/app/fields/popups/PopupFrame.h"

#include "meridane/gl/geometry/MatrixParts.h"

#include <array>

class NumberRow;
class QLabel;
class QPushButton;

/// A matrix as a grid of its sixteen elements, and as translation, rotation and scale. An edit of either gives the
/// other. A matrix that these parts don't give exactly keeps its elements; its parts can be edited after the user has
/// removed the rest.
class MatrixPopup : public PopupFrame {
    Q_OBJECT

public:
    explicit MatrixPopup(QWidget* parent);

    /// Shows a matrix and announces nothing.
    void setMatrix(const VbMatrix& matrix);
    [[nodiscard]] const VbMatrix& matrix() const noexcept { return m_matrix; }

Q_SIGNALS:
    /// The user chose another matrix.
    void matrixChanged(const VbMatrix& matrix);

private:
    enum Part { Translation, Rotation, Scale, PartCount };

    NumberRow* addRow(NumberRow* row);
    void addPart(Part part, const QString& title);
    void takePart(Part part, int component, double number);
    void take(const VbMatrix& matrix);
    void showMatrix();
    void showRest(meridane::MatrixRest rest);

    VbMatrix m_matrix;
    meridane::MatrixParts m_parts; // as they were typed, since several give the same matrix
    std::array<NumberRow*, 4> m_rows{};
    std::array<NumberRow*, PartCount> m_partRows{};
    QLabel* m_rest;
    QPushButton* m_removeRest;
};
