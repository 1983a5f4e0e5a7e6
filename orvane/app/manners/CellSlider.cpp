#include "orvane/app/manners/CellSlider.h"

#include "orvane/app/manners/EditorDocks.h"

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxField.h"

#include <QLineEdit>
#include <QLocale>
#include <QSlider>

using meridane::FieldComponents;

CellSlider::CellSlider(QSlider* slider, const EditorLine& target)
    : QObject(slider)
    , m_target(target)
    , m_line(target.line())
{
    connect(slider, &QSlider::sliderPressed, this, &CellSlider::remember);
    connect(slider, &QSlider::actionTriggered, this, &CellSlider::remember); // before the value changes
    connect(slider, &QSlider::valueChanged, this, &CellSlider::correct);
    connect(slider, &QSlider::sliderReleased, this, &CellSlider::correct);
    remember();
}

CellSlider::~CellSlider() = default;

void CellSlider::remember()
{
    if (m_line == nullptr || EditorDocks::fieldOf(m_line) != m_target.field())
        return;
    m_first = FieldComponents::of(*m_target.field())->get(*m_target.field(), 0, 0);
}

void CellSlider::correct()
{
    if (m_line == nullptr || EditorDocks::fieldOf(m_line) != m_target.field())
        return;
    NxField& field = *m_target.field();
    const FieldComponents& components = *FieldComponents::of(field);
    if (components.get(field, 0, 0) == m_first)
        return; // it hasn't written, or its own row
    components.set(field, 0, 0, m_first);
    components.set(field, m_target.row(), 0, QLocale::c().toDouble(m_line->text()));
}
