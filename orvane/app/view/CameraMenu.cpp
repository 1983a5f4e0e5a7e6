#include "orvane/app/view/CameraMenu.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

CameraMenu::CameraMenu(SceneView* view, SceneDocument& document)
    : QObject(view)
    , m_view(view)
    , m_document(document)
    , m_follower([view](NxViewpoint viewpoint) {
        // The user orbits around the middle of the scene.
        if (const NxBounds bounds = view->drawing().bounds(); !bounds.isEmpty())
            viewpoint.focus(bounds.center());
        view->setViewpoint(viewpoint);
    })
    , m_menu(new QMenu(view))
{
    orvane::followLanguage(this, [this] {
        m_menu->setTitle(tr("&Cameras"));
        static_cast<void>(update());
    });
    m_menu->setObjectName(QStringLiteral("cameraMenu"));
    connect(view, &SceneView::moved, this, [this] { m_follower.stop(); });
    connect(&document, &SceneDocument::sceneAboutToChange, this, [this] {
        m_follower.stop();
        m_latest.clear();
    });
}

CameraMenu::~CameraMenu() = default;

QMenu* CameraMenu::update()
{
    m_menu->clear();
    auto* group = new QActionGroup(m_menu);
    const auto add = [&](const QString& text, const NxNode* camera, int index) {
        auto* action = new QAction(orvane::menuText(text), m_menu);
        action->setToolTip(orvane::plainToolTip(orvane::shortLine(text)));
        action->setCheckable(true);
        action->setChecked(camera == m_follower.camera());
        connect(action, &QAction::triggered, this, [this, index] { choose(index); });
        group->addAction(action);
        m_menu->addAction(action);
    };
    add(tr("Free"), nullptr, -1);
    const auto all = cameras();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const NxNode* camera = all[i].back();
        const QString name = orvane::toQString(camera->getName());
        add(name.isEmpty() ? QString::fromUtf8(camera->getClassName()) : name, camera, static_cast<int>(i));
    }
    m_menu->setEnabled(!all.empty());
    return m_menu;
}

void CameraMenu::follow(const std::vector<NxNode*>& camera)
{
    m_follower.follow(camera);
    m_latest.assign(camera.begin(), camera.end());
    Q_EMIT lookedThrough();
}

std::vector<NxNode*> CameraMenu::latest() const
{
    const NxGroup* group = m_document.isOpen() ? m_document.scene() : nullptr;
    std::vector<NxNode*> path;
    for (const NxRef<NxNode>& node : m_latest) {
        if (group == nullptr || group->findChild(node.get()) < 0) // removed, or moved
            return {};
        path.push_back(node.get());
        group = dynamic_cast<const NxGroup*>(node.get());
    }
    return path;
}

void CameraMenu::choose(int index)
{
    // The scene may have changed since the menu was made.
    const auto all = cameras();
    if (index >= 0 && static_cast<std::size_t>(index) < all.size())
        follow(all[static_cast<std::size_t>(index)]);
    else
        m_follower.stop();
}

std::vector<std::vector<NxNode*>> CameraMenu::cameras() const
{
    std::vector<std::vector<NxNode*>> result;
    if (!m_document.isOpen())
        return result;
    meridane::NodeTraversal nodes(*m_document.scene());
    while (result.size() < mostCameras) {
        const NxNode* const node = nodes.nextUse();
        if (node == nullptr)
            break;
        if (dynamic_cast<const NxCamera*>(node) != nullptr)
            result.push_back(nodes.path());
    }
    return result;
}
