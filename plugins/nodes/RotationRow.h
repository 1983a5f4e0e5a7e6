#pragma once

#include "meridane/base/values/VbRotation.h"

#include <QWidget>

#include <array>
#include <cstddef>

class QComboBox;
class QLabel;
class QLineEdit;

namespace nodes {

/// A rotation as turns about x, y and z in degrees, or as an axis and an angle in degrees; the user chooses which.
class RotationRow : public QWidget {
    Q_OBJECT

public:
    RotationRow();
    ~RotationRow() override;

    /// Shows a rotation and announces nothing. Keeps what is being typed.
    void setRotation(const VbRotation& rotation);
    [[nodiscard]] const VbRotation& rotation() const noexcept { return m_rotation; }

Q_SIGNALS:
    /// The user entered another rotation.
    void rotationEdited();

private:
    void showNumbers();
    void take();
    [[nodiscard]] bool isEuler() const;

    VbRotation m_rotation;
    QComboBox* m_form;
    std::array<QLabel*, 4> m_names{};
    std::array<QLineEdit*, 4> m_lines{};
};

} // namespace nodes
