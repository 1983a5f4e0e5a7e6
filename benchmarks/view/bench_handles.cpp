// Moving a node by its handles in a large scene: from the event to the picture, beside a bare redraw of the view.

#include "Figure.h"
#include "Settle.h"

#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/handles/HandleShape.h"
#include "orvane/app/window/MainWindow.h"

#include "meridane/gl/geometry/PictureProjection.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QTreeView>

#include <vector>

namespace {

constexpr int allNodes = 100'000;
constexpr double milliseconds = 1000;

/// Plates in a grid, each with a transform and a material: three nodes.
NxRef<NxGroup> plates()
{
    constexpr int inRow = 183;
    NxRef<NxGroup> scene(new NxGroup);
    const std::vector<VbVec3f> corners{
        VbVec3f(-0.4F, -0.4F, 0), VbVec3f(0.4F, -0.4F, 0), VbVec3f(0.4F, 0.4F, 0), VbVec3f(-0.4F, 0.4F, 0)};
    for (int plate = 0; plate < allNodes / 3; ++plate) {
        const NxRef<NxTransform> transform(new NxTransform);
        transform->translation.setValue(
            VbVec3f(static_cast<float>(plate % inRow), static_cast<float>(plate / inRow), 0));
        const NxRef<NxMesh> own(new NxMesh);
        own->positions.setValues(std::vector(corners));
        own->indices.setValues(std::vector<int>{0, 1, 2, 0, 2, 3});
        transform->addChild(new NxMaterial);
        transform->addChild(own.get());
        scene->addChild(transform.get());
    }
    return scene;
}

class Tool {
public:
    Tool()
        : window(session)
    {
        constexpr QSize size(1200, 800);
        window.resize(size);
        window.show();
        session.document().open(plates(), {});
        bench::settle();
        view = window.findChild<SceneView*>();
        view->start();
        if (!view->drawing().isStarted())
            qFatal("%s", qUtf8Printable(view->drawing().problem()));
        bench::settle();
        view->lookAlong(VbVec3f(0, 0, -1), VbVec3f(0, 1, 0));
        auto* const panel = window.findChild<SceneTreePanel*>();
        auto* const tree = window.findChild<QTreeView*>(QStringLiteral("sceneTree"));
        const int middle = panel->model()->rowCount({}) / 2;
        tree->expand(panel->model()->index(middle, 0));
        panel->select(panel->model()->index(middle, 0));
        moved = dynamic_cast<NxTransform*>(panel->selectedNode());
        window.findChild<QAction*>(QStringLiteral("view.handlesMove"))->trigger();
        bench::settle();
    }

    /// The place of the end of the x arm.
    [[nodiscard]] QPointF arm() const
    {
        const meridane::PictureProjection projection(
            view->viewpoint(), static_cast<double>(view->width()), static_cast<double>(view->height()));
        const auto place = projection.placeOf(VbVec3d(moved->translation.getValue()));
        if (!place)
            qFatal("the handles aren't in the picture");
        return {(*place)[0] + 0.7 * HandleShape::armLength, (*place)[1]};
    }

    void send(QEvent::Type type, const QPointF& place, Qt::MouseButton button, Qt::MouseButtons buttons) const
    {
        QMouseEvent event(type, place, view->mapToGlobal(place), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(view, &event);
    }

    Session session{AppSettings::Mode::None};
    MainWindow window;
    SceneView* view = nullptr;
    NxTransform* moved = nullptr;
};

void measure(Tool& tool, const char* name)
{
    const QPointF start = tool.arm();
    const VbVec3f before = tool.moved->translation.getValue();
    tool.send(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    std::vector<double> moves;
    std::vector<double> redraws;
    constexpr int rounds = 41;
    for (int round = 0; round < rounds; ++round) {
        const QPointF place = start + QPointF(1 + round % 20, 0);
        moves.push_back(milliseconds * bench::secondsToPainted(tool.view, [&] {
            tool.send(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton);
        }));
        redraws.push_back(milliseconds
            * bench::secondsToPainted(tool.view, [&] { tool.view->setViewpoint(tool.view->viewpoint()); }));
    }
    if (tool.moved->translation.getValue() == before)
        qFatal("nothing was moved");
    tool.send(QEvent::MouseButtonRelease, start, Qt::LeftButton, Qt::NoButton);
    constexpr double bar = 1.2;
    bench::report({name, "ms", bench::median(moves), bench::median(redraws), bar});
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Tool tool;
    measure(tool, "moving a handle, 100,000 nodes in view: event to picture, beside a bare redraw");
    tool.view->frameSelection();
    bench::settle();
    measure(tool, "moving a handle, one of 100,000 nodes in view: event to picture, beside a bare redraw");
    return 0;
}
