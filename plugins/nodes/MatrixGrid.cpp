#include "plugins/nodes/MatrixGrid.h"

#include "plugins/nodes/NumberText.h"

#include <QGridLayout>
#include <QLabel>

namespace nodes {

namespace {

constexpr std::size_t matrixColumns = 4;

} // namespace

MatrixGrid::MatrixGrid()
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(fontMetrics().averageCharWidth() * 2);
    for (std::size_t i = 0; i < m_elements.size(); ++i) {
        m_elements[i] = new QLabel;
        m_elements[i]->setAlignment(Qt::AlignRight);
        m_elements[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
        m_elements[i]->setObjectName(QStringLiteral("element%1%2").arg(i / matrixColumns).arg(i % matrixColumns));
        grid->addWidget(m_elements[i], static_cast<int>(i / matrixColumns), static_cast<int>(i % matrixColumns));
    }
    grid->setColumnStretch(static_cast<int>(matrixColumns), 1);
}

void MatrixGrid::setMatrix(const VbMatrix& matrix)
{
    for (std::size_t i = 0; i < m_elements.size(); ++i)
        m_elements[i]->setText(numberText(static_cast<double>(matrix[i / matrixColumns][i % matrixColumns])));
}

} // namespace nodes
