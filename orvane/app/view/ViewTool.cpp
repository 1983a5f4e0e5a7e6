#include "orvane/app/view/ViewTool.h"

bool ViewTool::mousePress(const QMouseEvent& /*event*/)
{
    return false;
}

bool ViewTool::mouseMove(const QMouseEvent& /*event*/)
{
    return false;
}

void ViewTool::mouseRelease(const QMouseEvent& /*event*/) { }

bool ViewTool::click(const QPointF& /*position*/)
{
    return false;
}

void ViewTool::cancel() { }

void ViewTool::leave() { }

bool ViewTool::wantsKey(const QKeyEvent& /*event*/) const
{
    return false;
}

bool ViewTool::keyPress(const QKeyEvent& /*event*/)
{
    return false;
}

void ViewTool::paint(QPainter& /*painter*/) const { }

std::optional<NxRayHit> ViewTool::hitAt(const QPointF& /*position*/) const
{
    return {};
}

std::vector<std::vector<NxNode*>> ViewTool::nodesIn(const QRectF& /*rectangle*/) const
{
    return {};
}
