#include "orvane/app/view/navigation/SceneBookmarks.h"

#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/view/SceneView.h"

#include <algorithm>

SceneBookmarks::SceneBookmarks(SceneView* view, Session& session)
    : QObject(view)
    , m_view(view)
    , m_session(session)
    , m_kept(session.settings())
{
    const SceneDocument& document = session.document();
    connect(&document, &SceneDocument::sceneChanged, this, &SceneBookmarks::load);
    // The file is that of the scene now, whatever was kept for it before.
    connect(&document, &SceneDocument::saved, this, &SceneBookmarks::store);
    load();
}

bool SceneBookmarks::isOpen() const
{
    return m_session.document().isOpen();
}

bool SceneBookmarks::canAdd() const
{
    return isOpen() && m_list.size() < ViewBookmarks::mostBookmarks;
}

QString SceneBookmarks::nextName() const
{
    for (std::size_t number = m_list.size() + 1;; ++number) {
        QString name = tr("View %1").arg(number);
        if (std::none_of(
                m_list.begin(), m_list.end(), [&name](const ViewBookmark& bookmark) { return bookmark.name == name; }))
            return name;
    }
}

void SceneBookmarks::add(const QString& name)
{
    if (!canAdd())
        return;
    const QString line = name.simplified();
    m_list.push_back({line.isEmpty() ? nextName() : line, m_view->viewpoint()});
    store();
}

void SceneBookmarks::rename(std::size_t number, const QString& name)
{
    const QString line = name.simplified();
    if (number >= m_list.size() || line.isEmpty() || m_list[number].name == line)
        return;
    m_list[number].name = line;
    store();
}

void SceneBookmarks::remove(std::size_t number)
{
    if (number >= m_list.size())
        return;
    m_list.erase(m_list.begin() + static_cast<std::ptrdiff_t>(number));
    store();
}

void SceneBookmarks::update(std::size_t number)
{
    if (number >= m_list.size())
        return;
    m_list[number].viewpoint = m_view->viewpoint();
    store();
}

void SceneBookmarks::goTo(std::size_t number)
{
    if (number < m_list.size())
        m_view->goTo(m_list[number].viewpoint);
}

void SceneBookmarks::load()
{
    m_list = m_kept.find(m_session.document().fileName());
    Q_EMIT changed();
}

void SceneBookmarks::store()
{
    const QString& fileName = m_session.document().fileName();
    if (!m_list.empty() || !m_kept.find(fileName).empty())
        m_kept.store(fileName, m_list);
    Q_EMIT changed();
}
