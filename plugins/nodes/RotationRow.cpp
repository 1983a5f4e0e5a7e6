#include "plugins/nodes/RotationRow.h"

#include "plugins/nodes/NumberText.h"

#include "meridane/gl/geometry/MatrixParts.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolTip>

#include <cmath>

namespace nodes {

namespace {

constexpr std::size_t angleLine = 3; // behind x, y and z

/// Angles within this are those of rounding.
double rounded(double degrees)
{
    constexpr double precision = 1e5;
    return std::round(degrees * precision) / precision + 0.0;
}

} // namespace

RotationRow::RotationRow()
    : m_form(new QComboBox)
{
    m_form->addItem(tr("Turns about x, y, z"));
    m_form->addItem(tr("Axis and angle"));
    m_form->setObjectName(QStringLiteral("form"));
    m_form->setAccessibleName(tr("How the rotation is shown"));
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_form, 0, 0, 1, 8);
    static constexpr std::array letters{"x", "y", "z", "°"};
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        m_names[i] = new QLabel(QString::fromUtf8(letters[i]));
        m_lines[i] = new QLineEdit;
        m_lines[i]->setObjectName(QStringLiteral("number%1").arg(i));
        m_lines[i]->setMinimumWidth(fontMetrics().averageCharWidth() * 6);
        m_names[i]->setBuddy(m_lines[i]);
        grid->addWidget(m_names[i], 1, static_cast<int>(2 * i));
        grid->addWidget(m_lines[i], 1, static_cast<int>(2 * i + 1));
        connect(m_lines[i], &QLineEdit::editingFinished, this, &RotationRow::take);
    }
    m_lines[angleLine]->setAccessibleName(tr("angle in degrees"));
    connect(m_form, &QComboBox::activated, this, &RotationRow::showNumbers);
    showNumbers();
}

// A line that is destroyed while it has the focus ends its editing once more.
RotationRow::~RotationRow()
{
    for (QLineEdit* const line : m_lines)
        line->disconnect(this);
}

bool RotationRow::isEuler() const
{
    return m_form->currentIndex() == 0;
}

void RotationRow::setRotation(const VbRotation& rotation)
{
    m_rotation = rotation;
    for (const QLineEdit* const line : m_lines) {
        if (line->isModified() && line->hasFocus())
            return;
    }
    showNumbers();
}

void RotationRow::showNumbers()
{
    m_names[angleLine]->setVisible(!isEuler());
    m_lines[angleLine]->setVisible(!isEuler());
    const meridane::EulerDegrees turns = meridane::toEuler(m_rotation);
    const VbVec3f axis = m_rotation.getAxis();
    for (std::size_t i = 0; i < angleLine; ++i)
        m_lines[i]->setText(numberText(isEuler() ? rounded(turns[i]) : static_cast<double>(axis[i])));
    m_lines[angleLine]->setText(
        numberText(rounded(static_cast<double>(m_rotation.getAngle()) * meridane::degreesOfRadian)));
    for (QLineEdit* const line : m_lines)
        line->setCursorPosition(0);
}

void RotationRow::take()
{
    bool isModified = false;
    std::array<double, 4> numbers{};
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        isModified = isModified || m_lines[i]->isModified();
        m_lines[i]->setModified(false);
        bool isNumber = false;
        numbers[i] = m_lines[i]->text().trimmed().replace(u',', u'.').toDouble(&isNumber);
        if (!isNumber || !std::isfinite(numbers[i])) {
            QToolTip::showText(m_lines[i]->mapToGlobal(QPoint(0, m_lines[i]->height())),
                tr("\"%1\" is no number; the former rotation stays.").arg(m_lines[i]->text()), m_lines[i]);
            showNumbers();
            return;
        }
    }
    if (!isModified)
        return;
    if (isEuler()) {
        m_rotation = meridane::fromEuler({numbers[0], numbers[1], numbers[2]});
    } else {
        const auto part = [&](std::size_t i) { return static_cast<float>(numbers[i]); };
        m_rotation = VbRotation(
            VbVec3f(part(0), part(1), part(2)), static_cast<float>(numbers[angleLine] / meridane::degreesOfRadian));
    }
    Q_EMIT rotationEdited();
}

} // namespace nodes
