#include "orvane/app/fields/editors/PathEditor.h"

#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/FieldNumbers.h"
#include "orvane/app/fields/editors/QuotedForm.h"
#include "orvane/app/fields/popups/PathEdit.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/PassingFocus.h"

#include "meridane/scene/fields/single/NxSFString.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>

PathEditor::PathEditor(const CellEdit& edit, QWidget* parent)
    : CellEditor(edit, parent)
    , m_path(new PathEdit(services().folder(), this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_path);
    m_path->line()->setFrame(false);
    m_path->line()->installEventFilter(this);
    setFocusProxy(m_path);
    if (const FieldSet set = fields(); !set.isEmpty())
        m_path->line()->setAccessibleName(orvane::accessibleNameOf(set.first(), -1));
    connect(m_path, &PathEdit::chosen, this, [this] {
        if (write())
            finish();
    });
    PathEditor::refresh();
}

void PathEditor::refresh()
{
    const FieldSet set = fields();
    if (set.isEmpty() || m_path->isModified())
        return;
    const bool isMixed = set.isMixed();
    m_path->setPath(isMixed ? QString() : orvane::toQString(static_cast<const NxSFString&>(set.first()).getValue()));
    m_path->line()->setPlaceholderText(isMixed ? tr("several values") : QString());
}

bool PathEditor::write()
{
    const FieldSet set = fields();
    if (!m_path->isModified() || set.isEmpty())
        return true;
    const orvane::Result<> result = writer().setText(set, orvane::quotedForm(m_path->path()));
    if (!result) {
        InputMessage::showFor(m_path->line(), result.error());
        return false;
    }
    m_path->line()->setModified(false);
    return true;
}

bool PathEditor::handleKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Escape:
        m_path->line()->setModified(false);
        finish();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        if (write())
            finish(event.key() == Qt::Key_Tab ? Next::Forward : Next::Nothing);
        return true;
    case Qt::Key_Backtab:
        if (write())
            finish(Next::Backward);
        return true;
    case Qt::Key_Down:
        if ((event.modifiers() & Qt::AltModifier) == 0)
            return false;
        m_path->openDialog();
        return true;
    default:
        return false;
    }
}

void PathEditor::leave()
{
    if (m_path->isDialogOpen() || isFinished() || isAncestorOf(QApplication::focusWidget()))
        return;
    if (write())
        finish();
}

bool PathEditor::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
            event->accept();
        return false;
    case QEvent::KeyPress:
        return handleKey(*static_cast<QKeyEvent*>(event));
    case QEvent::FocusOut: {
        const bool isPassing = orvane::isPassingFocus(static_cast<QFocusEvent*>(event)->reason());
        // The dialog gets the focus after this.
        if (!isPassing)
            QMetaObject::invokeMethod(this, &PathEditor::leave, Qt::QueuedConnection);
        return false;
    }
    default:
        return CellEditor::eventFilter(object, event);
    }
}
