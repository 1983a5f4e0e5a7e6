#include "orvane/sdk/ToolBar.h"

#include "orvane/extender/OrvShell.h"
#include "orvane/extender/VbText.h"

#include "meridane/base/values/VbName.h"

#include <QAction>
#include <QToolBar>

namespace orv {

ToolBar::ToolBar(const QString& name, Qt::ToolBarArea area)
    : m_area(area)
{
    m_name = orvane::toVbString(name);
}

ToolBar::~ToolBar()
{
    delete m_toolBar.data();
}

void ToolBar::load()
{
    const QString title = orvane::toQString(m_name);
    m_toolBar = new QToolBar(title);
    m_toolBar->setObjectName(title);
    m_toolBar->hide();
}

void ToolBar::unload()
{
    delete m_toolBar.data();
    m_conditions.clear();
    m_isBuilt = false;
}

void ToolBar::activate()
{
    OrvExtension::activate();
    if (!std::exchange(m_isBuilt, true))
        build();
    const OrvServices* const services = OrvServices::getInstance();
    connect(services, &OrvServices::selectedNodeChanged, this, &ToolBar::update);
    connect(services, &OrvServices::selectedFieldChanged, this, &ToolBar::update);
    OrvShell::getInstance()->addToolBar(m_toolBar, m_area);
    OrvShell::getInstance()->announceExtension(this, 1);
    update();
    show();
}

void ToolBar::deactivate()
{
    OrvExtension::deactivate();
    disconnect(OrvServices::getInstance(), nullptr, this, nullptr);
    OrvShell::getInstance()->removeToolBar(m_toolBar);
    OrvShell::getInstance()->withdrawExtension(this);
}

void ToolBar::hide()
{
    OrvExtension::hide();
    m_toolBar->hide();
}

void ToolBar::show()
{
    OrvExtension::show();
    m_toolBar->show();
}

QAction& ToolBar::addButton(const QString& text, const QString& tip, std::function<void()> action)
{
    QAction* const button = m_toolBar->addAction(text);
    button->setObjectName(m_toolBar->objectName() + u'.' + text);
    button->setToolTip(tip);
    button->setStatusTip(tip);
    connect(button, &QAction::triggered, this, [action = std::move(action)] { action(); });
    return *button;
}

void ToolBar::enableBy(QAction& action, NxType type, std::function<bool()> condition)
{
    const QString reason = tr("Nothing of the class %1 is selected.").arg(orvane::toQString(type.getName()));
    m_conditions.push_back({&action, action.toolTip(), reason, std::move(condition)});
    update();
}

void ToolBar::update()
{
    for (const Condition& condition : m_conditions) {
        if (condition.action.isNull())
            continue;
        const bool isEnabled = condition.holds();
        const QString& tip = isEnabled ? condition.tip : condition.reason;
        condition.action->setEnabled(isEnabled);
        condition.action->setToolTip(tip);
        condition.action->setStatusTip(tip);
    }
}

QToolBar* ToolBar::toolBar() const noexcept
{
    return m_toolBar;
}

} // namespace orv
