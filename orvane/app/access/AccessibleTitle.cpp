#include "orvane/app/access/AccessibleTitle.h"

#include "orvane/app/fields/FieldTableView.h"

#include <QHeaderView>
#include <QWindow>

AccessibleTitle::AccessibleTitle(FieldTableView& view, int column)
    : m_view(view)
    , m_column(column)
{
}

QWindow* AccessibleTitle::window() const
{
    return m_view.window()->windowHandle();
}

QAccessibleInterface* AccessibleTitle::childAt(int /*x*/, int /*y*/) const
{
    return nullptr;
}

QAccessibleInterface* AccessibleTitle::parent() const
{
    return QAccessible::queryAccessibleInterface(&m_view);
}

QAccessibleInterface* AccessibleTitle::child(int /*index*/) const
{
    return nullptr;
}

int AccessibleTitle::indexOfChild(const QAccessibleInterface* /*child*/) const
{
    return -1;
}

QString AccessibleTitle::text(QAccessible::Text kind) const
{
    const QAbstractItemModel& model = *m_view.model();
    const QString spoken = model.headerData(m_column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
    if (kind != QAccessible::Name)
        return {};
    return spoken.isEmpty() ? model.headerData(m_column, Qt::Horizontal).toString() : spoken;
}

void AccessibleTitle::setText(QAccessible::Text /*kind*/, const QString& /*text*/) { }

QRect AccessibleTitle::rect() const
{
    const QHeaderView& header = *m_view.header();
    if (header.isSectionHidden(m_column))
        return {};
    const QRect place(header.sectionViewportPosition(m_column), 0, header.sectionSize(m_column), header.height());
    return place.translated(header.viewport()->mapToGlobal(QPoint()));
}

QAccessible::State AccessibleTitle::state() const
{
    QAccessible::State state;
    state.invisible = m_view.isColumnHidden(m_column) || !m_view.header()->isVisible();
    return state;
}
