#include "orvane/extender/OrvPlugin.h"

#include "orvane/extender/OrvExtension.h"
#include "orvane/extender/VbText.h"

namespace {

// The context of the connections to extensions, since a plug-in is no object that could be it.
QObject* watcher()
{
    static auto* const object = new QObject;
    return object;
}

} // namespace

OrvPlugin::OrvPlugin(int interfaceVersion)
    : m_interfaceVersion(interfaceVersion)
{
}

OrvPlugin::~OrvPlugin()
{
    for (OrvExtension* const extension : std::as_const(m_extensions))
        QObject::disconnect(extension, nullptr, watcher(), nullptr);
}

void OrvPlugin::addExtension(OrvExtension* extension)
{
    if (extension == nullptr || m_extensions.contains(extension))
        return;
    m_extensions.append(extension);
    const QString name = orvane::toQString(extension->getName());
    QObject::connect(extension, &QObject::destroyed, watcher(), [this, extension, name] { forget(extension, name); });
}

void OrvPlugin::forget(const OrvExtension* extension, const QString& name)
{
    const qsizetype position = m_extensions.indexOf(extension);
    if (position < 0)
        return;
    m_extensions.removeAt(position);
    m_lostExtensions.append(name);
    if (position < m_loadedCount)
        --m_loadedCount;
}

void OrvPlugin::load()
{
    while (m_loadedCount < m_extensions.size()) {
        OrvExtension* const extension = m_extensions.at(m_loadedCount);
        extension->load();
        if (m_extensions.value(m_loadedCount) == extension)
            ++m_loadedCount;
    }
}

void OrvPlugin::unload()
{
    while (m_loadedCount > 0)
        m_extensions.at(--m_loadedCount)->unload();
}
