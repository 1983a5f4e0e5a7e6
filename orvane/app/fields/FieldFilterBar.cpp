#include "orvane/app/fields/FieldFilterBar.h"

#include "orvane/app/look/Look.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

FieldFilterBar::FieldFilterBar(QWidget* parent)
    : QWidget(parent)
    , m_line(new QLineEdit(this))
    , m_changedOnly(new QToolButton(this))
{
    const int unit = orvane::look::unit(fontMetrics());
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2 * unit, 0, 2 * unit, unit);
    layout->setSpacing(unit);
    layout->addWidget(m_line, 1);
    layout->addWidget(m_changedOnly);

    m_line->setObjectName(QStringLiteral("fieldFilter"));
    m_line->setAccessibleName(tr("Filter the fields"));
    m_line->setPlaceholderText(tr("Filter by name, type or value"));
    m_line->setToolTip(tr("Words of which each is in the name, the type or the value of a field, with its letters in "
                          "order."));
    m_line->setClearButtonEnabled(true);
    m_line->installEventFilter(this);
    m_changedOnly->setObjectName(QStringLiteral("changedFieldsOnly"));
    m_changedOnly->setText(tr("Changed"));
    m_changedOnly->setToolTip(tr("Show only fields that differ from their defaults."));
    m_changedOnly->setAccessibleName(tr("Show only changed fields"));
    m_changedOnly->setCheckable(true);
    QFont bold = font();
    bold.setBold(true); // as the rows that it shows
    m_changedOnly->setFont(bold);

    connect(m_line, &QLineEdit::textChanged, this, &FieldFilterBar::changed);
    connect(m_changedOnly, &QToolButton::toggled, this, &FieldFilterBar::changed);
}

QString FieldFilterBar::text() const
{
    return m_line->text();
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

bool FieldFilterBar::eventFilter(QObject* object, QEvent* event)
{
    if (object == m_line && event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape && !m_line->text().isEmpty()) {
            m_line->clear();
            return true;
        }
        if (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape) {
            Q_EMIT left();
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}
