#include "orvane/app/manners/NumberTyping.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/NumberLine.h"
#include "orvane/app/input/PassingFocus.h"
#include "orvane/app/input/PlainReturn.h"
#include "orvane/app/manners/EditorDocks.h"
#include "orvane/app/manners/EditorLine.h"
#include "orvane/app/manners/LineCover.h"
#include "orvane/app/manners/LineWatch.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>

namespace {

/// The characters that a key types; empty for commands.
QString typedText(const QKeyEvent& key)
{
    // Some layouts type with both.
    const Qt::KeyboardModifiers commands = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool isCommand = commands != Qt::NoModifier && commands != (Qt::ControlModifier | Qt::AltModifier);
    const QString text = key.text();
    return isCommand || text.isEmpty() || !text.front().isPrint() ? QString() : text;
}

} // namespace

NumberTyping::NumberTyping(OrvServices& services, LineWatch& watch, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_watch(watch)
{
    QCoreApplication::instance()->installEventFilter(this);
}

NumberTyping::~NumberTyping() = default;

bool NumberTyping::eventFilter(QObject* object, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::InputMethod && type != QEvent::FocusOut)
        return false;
    QLineEdit* const line = LineWatch::lineOf(object);
    if (line == nullptr || qobject_cast<NumberLine*>(line) != nullptr || EditorDocks::dockOf(line) == nullptr)
        return false;
    if (type == QEvent::KeyPress)
        return keyPressed(line, *static_cast<QKeyEvent*>(event));
    if (type == QEvent::InputMethod)
        return insert(line, static_cast<QInputMethodEvent*>(event)->commitString(), false);
    if (!orvane::isPassingFocus(static_cast<QFocusEvent*>(event)->reason()))
        leaveLine(line);
    return false;
}

bool NumberTyping::keyPressed(QLineEdit* line, const QKeyEvent& key)
{
    if (orvane::isPlainReturn(key))
        return finishLine(line);
    if (key.matches(QKeySequence::Paste))
        return insert(line, QApplication::clipboard()->text(), true);
    return insert(line, typedText(key), false);
}

// True if the text doesn't go to the editor's line.
bool NumberTyping::insert(QLineEdit* line, const QString& text, bool isPasted)
{
    if (text.trimmed().isEmpty())
        return false;
    const QString before = m_watch.before(line);
    const auto target = EditorLine::of(line, before);
    if (!target)
        return false;
    const QString added = isPasted ? text.trimmed() : text;
    if (added.size() > NumberLine::longestText) {
        InputMessage::showFor(line,
            tr("The text is longer than the %1 characters of the longest formula, so it wasn't inserted.")
                .arg(NumberLine::longestText));
        return true;
    }
    const bool hasSelection = line->hasSelectedText();
    const qsizetype start = hasSelection ? line->selectionStart() : line->cursorPosition();
    const qsizetype end = hasSelection ? line->selectionEnd() : start;
    QString whole = line->text();
    whole.replace(start, end - start, added);
    if (target->takesBeginning(whole) && (!isPasted || added == text))
        return false;
    const qsizetype sign = whole.startsWith(u'=') ? 1 : 0; // as in a spreadsheet
    InputMessage::clear(line);
    m_watch.restore(line);
    new LineCover(
        *EditorLine::of(line, before), m_services, whole.mid(sign), static_cast<int>(start + added.size() - sign));
    return true;
}

QString NumberTyping::refusal(const EditorLine& target) const
{
    const QString text = target.line()->text();
    if (target.takes(text))
        return {};
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text, &isNumber);
    QString why = isNumber ? target.limits().refusal(number)
                           : tr("This isn't a number. Enter %1.").arg(target.limits().description());
    if (why.isEmpty()) {
        if (!target.textFor(number).isEmpty())
            return {}; // with fewer decimals than typed
        why = tr("The editor doesn't take it. Enter %1.").arg(target.limits().description());
    }
    return tr("“%1”: %2").arg(orvane::shortLine(text), why);
}

// The focus hasn't arrived yet where it goes.
void NumberTyping::remindOfReturn(QLineEdit* line)
{
    const auto remind = [line = QPointer<QLineEdit>(line)] {
        const QWidget* const focus = QApplication::focusWidget();
        if (line == nullptr || !line->isVisible() || !line->isModified()
            || (focus != nullptr && line->parentWidget()->isAncestorOf(focus)))
            return;
        InputMessage::showBriefly(line, line->rect(),
            tr("Not written yet: these numbers are written together, at Return."), InputMessage::Kind::Warning);
    };
    QMetaObject::invokeMethod(this, remind, Qt::QueuedConnection);
}

// Return in a line. True if the editor doesn't get the key.
bool NumberTyping::finishLine(QLineEdit* line)
{
    const auto target = EditorLine::of(line, m_watch.before(line));
    if (!target)
        return false;
    if (line->isModified()) {
        if (const QString why = refusal(*target); !why.isEmpty()) {
            line->selectAll();
            InputMessage::showFor(line, why);
            return true;
        }
    }
    InputMessage::clear(line);
    // A slider in a cell would write another row than its own.
    if (line->isModified() && target->isPartOfCell()
        && target->write(m_services, QLocale::c().toDouble(line->text()))) {
        line->setModified(false); // written already
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(line, &escape);
        return true;
    }
    target->refineOthers();
    return false;
}

void NumberTyping::leaveLine(QLineEdit* line)
{
    const auto target = EditorLine::of(line, m_watch.before(line));
    if (!target)
        return;
    if (!line->isModified()) {
        InputMessage::clear(line);
        return;
    }
    const QString why = refusal(*target);
    if (why.isEmpty()) {
        target->refineOthers();
        if (target->waitsForReturn())
            remindOfReturn(line);
        return;
    }
    m_watch.restore(line);
    InputMessage::showBriefly(line->parentWidget(), line->geometry(), why);
}
