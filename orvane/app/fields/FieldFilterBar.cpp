#include "orvane/app/fields/FieldFilterBar.h"

#include "orvane/app/input/FilterLine.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"

#include <QHBoxLayout>
#include <QToolButton>

FieldFilterBar::FieldFilterBar(QWidget* parent)
    : QWidget(parent)
    , m_line(new FilterLine(meridane::Query::Subject::Scene, this))
    , m_changedOnly(new QToolButton(this))
{
    const int unit = orvane::look::unit(fontMetrics());
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2 * unit, 0, 2 * unit, unit);
    layout->setSpacing(unit);
    layout->addWidget(m_line, 1);
    layout->addWidget(m_changedOnly);

    m_line->setObjectName(QStringLiteral("fieldFilter"));
    orvane::followLanguage(this, [this] {
        m_line->setAccessibleName(tr("Filter the fields"));
        m_line->setPlaceholderText(tr("Filter by name, type or value"));
        m_line->setToolTip(
            tr("Letters of the name or the type in their order, words of the value, or a query: f:radius, "
               "t:Vec3f, >0.5, =true, ~text, changed, ignored, not, or, brackets, /regular expressions/."));
        m_changedOnly->setText(tr("Changed"));
        m_changedOnly->setToolTip(tr("Show only fields that differ from their defaults."));
        m_changedOnly->setAccessibleName(tr("Show only changed fields"));
    });
    m_changedOnly->setObjectName(QStringLiteral("changedFieldsOnly"));
    m_changedOnly->setCheckable(true);
    QFont bold = font();
    bold.setBold(true); // as the rows that it shows
    m_changedOnly->setFont(bold);

    connect(m_line, &FilterLine::queryChanged, this, &FieldFilterBar::changed);
    connect(m_line, &FilterLine::left, this, &FieldFilterBar::left);
    connect(m_changedOnly, &QToolButton::toggled, this, &FieldFilterBar::changed);
}

const meridane::Query& FieldFilterBar::query() const
{
    return m_line->query();
}

bool FieldFilterBar::isOn() const
{
    return !query().isEmpty() || isChangedOnly();
}

bool FieldFilterBar::isChangedOnly() const
{
    return m_changedOnly->isChecked();
}

void FieldFilterBar::clear()
{
    m_line->clear();
    m_changedOnly->setChecked(false);
}
