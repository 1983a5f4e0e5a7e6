#include "orvane/app/fields/editors/TextLineEditor.h"

#include "orvane/app/fields/editors/FieldNumbers.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/PassingFocus.h"

#include <QKeyEvent>
#include <QLineEdit>

void TextLineEditor::setLine(QLineEdit* line)
{
    m_line = line;
    m_line->setFrame(false);
    m_line->installEventFilter(this);
    setFocusProxy(m_line);
    if (const FieldSet set = fields(); !set.isEmpty())
        m_line->setAccessibleName(orvane::accessibleNameOf(set.first(), -1));
    refresh();
}

void TextLineEditor::refresh()
{
    const FieldSet set = fields();
    if (set.isEmpty() || m_line->isModified())
        return;
    const bool isMixed = set.isMixed();
    m_line->setText(isMixed ? QString() : shownText(set.first()));
    m_line->setPlaceholderText(isMixed ? tr("several values") : QString());
    m_line->selectAll();
}

bool TextLineEditor::write()
{
    const FieldSet set = fields();
    if (!m_line->isModified() || set.isEmpty())
        return true;
    const orvane::Result<> result = writer().setText(set, formOf(m_line->text()));
    if (!result) {
        m_line->selectAll();
        InputMessage::showFor(m_line, result.error());
        return false;
    }
    m_line->setModified(false);
    return true;
}

void TextLineEditor::leave()
{
    if (!write()) {
        const InputMessage* const message = InputMessage::shownIn(m_line);
        if (message != nullptr)
            InputMessage::showBriefly(parentWidget(), geometry(), message->text());
    }
    finish();
}

bool TextLineEditor::handleKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Escape:
        InputMessage::clear(m_line);
        m_line->setModified(false);
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
    default:
        return false;
    }
}

bool TextLineEditor::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
            event->accept();
        return false;
    case QEvent::KeyPress:
        return handleKey(*static_cast<QKeyEvent*>(event));
    case QEvent::FocusOut:
        if (!orvane::isPassingFocus(static_cast<QFocusEvent*>(event)->reason()) && !isFinished())
            leave();
        return false;
    default:
        return CellEditor::eventFilter(object, event);
    }
}
