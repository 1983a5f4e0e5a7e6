#pragma once

#include "meridane/base/values/VbMatrix.h"

#include <QWidget>

#include <array>

class QLabel;

namespace nodes {

/// The sixteen elements of a matrix in rows and columns, to read and to copy.
class MatrixGrid : public QWidget {
    Q_OBJECT

public:
    MatrixGrid();

    void setMatrix(const VbMatrix& matrix);

private:
    std::array<QLabel*, 16> m_elements{};
};

} // namespace nodes
