#include "orvane/app/fields/editors/PopupEditor.h"

#include "orvane/app/fields/editors/FieldNumbers.h"
#include "orvane/app/fields/popups/PopupFrame.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/PassingFocus.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <utility>

PopupEditor::PopupEditor(const CellEdit& edit, QWidget* parent)
    : CellEditor(edit, parent)
{
    // The value is seen through it.
    setAutoFillBackground(false);
    setAttribute(Qt::WA_NoSystemBackground);
    if (const FieldSet set = fields(); !set.isEmpty())
        setAccessibleName(orvane::accessibleNameOf(set.first(), -1));
}

void PopupEditor::setPopup(PopupFrame* popup, std::function<void(const NxField&)> show)
{
    m_popup = popup;
    m_show = std::move(show);
    connect(popup, &PopupFrame::accepted, this, [this] { close(true); });
    connect(popup, &PopupFrame::rejected, this, [this] { close(false); });
    refresh();
}

void PopupEditor::refresh()
{
    if (const FieldSet set = fields(); !set.isEmpty())
        m_show(set.first());
}

void PopupEditor::write(const std::function<bool(NxField&)>& function)
{
    const FieldSet set = fields();
    if (set.isEmpty())
        return;
    if (!m_isLive)
        m_isLive = static_cast<bool>(writer().begin(set));
    if (const orvane::Result<> result = writer().change(set, function); !result)
        InputMessage::showFor(m_popup, result.error());
}

void PopupEditor::open()
{
    if (m_isOpen || isFinished())
        return;
    m_isOpen = true;
    m_popup->openAt({mapToGlobal(QPoint(0, 0)), size()});
}

void PopupEditor::close(bool accepted)
{
    m_isOpen = false;
    if (accepted && onAccepted)
        onAccepted();
    if (std::exchange(m_isLive, false)) {
        if (accepted)
            writer().end();
        else
            writer().cancel();
    }
    finish();
}

void PopupEditor::showEvent(QShowEvent* event)
{
    CellEditor::showEvent(event);
    // The view gives the editor its place and the focus after this.
    if (edit().reason != CellEdit::Reason::Tab)
        QMetaObject::invokeMethod(this, &PopupEditor::open, Qt::QueuedConnection);
}

void PopupEditor::hideEvent(QHideEvent* event)
{
    CellEditor::hideEvent(event);
    if (m_isOpen)
        m_popup->hide(); // which accepts it
}

void PopupEditor::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void PopupEditor::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Down:
    case Qt::Key_F2:
        return open();
    case Qt::Key_Tab:
        return finish(Next::Forward);
    case Qt::Key_Backtab:
        return finish(Next::Backward);
    case Qt::Key_Escape:
        return finish();
    default:
        CellEditor::keyPressEvent(event);
    }
}

void PopupEditor::mousePressEvent(QMouseEvent* /*event*/)
{
    open();
}

void PopupEditor::focusOutEvent(QFocusEvent* event)
{
    CellEditor::focusOutEvent(event);
    if (!m_isOpen && !orvane::isPassingFocus(event->reason()))
        finish();
}
