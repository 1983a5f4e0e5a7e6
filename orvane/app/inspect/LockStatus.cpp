#include "orvane/app/inspect/LockStatus.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/inspect/InspectIcons.h"
#include "orvane/app/inspect/NodeLock.h"

#include <QKeySequence>

LockStatus::LockStatus(NodeLock& lock, const QKeySequence& keys, QWidget* parent)
    : QToolButton(parent)
    , m_lock(lock)
    , m_keys(keys.toString(QKeySequence::NativeText))
{
    setObjectName(QStringLiteral("lockStatus"));
    setAutoRaise(true);
    setIcon(orvane::closedPadlock());
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(this, &QToolButton::clicked, &lock, &NodeLock::unlock);
    connect(&lock, &NodeLock::changed, this, &LockStatus::update);
    update();
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
    setToolTip(orvane::plainToolTip(
        tr("Fields and editors stay on %1. Click here or press %2, and they follow the selection again.")
            .arg(m_lock.pathText(), m_keys)));
}
