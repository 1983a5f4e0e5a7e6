#include "orvane/app/fields/popups/RotationPopup.h"

#include "orvane/app/fields/popups/NumberRow.h"
#include "orvane/app/fields/popups/ShownNumber.h"
#include "orvane/app/input/NumberLine.h"
#include "orvane/app/look/Look.h"

#include "meridane/gl/geometry/MatrixParts.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QPushButton>

namespace {

QString degreesText(double number)
{
    return orvane::roundedText(number, 4);
}

orvane::NumberLimits degreeLimits()
{
    orvane::NumberLimits limits;
    limits.step = 1;
    return limits;
}

} // namespace

RotationPopup::RotationPopup(QWidget* parent)
    : PopupFrame(parent)
    , m_axis(new NumberRow(NumberRow::axes(tr("Axis")), &orvane::floatText, this))
    , m_angle(new NumberRow({{tr("rad"), orvane::look::Tint::AxisW, tr("Angle in radians")},
                                {tr("deg"), orvane::look::Tint::AxisW, tr("Angle in degrees")}},
          &orvane::floatText, this))
    , m_eulerRow(new NumberRow(NumberRow::axes(tr("Euler degrees")), &degreesText, this))
    , m_normalise(new QPushButton(tr("Normalise the axis"), this))
    , m_showEuler(new QCheckBox(tr("Show Euler degrees in the table"), this))
{
    setObjectName(QStringLiteral("rotationPopup"));
    setAccessibleName(tr("Rotation"));
    const int unit = orvane::look::unit(fontMetrics());
    auto* const form = new QFormLayout(this);
    form->setContentsMargins(2 * unit, 2 * unit, 2 * unit, 2 * unit);
    form->setSpacing(unit);
    form->addRow(tr("Axis"), addRow(m_axis));
    form->addRow(tr("Angle"), addRow(m_angle));
    form->addRow(tr("Euler degrees"), addRow(m_eulerRow));
    form->addRow(m_normalise);
    form->addRow(m_showEuler);
    m_eulerRow->setToolTip(tr("Turns about the fixed axes: x first, then y, then z."));
    m_eulerRow->setLimits(degreeLimits());
    orvane::NumberLimits radians;
    radians.isAngle = true;
    m_angle->lines()[0]->setLimits(radians);
    m_angle->lines()[1]->setLimits(degreeLimits());
    m_normalise->setObjectName(QStringLiteral("normalise"));
    m_normalise->setAutoDefault(false);
    m_showEuler->setObjectName(QStringLiteral("showEuler"));

    connect(m_axis, &NumberRow::numberChanged, this, [this](int component, double number) {
        VbVec3f axis = m_rotation.getAxis();
        axis[static_cast<std::size_t>(component)] = static_cast<float>(number);
        take({axis, m_rotation.getAngle()});
    });
    connect(m_angle, &NumberRow::numberChanged, this, [this](int component, double number) {
        take({m_rotation.getAxis(), static_cast<float>(component == 0 ? number : number / meridane::degreesOfRadian)});
    });
    connect(m_eulerRow, &NumberRow::numberChanged, this, [this](int component, double number) {
        m_euler[static_cast<std::size_t>(component)] = number;
        m_rotation = meridane::fromEuler(m_euler);
        showRotation(true);
        Q_EMIT rotationChanged(m_rotation);
    });
    connect(m_normalise, &QPushButton::clicked, this, [this] { take(meridane::normalised(m_rotation)); });
    connect(m_showEuler, &QCheckBox::toggled, this, &RotationPopup::eulerShownChanged);
    m_axis->lines().front()->setFocus(Qt::TabFocusReason); // which selects the number
}

NumberRow* RotationPopup::addRow(NumberRow* row)
{
    for (NumberLine* line : row->lines())
        addLine(line);
    return row;
}

void RotationPopup::setRotation(const VbRotation& rotation)
{
    m_rotation = rotation;
    showRotation();
}

void RotationPopup::setEulerShown(bool shown)
{
    const QSignalBlocker blocker(m_showEuler);
    m_showEuler->setChecked(shown);
}

void RotationPopup::take(const VbRotation& rotation)
{
    m_rotation = rotation;
    showRotation();
    Q_EMIT rotationChanged(m_rotation);
}

void RotationPopup::showRotation(bool keepEuler)
{
    const VbVec3f& axis = m_rotation.getAxis();
    const auto angle = static_cast<double>(m_rotation.getAngle());
    if (!keepEuler)
        m_euler = meridane::toEuler(m_rotation);
    m_axis->setNumbers(std::array<double, 3>{
        static_cast<double>(axis[0]), static_cast<double>(axis[1]), static_cast<double>(axis[2])});
    m_angle->setNumbers(std::array<double, 2>{angle, angle * meridane::degreesOfRadian});
    m_eulerRow->setNumbers(m_euler);
    m_normalise->setEnabled(!meridane::isNormal(m_rotation));
}
