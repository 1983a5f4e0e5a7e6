#include "orvane/app/access/ViewText.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

struct ViewTexts {
    Q_DECLARE_TR_FUNCTIONS(ViewText)
};

constexpr float leastShare = 0.38F; // of the direction, from where on a side is named: 22 degrees

QString sideText(const VbVec3f& direction)
{
    QStringList sides;
    const auto add = [&sides](float part, const QString& before, const QString& behind) {
        if (std::abs(part) >= leastShare)
            sides += part < 0 ? before : behind;
    };
    add(direction[2], ViewTexts::tr("the front"), ViewTexts::tr("the back"));
    add(direction[0], ViewTexts::tr("the right"), ViewTexts::tr("the left"));
    add(direction[1], ViewTexts::tr("above"), ViewTexts::tr("below"));
    return sides.join(ViewTexts::tr(" and "));
}

QString viewpointText(const NxViewpoint& viewpoint)
{
    const QString side = sideText(viewpoint.viewDirection());
    return viewpoint.projection == NxViewpoint::ORTHOGRAPHIC
        ? ViewTexts::tr("Seen from %1, without perspective.").arg(side)
        : ViewTexts::tr("Seen from %1, in perspective.").arg(side);
}

QString nodeText(const NxNode& node)
{
    const QString kind = QString::fromUtf8(node.getClassName());
    const QString name = orvane::toQString(node.getName());
    return name.isEmpty() ? kind : ViewTexts::tr("%1, a %2").arg(name, kind);
}

// Which part of the picture a place is in, from its share of the width and height.
QString placeText(double right, double up)
{
    constexpr double third = 1.0 / 3;
    if (right < 0 || right > 1 || up < 0 || up > 1)
        return ViewTexts::tr("outside of the picture");
    const QString row = up > 2 * third ? ViewTexts::tr("at the top")
        : up < third                   ? ViewTexts::tr("at the bottom")
                                       : QString();
    const QString column = right < third ? ViewTexts::tr("to the left")
        : right > 2 * third              ? ViewTexts::tr("to the right")
                                         : QString();
    if (row.isEmpty() && column.isEmpty())
        return ViewTexts::tr("in the middle of the picture");
    return row.isEmpty() || column.isEmpty() ? row + column : ViewTexts::tr("%1, %2").arg(row, column);
}

QString seenPlace(const NxViewpoint& viewpoint, const VbVec3d& point, double aspect)
{
    const float distance = viewpoint.distanceTo(point);
    if (!(distance > 0))
        return ViewTexts::tr("behind the viewer");
    const VbVec3d middle = viewpoint.pointAt(VbVec2f(0.5F, 0.5F), 1, distance);
    const VbVec3f right = viewpoint.rightAxis();
    const VbVec3f up = viewpoint.upAxis();
    double across = 0;
    double upwards = 0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double offset = point[axis] - middle[axis];
        across += offset * static_cast<double>(right[axis]);
        upwards += offset * static_cast<double>(up[axis]);
    }
    const auto height = static_cast<double>(viewpoint.heightAt(distance));
    return placeText(0.5 + across / (height * aspect), 0.5 + upwards / height);
}

QString selectionText(const SceneView& view)
{
    const NxNode* const node = view.selectedNode();
    if (node == nullptr)
        return ViewTexts::tr("Nothing is selected.");
    const QString name = nodeText(*node);
    const NxBounds bounds = view.selectionBounds();
    if (bounds.isEmpty())
        return ViewTexts::tr("Selected: %1. It can't be seen by itself.").arg(name);
    QStringList sizes;
    VbVec3d center;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        constexpr int digits = 4;
        sizes += QLocale::c().toString(static_cast<double>(bounds.max[axis] - bounds.min[axis]), 'g', digits);
        center[axis] = (static_cast<double>(bounds.min[axis]) + static_cast<double>(bounds.max[axis])) / 2;
    }
    const double aspect = static_cast<double>(view.width()) / std::max(1, view.height());
    return ViewTexts::tr("Selected: %1, %2 units large, %3.")
        .arg(name, sizes.join(ViewTexts::tr(" by ")), seenPlace(view.viewpoint(), center, aspect));
}

} // namespace

QString orvane::viewText(const SceneView& view)
{
    if (view.scene() == nullptr)
        return ViewTexts::tr("No scene is open.");
    QStringList sentences;
    const NxDrawingCounts counts = view.drawing().counts();
    const auto all = static_cast<int>(counts.drawnItems + counts.culledItems);
    sentences += all == 0
        ? ViewTexts::tr("Nothing of the scene can be seen.")
        : ViewTexts::tr("%1 of %2 meshes are in view.").arg(static_cast<int>(counts.drawnItems)).arg(all);
    sentences += viewpointText(view.viewpoint());
    sentences += selectionText(view);
    return sentences.join(u' ');
}
