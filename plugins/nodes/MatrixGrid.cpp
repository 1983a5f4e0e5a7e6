#include "plugins/nodes/MatrixGrid.h"

#include "plugins/nodes/NumberText.h"

#include <QGridLayout>
#include <QLabel>

namespace nodes {

namespace {

constexpr std::size_t columns = 4;

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
        m_elements[i]->setObjectName(QStringLiteral("element%1%2").arg(i / columns).arg(i % columns));
        grid->addWidget(m_elements[i], static_cast<int>(i / columns), static_cast<int>(i % columns));
    }
    grid->setColumnStretch(static_cast<int>(columns), 1);
}

void MatrixGrid::setMatrix(const VbMatrix& matrix)
{
    for (std::size_t i = 0; i < m_elements.size(); ++i)
        m_elements[i]->setText(numberText(static_cast<double>(matrix[i / columns][i % columns])));
}

} // namespace nodes
