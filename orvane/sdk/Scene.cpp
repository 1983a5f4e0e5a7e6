#include "orvane/sdk/Scene.h"

#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QPointer>

#include <algorithm>

namespace orv {

Scene& scene()
{
    static QPointer<Scene> theScene;
    OrvServices* const services = OrvServices::getInstance();
    Q_ASSERT_X(services != nullptr, "orv::scene", "there are no services yet");
    if (theScene.isNull())
        theScene = new Scene(services);
    return *theScene;
}

Scene::Scene(QObject* parent)
    : QObject(parent)
{
    const OrvServices& services = *OrvServices::getInstance();
    const OrvDocument& document = services.document();
    connect(&document, &OrvDocument::opened, this, &Scene::opened);
    connect(&document, &OrvDocument::aboutToClose, this, [this] {
        forgetParents();
        Q_EMIT aboutToClose();
    });
    connect(&document, &OrvDocument::closed, this, &Scene::closed);
    connect(&services, &OrvServices::documentEdited, this, &Scene::edited);
}

Scene::~Scene() = default;

NxGroup* Scene::root() const
{
    const OrvServices* const services = OrvServices::getInstance();
    return services != nullptr ? services->document().root() : nullptr;
}

std::vector<NxNode*> Scene::parents(const NxNode& node)
{
    if (root() != m_readRoot || m_readRevision != NxFieldContainer::getStructureRevision())
        readParents();
    const auto first = std::ranges::lower_bound(
        m_parents, &node, {}, [](const std::pair<const NxNode*, NxNode*>& entry) { return entry.first; });
    std::vector<NxNode*> result;
    for (auto entry = first; entry != m_parents.end() && entry->first == &node; ++entry) {
        if (std::ranges::find(result, entry->second) == result.end())
            result.push_back(entry->second);
    }
    return result;
}

void Scene::readParents()
{
    forgetParents();
    NxGroup* const top = root();
    m_readRoot = top;
    m_readRevision = NxFieldContainer::getStructureRevision();
    if (top == nullptr)
        return;
    const auto add = [this](NxNode& parent) {
        for (const NxNode* const child : parent.getChildren())
            m_parents.emplace_back(child, &parent);
    };
    add(*top);
    meridane::NodeTraversal nodes(*top);
    while (NxNode* const node = nodes.next())
        add(*node);
    // Stable, so that the parents of a node keep the order of the scene.
    std::ranges::stable_sort(m_parents, {}, [](const std::pair<const NxNode*, NxNode*>& entry) { return entry.first; });
}

void Scene::forgetParents()
{
    m_parents.clear();
    m_readRoot = nullptr;
}

} // namespace orv
