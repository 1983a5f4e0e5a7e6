#include "orvane/app/view/navigation/CameraActions.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/PendingEdits.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/values/FieldWriteCommand.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/NodeName.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/structure/NodeEditor.h"
#include "orvane/app/structure/NodeEdits.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/CameraMenu.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/gl/geometry/CameraFields.h"
#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/fields/ChangeRecord.h"
#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"

#include <QAction>

#include <span>

using namespace meridane;

CameraActions::CameraActions(
    SceneView* view, Session& session, SceneTreePanel* tree, NodeEditor& editor, const CameraMenu& cameras)
    : QObject(view)
    , m_view(view)
    , m_session(session)
    , m_tree(tree)
    , m_editor(editor)
    , m_cameras(cameras)
    , m_new(add("view.newCamera", QT_TR_NOOP("New &Camera from the View"),
          QT_TR_NOOP("Adds a camera to the scene that looks as the view does now"), &CameraActions::addCamera))
    , m_set(add("view.setCamera", QT_TR_NOOP("&Set Camera to the View"),
          QT_TR_NOOP("Lets the selected camera, or the one that was looked through last, look as the view does now"),
          &CameraActions::setCamera))
{
    connect(tree, &SceneTreePanel::selectionChanged, this, &CameraActions::update);
    connect(&cameras, &CameraMenu::lookedThrough, this, &CameraActions::update);
    connect(&session.document(), &SceneDocument::sceneChanged, this, &CameraActions::update);
    orvane::followLanguage(this, [this] { update(); });
}

QAction* CameraActions::add(const char* name, const char* text, const char* tip, void (CameraActions::*run)())
{
    auto* const action = new QAction(this);
    orvane::followLanguage(action, [action, text, tip] {
        action->setText(tr(text));
        action->setStatusTip(tr(tip));
    });
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, run);
    return action;
}

void CameraActions::update()
{
    const bool isOpen = m_session.document().isOpen();
    orvane::setReason(*m_new, isOpen ? QString() : tr("No scene is open."));
    orvane::setReason(*m_set, camera().empty() ? tr("Select a camera, or look through one first.") : QString());
}

std::vector<NxNode*> CameraActions::camera() const
{
    std::vector<NxNode*> path = m_tree->model()->path(m_tree->selected());
    if (path.empty() || dynamic_cast<const NxCamera*>(path.back()) == nullptr)
        path = m_cameras.latest();
    return path;
}

void CameraActions::addCamera()
{
    orvane::commitPendingEdit();
    NxGroup* const scene = m_editor.scene();
    if (scene == nullptr)
        return;
    const NxViewpoint& viewpoint = m_view->viewpoint();
    NxRef<NxCamera> camera;
    if (viewpoint.projection == NxViewpoint::ORTHOGRAPHIC)
        camera = NxRef<NxCamera>(new NxOrthographicCamera);
    else
        camera = NxRef<NxCamera>(new NxPerspectiveCamera);
    camera->setName(VbString("camera"));
    static_cast<void>(CameraFields(*camera).set(viewpoint, Matrix4d()));
    if (const NxBounds bounds = m_view->drawing().bounds(); !bounds.isEmpty())
        CameraFields(*camera).include(bounds.min, bounds.max);
    const NxRef<NxNode> node(camera.get());
    m_editor.apply(NodeEdits::insert(std::span(&node, 1),
        NodeSpot{{scene}, {}, static_cast<int>(scene->getChildren().size())}, NodeEdits::Names::Number));
}

void CameraActions::setCamera()
{
    orvane::commitPendingEdit();
    const std::vector<NxNode*> path = camera();
    auto* const camera = path.empty() ? nullptr : dynamic_cast<NxCamera*>(path.back());
    if (camera == nullptr)
        return;
    Matrix4d parentToScene;
    for (std::size_t i = 0; i + 1 < path.size(); ++i)
        parentToScene = multiply(localTransformOf(*path[i]), parentToScene);
    CameraFields fields(*camera);
    for (const NxField* const field : fields.fields()) {
        if (field->isIgnored()) {
            Q_EMIT said(
                tr("%1 of \"%2\" is ignored, so the camera can't be set. Clear its mark \"ignored\" in the field "
                   "table first.")
                    .arg(orvane::toQString(camera->getFieldName(field)), orvane::nodeName(*camera)));
            return;
        }
    }
    std::vector<std::unique_ptr<ChangeRecord>> records;
    for (NxField* const field : fields.fields())
        records.push_back(field->recordOfValue());
    OrvServices& services = m_session.services();
    services.beginEdit(tr("Set %1 to the view").arg(orvane::nodeName(*camera)));
    const CameraFields::Result result = fields.set(m_view->viewpoint(), parentToScene);
    if (result != CameraFields::Result::Impossible)
        services.pushCommand(new FieldWriteCommand(std::move(records)));
    services.endEdit();
    switch (result) {
    case CameraFields::Result::Set:
        break;
    case CameraFields::Result::WithoutSize:
        Q_EMIT said(
            tr("The camera and the view have different projections, so the camera got the place and the direction "
               "of the view alone."));
        break;
    case CameraFields::Result::Impossible:
        Q_EMIT said(tr("A group above \"%1\" makes everything flat, so the camera can't be set to the view.")
                        .arg(orvane::nodeName(*camera)));
        break;
    }
}
