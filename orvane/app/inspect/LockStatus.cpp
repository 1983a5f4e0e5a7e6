#include "orvane/app/inspect/LockStatus.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/inspect/NodeLock.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Symbols.h"

#include <QAction>
#include <QKeySequence>

LockStatus::LockStatus(NodeLock& lock, const QAction* action, QWidget* parent)
    : QToolButton(parent)
    , m_lock(lock)
    , m_action(action)
{
    setObjectName(QStringLiteral("lockStatus"));
    setAutoRaise(true);
    setIcon(orvane::look::symbol(QStringLiteral("locked")));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(this, &QToolButton::clicked, &lock, &NodeLock::unlock);
    connect(&lock, &NodeLock::changed, this, &LockStatus::update);
    connect(action, &QAction::changed, this, &LockStatus::update);
    orvane::followLanguage(this, [this] { update(); });
}

void LockStatus::update()
{
    setVisible(m_lock.isOn());
    if (!m_lock.isOn())
        return;
    constexpr qsizetype mostCharacters = 30;
    const NxNode& node = *m_lock.node();
    const QString name = orvane::shortLine(orvane::toQString(node.getName()), mostCharacters);
    const QString text = tr("Locked on %1").arg(name.isEmpty() ? QString::fromUtf8(node.getClassName()) : name);
    setText(orvane::menuText(text));
    setAccessibleName(text);
    const QString keys = m_action->shortcut().toString(QKeySequence::NativeText);
    const QString way = keys.isEmpty() ? tr("Click here") : tr("Click here or press %1").arg(keys);
    setToolTip(orvane::plainToolTip(
        tr("Fields and editors stay on %1. %2, and they follow the selection again.").arg(m_lock.pathText(), way)));
}
