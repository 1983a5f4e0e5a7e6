#include "orvane/app/fields/editors/CellServices.h"

#include "orvane/app/fields/editors/ImageReplacement.h"
#include "orvane/app/fields/editors/ImageThumbnails.h"
#include "orvane/app/fields/editors/PathChecks.h"
#include "orvane/app/settings/SettingsStore.h"

#include <utility>

namespace {

QString eulerKey()
{
    return QStringLiteral("fields/eulerDegrees");
}

} // namespace

CellServices::CellServices(FieldWriter& writer, AppSettings* settings, QObject* parent)
    : QObject(parent)
    , m_writer(writer)
    , m_settings(settings)
    , m_paths(std::make_unique<PathChecks>())
    , m_thumbnails(std::make_unique<ImageThumbnails>())
{
    if (settings != nullptr) {
        SettingsStore& store = SettingsStore::of(*settings);
        store.follow(eulerKey(), this, [this, &store] { showEuler(store.isOn(eulerKey())); });
    }
    connect(m_paths.get(), &PathChecks::changed, this, &CellServices::changed);
    setImages(std::make_unique<ImageReplacement>(writer));
}

CellServices::~CellServices() = default;

void CellServices::setImages(std::unique_ptr<ImageReplacement> images)
{
    m_images = std::move(images);
    connect(m_images.get(), &ImageReplacement::failed, this, &CellServices::failed);
}

void CellServices::setFolder(std::function<QString()> folder)
{
    m_folder = std::move(folder);
}

void CellServices::setEulerShown(bool shown)
{
    if (m_settings != nullptr)
        SettingsStore::of(*m_settings).set(eulerKey(), shown);
    else
        showEuler(shown);
}

void CellServices::showEuler(bool shown)
{
    if (shown == m_isEulerShown)
        return;
    m_isEulerShown = shown;
    Q_EMIT changed();
}
