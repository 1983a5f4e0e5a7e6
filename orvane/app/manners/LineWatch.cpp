#include "orvane/app/manners/LineWatch.h"

#include "orvane/app/input/PassingFocus.h"

#include <QAbstractSpinBox>
#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

bool isKeyReason(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

} // namespace

LineWatch::LineWatch(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

LineWatch::~LineWatch() = default;

QLineEdit* LineWatch::lineOf(QObject* widget)
{
    if (auto* const line = qobject_cast<QLineEdit*>(widget))
        return line;
    const auto* const box = qobject_cast<QAbstractSpinBox*>(widget);
    return box != nullptr ? box->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

QWidget* LineWatch::keyTargetOf(QLineEdit* line)
{
    auto* const box = qobject_cast<QAbstractSpinBox*>(line->parentWidget());
    return box != nullptr ? static_cast<QWidget*>(box) : line;
}

QString LineWatch::before(const QLineEdit* line) const
{
    const bool isTouched = line->isModified() || (m_isTyped && line->text() == m_typed);
    return line == m_line && isTouched ? m_before : line->text();
}

bool LineWatch::isTyped(const QLineEdit* line) const
{
    return line == m_line && m_isTyped && line->text() == m_typed && line->text() != m_before;
}

void LineWatch::restore(QLineEdit* line)
{
    if (line != m_line)
        return;
    m_isTyped = false;
    if (line->text() != m_before)
        line->setText(m_before);
    line->setModified(false);
    line->selectAll();
}

void LineWatch::settle(const QLineEdit* line)
{
    if (line == m_line)
        m_isTyped = false;
}

bool LineWatch::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        m_marked = nullptr;
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::InputMethod;
    const bool isFocus = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    QLineEdit* const line = isKey || isFocus ? lineOf(object) : nullptr;
    if (line == nullptr)
        return false;
    if (line != m_line)
        watch(line);
    const bool isByKey = event->type() == QEvent::FocusIn && isKeyReason(static_cast<QFocusEvent*>(event)->reason());
    m_marked = isByKey ? line : nullptr;
    if (isFocus && !orvane::isPassingFocus(static_cast<QFocusEvent*>(event)->reason()))
        m_isTyped = false;
    // The editor shows a new value, or has written the former text.
    if (!m_isTyped && !line->isModified())
        m_before = line->text();
    return false;
}

void LineWatch::watch(QLineEdit* line)
{
    if (m_line != nullptr)
        disconnect(m_line, nullptr, this, nullptr);
    m_line = line;
    m_isTyped = false;
    if (!line->isModified())
        m_before = line->text();
    connect(line, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_typed = text;
        m_isTyped = true;
    });
    connect(line, &QLineEdit::returnPressed, this, [this] { m_isTyped = false; });
    connect(line, &QLineEdit::selectionChanged, this, &LineWatch::keepMarked, Qt::QueuedConnection);
}

void LineWatch::keepMarked()
{
    if (m_marked != nullptr && m_marked == m_line && !m_line->hasSelectedText())
        m_line->selectAll();
}
