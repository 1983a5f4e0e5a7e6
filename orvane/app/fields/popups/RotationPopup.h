#pragma once

#include "orvane/app/fields/popups/PopupFrame.h"

#include "meridane/base/values/VbRotation.h"

#include <array>

class NumberRow;
class QCheckBox;
class QPushButton;

/// A rotation as axis and angle, and as Euler degrees: a turn about the fixed axes x, then y, then z. An edit of either
/// gives the other. The axis is kept as it was given until the user normalises it.
class RotationPopup : public PopupFrame {
    Q_OBJECT

public:
    explicit RotationPopup(QWidget* parent);

    /// Shows a rotation and announces nothing.
    void setRotation(const VbRotation& rotation);
    [[nodiscard]] const VbRotation& rotation() const noexcept { return m_rotation; }
    /// Whether the box is checked that shows rotations as Euler degrees in the table.
    void setEulerShown(bool shown);

Q_SIGNALS:
    /// The user chose another rotation.
    void rotationChanged(const VbRotation& rotation);
    /// The user changed the box.
    void eulerShownChanged(bool shown);

private:
    NumberRow* addRow(NumberRow* row);
    void take(const VbRotation& rotation);
    void showRotation(bool keepEuler = false);

    VbRotation m_rotation;
    std::array<double, 3> m_euler{}; // as they were typed, since several give the same rotation
    NumberRow* m_axis;
    NumberRow* m_angle;
    NumberRow* m_eulerRow;
    QPushButton* m_normalise;
    QCheckBox* m_showEuler;
};
