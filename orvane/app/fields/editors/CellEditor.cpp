#include "orvane/app/fields/editors/CellEditor.h"

#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/PendingText.h"
#include "orvane/app/fields/values/FieldWriter.h"

CellEditor::CellEditor(const CellEdit& edit, QWidget* parent)
    : QWidget(parent)
    , m_edit(edit)
{
    // What is below must not be seen.
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setFocusPolicy(Qt::StrongFocus);
}

FieldSet CellEditor::fields() const
{
    return writer().pending(orvane::fieldsOf(m_edit.index));
}

bool CellEditor::showPending()
{
    const bool isPending = writer().isPending(fields());
    setToolTip(isPending ? orvane::pendingText() : QString());
    return isPending;
}

FieldWriter& CellEditor::writer() const
{
    return services().writer();
}

void CellEditor::finish(Next next)
{
    if (m_isFinished)
        return;
    m_isFinished = true;
    // The view has hidden an editor whose row has vanished, and knows it no more.
    if (!isHidden())
        Q_EMIT finished(next);
}

bool CellEditor::focusNextPrevChild(bool /*next*/)
{
    return false;
}
