#include "orvane/app/fields/popups/MatrixPopup.h"

#include "orvane/app/fields/popups/NumberRow.h"
#include "orvane/app/fields/popups/ShownNumber.h"
#include "orvane/app/input/NumberLine.h"
#include "orvane/app/look/Look.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

using meridane::MatrixRest;

namespace {

QString partText(double number)
{
    return orvane::roundedText(number, 5);
}

QString textOf(MatrixRest rest)
{
    switch (rest) {
    case MatrixRest::None:
        return {};
    case MatrixRest::Shear:
        return MatrixPopup::tr("The matrix has shear: its axes aren't at right angles. Translation, rotation and "
                               "scale don't give it exactly.");
    case MatrixRest::Projection:
        return MatrixPopup::tr("The last column isn't 0, 0, 0, 1. Translation, rotation and scale don't give such a "
                               "projection.");
    case MatrixRest::NotFinite:
        return MatrixPopup::tr("The matrix has elements that aren't finite, so it has no parts.");
    }
    return {};
}

QString textOfRemoval(MatrixRest rest)
{
    switch (rest) {
    case MatrixRest::None:
    case MatrixRest::Shear:
        return MatrixPopup::tr("Remove the shear");
    case MatrixRest::Projection:
        return MatrixPopup::tr("Remove the projection");
    case MatrixRest::NotFinite:
        return MatrixPopup::tr("Make it the identity");
    }
    return {};
}

} // namespace

MatrixPopup::MatrixPopup(QWidget* parent)
    : PopupFrame(parent)
    , m_rest(new QLabel(this))
    , m_removeRest(new QPushButton(this))
{
    setObjectName(QStringLiteral("matrixPopup"));
    setAccessibleName(tr("Matrix"));
    const int unit = orvane::look::unit(fontMetrics());
    auto* const form = new QFormLayout(this);
    form->setContentsMargins(2 * unit, 2 * unit, 2 * unit, 2 * unit);
    form->setSpacing(unit);
    for (int row = 0; row < 4; ++row) {
        std::vector<NumberRow::Component> columns;
        columns.reserve(4);
        for (int column = 0; column < 4; ++column)
            columns.push_back({{}, {}, tr("Row %1, column %2").arg(row).arg(column)});
        auto* const line = addRow(new NumberRow(columns, &orvane::floatText, this));
        m_rows[static_cast<std::size_t>(row)] = line;
        form->addRow(tr("Row %1").arg(row), line);
        connect(line, &NumberRow::numberChanged, this, [this, row](int column, double number) {
            VbMatrix matrix = m_matrix;
            matrix[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = static_cast<float>(number);
            take(matrix);
        });
    }
    m_rest->setObjectName(QStringLiteral("matrixRest"));
    m_rest->setWordWrap(true);
    QPalette colors; // inherits what it doesn't set
    colors.setColor(
        QPalette::WindowText, orvane::look::textColor(orvane::look::Tint::Warning, palette().color(QPalette::Window)));
    m_rest->setPalette(colors);
    m_removeRest->setObjectName(QStringLiteral("removeRest"));
    m_removeRest->setAutoDefault(false);
    connect(m_removeRest, &QPushButton::clicked, this, [this] { take(meridane::composed(m_parts)); });
    addPart(Translation, tr("Translation"));
    addPart(Rotation, tr("Rotation °"));
    addPart(Scale, tr("Scale"));
    m_partRows[Rotation]->setToolTip(tr("Euler degrees: turns about the fixed axes, x first, then y, then z."));
    orvane::NumberLimits degrees;
    degrees.step = 1;
    m_partRows[Rotation]->setLimits(degrees);
    form->addRow(m_rest);
    form->addRow(m_removeRest);
    m_rows[0]->lines().front()->setFocus(Qt::TabFocusReason); // which selects the number
}

NumberRow* MatrixPopup::addRow(NumberRow* row)
{
    for (NumberLine* line : row->lines())
        addLine(line);
    return row;
}

void MatrixPopup::addPart(Part part, const QString& title)
{
    auto* const row = addRow(new NumberRow(NumberRow::axes(title), &partText, this));
    row->setObjectName(QStringLiteral("matrixPart%1").arg(part));
    m_partRows[part] = row;
    static_cast<QFormLayout*>(layout())->addRow(title, row);
    connect(row, &NumberRow::numberChanged, this,
        [this, part](int component, double number) { takePart(part, component, number); });
}

void MatrixPopup::setMatrix(const VbMatrix& matrix)
{
    m_matrix = matrix;
    showMatrix();
}

void MatrixPopup::takePart(Part part, int component, double number)
{
    meridane::MatrixParts parts = m_parts;
    auto& numbers = part == Translation ? parts.translation : part == Rotation ? parts.rotation : parts.scale;
    numbers[static_cast<std::size_t>(component)] = number;
    take(meridane::composed(parts));
    // Another rotation and scale may give the same matrix; what was typed stays.
    m_parts = parts;
    m_partRows[Rotation]->setNumbers(parts.rotation);
    m_partRows[Scale]->setNumbers(parts.scale);
}

void MatrixPopup::take(const VbMatrix& matrix)
{
    m_matrix = matrix;
    showMatrix();
    Q_EMIT matrixChanged(m_matrix);
}

void MatrixPopup::showMatrix()
{
    for (std::size_t row = 0; row < 4; ++row) {
        std::array<double, 4> numbers{};
        std::copy(m_matrix[row].begin(), m_matrix[row].end(), numbers.begin());
        m_rows[row]->setNumbers(numbers);
    }
    const meridane::MatrixDecomposition decomposition = meridane::decomposed(m_matrix);
    m_parts = decomposition.parts;
    m_partRows[Translation]->setNumbers(m_parts.translation);
    m_partRows[Rotation]->setNumbers(m_parts.rotation);
    m_partRows[Scale]->setNumbers(m_parts.scale);
    showRest(decomposition.rest);
}

void MatrixPopup::showRest(MatrixRest rest)
{
    for (NumberRow* row : m_partRows) {
        for (NumberLine* line : row->lines())
            line->setReadOnly(rest != MatrixRest::None);
    }
    m_rest->setText(textOf(rest));
    m_rest->setVisible(rest != MatrixRest::None);
    m_removeRest->setText(textOfRemoval(rest));
    m_removeRest->setVisible(rest != MatrixRest::None);
    if (isVisible())
        adjustSize();
}
