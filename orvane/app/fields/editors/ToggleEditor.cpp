#include "orvane/app/fields/editors/ToggleEditor.h"

#include "orvane/app/fields/editors/FieldNumbers.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/input/PassingFocus.h"

#include <QKeyEvent>
#include <QPainter>

#include <utility>

ToggleEditor::ToggleEditor(const CellEdit& edit, std::function<void(const FieldSet&)> toggle, QWidget* parent)
    : CellEditor(edit, parent)
    , m_toggle(std::move(toggle))
{
    // The value is seen through it.
    setAutoFillBackground(false);
    setAttribute(Qt::WA_NoSystemBackground);
    if (const FieldSet set = fields(); !set.isEmpty())
        setAccessibleName(orvane::accessibleNameOf(set.first(), -1));
}

void ToggleEditor::toggle()
{
    const FieldSet set = fields();
    if (set.isEmpty())
        return;
    if (!m_isLive)
        m_isLive = static_cast<bool>(writer().begin(set));
    m_toggle(set);
}

void ToggleEditor::conclude(bool keep)
{
    if (!std::exchange(m_isLive, false))
        return;
    if (keep)
        writer().end();
    else
        writer().cancel();
}

void ToggleEditor::showEvent(QShowEvent* event)
{
    CellEditor::showEvent(event);
    if (edit().reason == CellEdit::Reason::Tab)
        return;
    // The view is still about to give it the focus.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (isFinished())
                return;
            toggle();
            conclude(true);
            finish();
        },
        Qt::QueuedConnection);
}

void ToggleEditor::hideEvent(QHideEvent* event)
{
    CellEditor::hideEvent(event);
    conclude(true);
}

void ToggleEditor::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ToggleEditor::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            toggle();
        return;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        conclude(true);
        return finish(event->key() == Qt::Key_Tab ? Next::Forward : Next::Backward);
    case Qt::Key_Escape:
        conclude(false);
        return finish();
    default:
        CellEditor::keyPressEvent(event);
    }
}

void ToggleEditor::mousePressEvent(QMouseEvent* /*event*/)
{
    toggle();
}

void ToggleEditor::focusOutEvent(QFocusEvent* event)
{
    CellEditor::focusOutEvent(event);
    if (orvane::isPassingFocus(event->reason()))
        return;
    conclude(true);
    finish();
}
