#include "orvane/app/fields/editors/PathEditor.h"

#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/QuotedForm.h"
#include "orvane/app/fields/popups/PathEdit.h"

#include "meridane/scene/fields/single/NxSFString.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>

PathEditor::PathEditor(const CellEdit& edit, QWidget* parent)
    : TextLineEditor(edit, parent)
    , m_path(new PathEdit(services().folder(), this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_path);
    connect(m_path, &PathEdit::chosen, this, [this] {
        if (write())
            finish();
    });
    setLine(m_path->line());
}

QString PathEditor::shownText(const NxField& field) const
{
    return orvane::toQString(static_cast<const NxSFString&>(field).getValue());
}

QString PathEditor::formOf(const QString& text) const
{
    return orvane::quotedForm(text);
}

bool PathEditor::handleKey(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Down || (event.modifiers() & Qt::AltModifier) == 0)
        return TextLineEditor::handleKey(event);
    m_path->openDialog();
    return true;
}

// The dialog and the button get the focus after this.
void PathEditor::leave()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!m_path->isDialogOpen() && !isFinished() && !isAncestorOf(QApplication::focusWidget()))
                TextLineEditor::leave();
        },
        Qt::QueuedConnection);
}
