#include "orvane/app/view/SceneCameras.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/view/ViewpointText.h"

#include <QStringList>

namespace {

const QString camerasKey = QStringLiteral("view/cameras");
/// The index of the entry of a file, or -1.
qsizetype indexOf(const QStringList& entries, const QString& fileName)
{
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (entries[i].section(u' ', orvane::viewpointNumbers) == fileName)
            return i;
    }
    return -1;
}

} // namespace

std::optional<NxViewpoint> SceneCameras::find(const QString& fileName) const
{
    const QStringList entries = m_settings.value(camerasKey).toStringList();
    const qsizetype index = fileName.isEmpty() ? -1 : indexOf(entries, fileName);
    return index >= 0 ? orvane::viewpointOf(entries[index]) : std::nullopt;
}

void SceneCameras::store(const QString& fileName, const NxViewpoint& viewpoint)
{
    if (fileName.isEmpty())
        return;
    QStringList entries = m_settings.value(camerasKey).toStringList();
    if (const qsizetype index = indexOf(entries, fileName); index >= 0)
        entries.removeAt(index);
    entries.prepend(orvane::textOf(viewpoint) + fileName); // which may hold blanks
    m_settings.setValue(camerasKey, entries.mid(0, mostScenes));
}
