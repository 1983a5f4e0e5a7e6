#include "orvane/app/inspect/LockAction.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/inspect/NodeLock.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Symbols.h"

#include <QBoxLayout>
#include <QSignalBlocker>
#include <QToolButton>

#include <utility>

LockAction::LockAction(NodeLock& lock, ShownPath shownPath, QObject* parent)
    : QAction(parent)
    , m_lock(lock)
    , m_shownPath(std::move(shownPath))
{
    setCheckable(true);
    orvane::followLanguage(this, [this] {
        setText(tr("Lock Inspec&tor"));
        setStatusTip(tr("Keeps fields and editors on this node while you browse on"));
    });
    connect(this, &QAction::toggled, this, &LockAction::setLocked);
    connect(&lock, &NodeLock::changed, this, &LockAction::update);
    orvane::followLanguage(this, [this] { update(); });
}

void LockAction::update()
{
    const bool isOn = m_lock.isOn();
    {
        const QSignalBlocker blocker(this); // the lock is as it should be
        setChecked(isOn);
    }
    setEnabled(isOn || !m_shownPath().empty());
    setIcon(orvane::look::symbol(isOn ? QStringLiteral("locked") : QStringLiteral("unlocked")));
    setToolTip(
        orvane::plainToolTip(isOn ? tr("Locked on %1. Click to follow the selection again.").arg(m_lock.pathText())
                : isEnabled()     ? tr("Lock: stay on this node while you browse on.")
                                  : tr("Select a node first, to lock the inspector on it.")));
}

void LockAction::addButtonTo(QBoxLayout* tools)
{
    auto* const button = new QToolButton(tools->parentWidget());
    button->setObjectName(QStringLiteral("lockButton"));
    button->setAutoRaise(true);
    button->setDefaultAction(this);
    tools->addWidget(button);
}

void LockAction::setLocked(bool locked)
{
    const std::vector<NxNode*> path = locked ? m_shownPath() : std::vector<NxNode*>();
    if (path.empty())
        m_lock.unlock();
    else
        m_lock.lock(path);
    update();
}
