#include "orvane/app/fields/editors/LineEditor.h"

#include "orvane/app/fields/editors/FieldNumbers.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/PassingFocus.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include <limits>
#include <utility>

LineEditor::LineEditor(const CellEdit& edit, Shown shown, FormOf formOf, QWidget* parent)
    : CellEditor(edit, parent)
    , m_line(new QLineEdit(this))
    , m_shown(std::move(shown))
    , m_formOf(std::move(formOf))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line);
    m_line->setFrame(false);
    m_line->setMaxLength(std::numeric_limits<int>::max());
    m_line->installEventFilter(this);
    setFocusProxy(m_line);
    if (const FieldSet set = fields(); !set.isEmpty())
        m_line->setAccessibleName(orvane::accessibleNameOf(set.first(), -1));
    LineEditor::refresh();
    m_line->selectAll();
}

void LineEditor::refresh()
{
    const FieldSet set = fields();
    if (set.isEmpty() || m_line->isModified())
        return;
    const bool isMixed = set.isMixed();
    m_line->setText(isMixed ? QString() : m_shown(set.first()));
    m_line->setPlaceholderText(isMixed ? tr("several values") : QString());
}

bool LineEditor::write()
{
    const FieldSet set = fields();
    if (!m_line->isModified() || set.isEmpty())
        return true;
    const orvane::Result<> result = writer().setText(set, m_formOf(m_line->text()));
    if (!result) {
        m_line->selectAll();
        InputMessage::showFor(m_line, result.error());
        return false;
    }
    m_line->setModified(false);
    return true;
}

void LineEditor::leave()
{
    if (!write()) {
        const InputMessage* const message = InputMessage::shownIn(m_line);
        if (message != nullptr)
            InputMessage::showBriefly(parentWidget(), geometry(), message->text());
    }
    finish();
}

bool LineEditor::handleKey(const QKeyEvent& event)
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

bool LineEditor::eventFilter(QObject* object, QEvent* event)
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
        if (!isPassing && !isFinished())
            leave();
        return false;
    }
    default:
        return CellEditor::eventFilter(object, event);
    }
}
