#include "orvane/app/inspect/FavoriteNodes.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/scene/Session.h"

#include "meridane/scene/file/NxScenePath.h"

#include <algorithm>

namespace {

const QString nodeFavoritesKey = QStringLiteral("scene/favorites");

/// Neither a file's name nor a path has a line feed without its being escaped or replaced here.
QString entryOf(const QString& fileName, const QStringList& paths)
{
    return (QStringList(fileName) + paths).join(u'\n');
}

} // namespace

FavoriteNodes::FavoriteNodes(Session& session, QObject* parent)
    : QObject(parent)
    , m_session(session)
{
    const SceneDocument& document = session.document();
    connect(&document, &SceneDocument::sceneAboutToChange, this, [this] {
        // What isn't saved isn't in the file either.
        if (!m_session.document().isModified())
            store();
        m_favorites.clear();
        Q_EMIT changed();
    });
    connect(&document, &SceneDocument::sceneChanged, this, &FavoriteNodes::load);
    connect(&document, &SceneDocument::saved, this, &FavoriteNodes::store);
}

FavoriteNodes::~FavoriteNodes() = default;

void FavoriteNodes::followReloads(const FileFlow& flow)
{
    connect(&flow, &FileFlow::aboutToReload, this, &FavoriteNodes::notePaths);
    connect(&flow, &FileFlow::reloaded, this, &FavoriteNodes::findReloaded);
}

bool FavoriteNodes::contains(const NxNode* node) const
{
    return node != nullptr && std::any_of(m_favorites.begin(), m_favorites.end(), [node](const Favorite& favorite) {
        return favorite.place.node() == node;
    });
}

std::vector<std::vector<NxNode*>> FavoriteNodes::paths() const
{
    std::vector<std::vector<NxNode*>> result;
    const NxGroup* const scene = m_session.document().scene();
    for (const Favorite& favorite : m_favorites) {
        if (scene == nullptr)
            break;
        if (std::vector<NxNode*> path = favorite.place.path(*scene); !path.empty())
            result.push_back(std::move(path));
    }
    return result;
}

bool FavoriteNodes::toggle(std::span<NxNode* const> path)
{
    if (contains(path.back())) {
        std::erase_if(m_favorites, [&path](const Favorite& favorite) { return favorite.place.node() == path.back(); });
    } else {
        std::erase_if(m_favorites, [](const Favorite& favorite) { return favorite.place.node() == nullptr; });
        if (m_favorites.size() >= mostNodes)
            return false;
        m_favorites.push_back({ScenePlace(path), {}});
    }
    store();
    Q_EMIT changed();
    return true;
}

QStringList FavoriteNodes::pathTexts() const
{
    QStringList texts;
    for (const std::vector<NxNode*>& path : paths())
        texts.append(orvane::toQString(NxScenePath::toText(m_session.document().scene(), path)));
    return texts;
}

void FavoriteNodes::store()
{
    const QString fileName = m_session.document().fileName();
    if (fileName.isEmpty() || fileName.contains(u'\n'))
        return;
    QStringList entries = m_session.settings().value(nodeFavoritesKey).toStringList();
    const QStringList before = entries;
    entries.removeIf([&fileName](const QString& entry) { return entry.section(u'\n', 0, 0) == fileName; });
    if (const QStringList texts = pathTexts(); !texts.isEmpty())
        entries.prepend(entryOf(fileName, texts));
    if (entries != before)
        m_session.settings().setValue(nodeFavoritesKey, entries.mid(0, mostScenes));
}

void FavoriteNodes::load()
{
    m_favorites.clear();
    const SceneDocument& document = m_session.document();
    const QStringList entries = m_session.settings().value(nodeFavoritesKey).toStringList();
    for (const QString& entry : entries) {
        const QStringList parts = entry.split(u'\n');
        if (!document.isOpen() || document.fileName().isEmpty() || parts.first() != document.fileName())
            continue;
        for (qsizetype i = 1; i < parts.size() && m_favorites.size() < mostNodes; ++i) {
            const NxScenePath::Target target = NxScenePath::find(document.scene(), parts[i].toStdString());
            if (target.error.empty() && !target.nodes.empty() && !contains(target.node()))
                m_favorites.push_back({ScenePlace(target.nodes), {}});
        }
    }
    Q_EMIT changed();
}

void FavoriteNodes::notePaths()
{
    const NxGroup* const scene = m_session.document().scene();
    for (Favorite& favorite : m_favorites) {
        const std::vector<NxNode*> path = favorite.place.path(*scene);
        favorite.path = path.empty() ? std::string() : NxScenePath::toText(scene, path);
    }
}

void FavoriteNodes::findReloaded()
{
    NxGroup* const scene = m_session.document().scene();
    for (Favorite& favorite : m_favorites) {
        if (scene == nullptr || favorite.path.empty() || !favorite.place.path(*scene).empty())
            continue;
        const NxScenePath::Target target = NxScenePath::find(scene, favorite.path);
        if (target.error.empty() && !target.nodes.empty() && !contains(target.node()))
            favorite.place = ScenePlace(target.nodes);
    }
    store();
    Q_EMIT changed();
}
