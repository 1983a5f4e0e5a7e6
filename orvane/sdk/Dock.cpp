#include "orvane/sdk/Dock.h"

#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvShell.h"
#include "orvane/extender/VbText.h"

#include <QDockWidget>

namespace orv {

Dock::Dock(const QString& name, Qt::DockWidgetArea area)
    : m_area(area)
{
    m_name = orvane::toVbString(name);
}

Dock::~Dock()
{
    delete m_dock.data();
}

void Dock::load()
{
    const QString title = orvane::toQString(m_name);
    m_dock = new QDockWidget(title);
    m_dock->setObjectName(title);
    m_dock->hide();
}

void Dock::unload()
{
    delete m_dock.data();
}

void Dock::activate()
{
    OrvExtension::activate();
    if (m_dock->widget() == nullptr)
        m_dock->setWidget(build());
    const OrvServices* const services = OrvServices::getInstance();
    connect(services, &OrvServices::selectedNodeChanged, this, &Dock::nodeSelected);
    connect(services, &OrvServices::selectedFieldChanged, this, &Dock::fieldSelected);
    OrvShell::getInstance()->addDockWidget(m_dock, m_area);
    OrvShell::getInstance()->announceExtension(this, 1);
    show();
}

void Dock::deactivate()
{
    OrvExtension::deactivate();
    disconnect(OrvServices::getInstance(), nullptr, this, nullptr);
    OrvShell::getInstance()->removeDockWidget(m_dock);
    OrvShell::getInstance()->withdrawExtension(this);
}

void Dock::hide()
{
    OrvExtension::hide();
    m_dock->hide();
}

void Dock::show()
{
    OrvExtension::show();
    m_dock->show();
}

void Dock::nodeSelected(NxFieldContainer* /*node*/) { }

void Dock::fieldSelected(NxField* /*field*/) { }

QDockWidget* Dock::dockWidget() const noexcept
{
    return m_dock;
}

} // namespace orv
