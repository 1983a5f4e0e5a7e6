#include "orvane/app/view/ViewInput.h"

#include "orvane/app/view/ViewNavigation.h"
#include "orvane/app/view/ViewTool.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QStyleHints>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>
#include <utility>

ViewInput::ViewInput(QWidget& view, ViewNavigation& navigation, Hooks hooks)
    : m_view(view)
    , m_navigation(navigation)
    , m_hooks(std::move(hooks))
{
}

void ViewInput::addTool(ViewTool* tool)
{
    m_tools.insert(m_tools.begin(), tool);
}

void ViewInput::removeTool(ViewTool* tool)
{
    if (m_taker == tool)
        m_taker = nullptr;
    std::erase(m_tools, tool);
}

bool ViewInput::isDragging() const
{
    return m_taker != nullptr || m_navigation.dragUnderWay() != ViewNavigation::Drag::None;
}

void ViewInput::cancel()
{
    if (ViewTool* const taker = std::exchange(m_taker, nullptr); taker != nullptr)
        taker->cancel();
    m_navigation.endDrag();
    m_view.unsetCursor();
    m_depth = -1;
}

bool ViewInput::giveToTools(const QMouseEvent& event)
{
    const auto taker
        = std::find_if(m_tools.begin(), m_tools.end(), [&](ViewTool* tool) { return tool->mousePress(event); });
    if (taker == m_tools.end())
        return false;
    m_taker = *taker;
    m_button = event.button();
    m_withoutMenu = true;
    return true;
}

void ViewInput::mousePress(const QMouseEvent& event)
{
    m_pointer = event.position();
    if (m_taker != nullptr) {
        m_taker->mousePress(event);
        return;
    }
    if (!m_hooks.hasScene() || isDragging())
        return;
    m_withoutMenu = false;
    if (giveToTools(event))
        return;
    if (event.button() == Qt::MiddleButton
        || (event.button() == Qt::LeftButton
            && event.modifiers().testAnyFlags(Qt::ShiftModifier | Qt::ControlModifier)))
        m_navigation.startDrag(ViewNavigation::Drag::Pan, event.position());
    else if (event.button() == Qt::LeftButton)
        m_navigation.startDrag(ViewNavigation::Drag::Orbit, event.position());
    else
        return;
    leaveTools(nullptr);
    m_button = event.button();
    m_pressed = event.position();
    m_isMoving = false;
}

void ViewInput::mouseMove(const QMouseEvent& event)
{
    m_pointer = event.position();
    if (!isDragging()) {
        const auto taker = !m_hooks.hasScene() || event.buttons() != Qt::NoButton
            ? m_tools.end()
            : std::find_if(m_tools.begin(), m_tools.end(), [&](ViewTool* tool) { return tool->mouseMove(event); });
        leaveTools(taker == m_tools.end() ? nullptr : *taker);
        return;
    }
    if (!event.buttons().testFlag(m_button)) { // another widget got the release
        cancel();
        return;
    }
    if (m_taker != nullptr) {
        m_taker->mouseMove(event);
        return;
    }
    const QPointF way = event.position() - m_pressed;
    // A click with an unsteady hand is no drag.
    if (!m_isMoving && way.manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
        return;
    if (!std::exchange(m_isMoving, true))
        m_view.setCursor(
            m_navigation.dragUnderWay() == ViewNavigation::Drag::Pan ? Qt::SizeAllCursor : Qt::ClosedHandCursor);
    m_navigation.drag(event.position());
    m_hooks.moved();
}

void ViewInput::mouseRelease(const QMouseEvent& event)
{
    if (!isDragging() || event.button() != m_button)
        return;
    if (ViewTool* const taker = std::exchange(m_taker, nullptr); taker != nullptr) {
        taker->mouseRelease(event);
        return;
    }
    m_navigation.endDrag();
    m_view.unsetCursor();
    if (!m_isMoving && event.button() == Qt::LeftButton)
        click(event);
}

void ViewInput::leave()
{
    if (!isDragging())
        leaveTools(nullptr);
}

void ViewInput::leaveTools(const ViewTool* but)
{
    for (ViewTool* tool : m_tools) {
        if (tool != but)
            tool->leave();
    }
}

void ViewInput::wheel(const QWheelEvent& event)
{
    constexpr float notch = 120;
    const auto turned = static_cast<float>(event.angleDelta().y());
    if (turned == 0 || !m_hooks.hasScene() || m_taker != nullptr)
        return;
    m_navigation.zoom(turned / notch, event.position());
    m_hooks.moved();
}

bool ViewInput::overridesShortcut(const QKeyEvent& event) const
{
    if (m_taker != nullptr)
        return m_taker->wantsKey(event);
    return m_hooks.hasScene()
        && std::any_of(m_tools.begin(), m_tools.end(), [&](const ViewTool* tool) { return tool->wantsKey(event); });
}

bool ViewInput::keyPress(const QKeyEvent& event)
{
    if (!m_hooks.hasScene())
        return false;
    if (m_taker != nullptr)
        return m_taker->keyPress(event);
    if (std::any_of(m_tools.begin(), m_tools.end(), [&](ViewTool* tool) { return tool->keyPress(event); }))
        return true;
    if (m_navigation.pressKey(event)) {
        m_hooks.moved();
        return true;
    }
    const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (isReturn && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier)
        pickMiddle();
    else if (event.key() == Qt::Key_Escape)
        m_hooks.picked({});
    else
        return false;
    return true;
}

void ViewInput::contextMenu(const QContextMenuEvent& event)
{
    const bool isByKey = event.reason() == QContextMenuEvent::Keyboard;
    if (!m_hooks.hasScene() || isDragging() || (!isByKey && m_withoutMenu))
        return;
    if (isByKey)
        m_hooks.menuRequested(m_view.mapToGlobal(m_view.rect().center()));
    else
        openMenu(event.pos(), event.globalPos());
}

void ViewInput::openMenu(const QPointF& position, const QPoint& place)
{
    // What repeated clicks have picked there is what the menu is about.
    if (!(isClickedPlace(position) && m_depth > 0))
        pick(position, 0);
    m_hooks.menuRequested(place);
}

void ViewInput::paint(QPainter& painter) const
{
    for (std::size_t tool = m_tools.size(); tool-- > 0;)
        m_tools[tool]->paint(painter);
    if (m_showsMiddle && m_hooks.hasScene())
        paintMiddle(painter);
}

// A cross in black and white, which is seen on every picture.
void ViewInput::paintMiddle(QPainter& painter) const
{
    const QPoint middle = m_view.rect().center();
    const int arm = m_view.fontMetrics().height() / 2;
    for (const auto& [color, width] : {std::pair(Qt::black, 3), std::pair(Qt::white, 1)}) {
        painter.setPen(QPen(color, width));
        painter.drawLine(middle - QPoint(arm, 0), middle + QPoint(arm, 0));
        painter.drawLine(middle - QPoint(0, arm), middle + QPoint(0, arm));
    }
}

std::optional<NxRayHit> ViewInput::hitAt(const QPointF& position) const
{
    for (const ViewTool* tool : m_tools) {
        if (std::optional<NxRayHit> hit = tool->hitAt(position))
            return hit;
    }
    return m_hooks.hitAt(position);
}

std::vector<std::vector<NxNode*>> ViewInput::nodesOfToolsIn(const QRectF& rectangle) const
{
    std::vector<std::vector<NxNode*>> paths;
    for (const ViewTool* tool : m_tools) {
        for (std::vector<NxNode*>& path : tool->nodesIn(rectangle))
            paths.push_back(std::move(path));
    }
    return paths;
}

bool ViewInput::isClickedPlace(const QPointF& position) const
{
    constexpr double unsteady = 3;
    return m_depth >= 0 && (position - m_clicked).manhattanLength() <= unsteady;
}

std::optional<NxRayHit> ViewInput::hitAt(const QPointF& position, int depth) const
{
    if (depth == 0)
        return hitAt(position);
    std::vector<NxRayHit> hits = m_hooks.hitsAt(position);
    for (const ViewTool* tool : m_tools) {
        if (std::optional<NxRayHit> hit = tool->hitAt(position)) {
            hits.insert(hits.begin(), *hit);
            break;
        }
    }
    if (hits.empty())
        return {};
    const auto count = static_cast<int>(hits.size());
    return hits[static_cast<std::size_t>((depth % count + count) % count)];
}

std::optional<NxRayHit> ViewInput::nextHit(const QPointF& position) const
{
    return hitAt(position, isClickedPlace(position) ? m_depth + 1 : 0);
}

void ViewInput::click(const QMouseEvent& event)
{
    if (std::any_of(m_tools.begin(), m_tools.end(), [&](ViewTool* tool) { return tool->click(event.position()); }))
        return;
    // A click with a modifier adds to the selection, and one on the same place takes it away again.
    const bool isAgain = isClickedPlace(event.position()) && event.modifiers() == Qt::NoModifier;
    pick(event.position(), isAgain ? m_depth + 1 : 0);
}

void ViewInput::pick(const QPointF& position, int depth)
{
    m_clicked = position;
    m_depth = depth;
    m_hooks.picked(hitAt(position, depth));
}

bool ViewInput::pickBehind(bool forwards)
{
    if (m_taker != nullptr || !m_hooks.hasScene() || !isClickedPlace(m_pointer))
        return false;
    if (m_hooks.hitsAt(m_clicked).size() < 2)
        return false;
    pick(m_clicked, m_depth + (forwards ? 1 : -1));
    return true;
}

void ViewInput::pickMiddle()
{
    if (m_taker != nullptr || !m_hooks.hasScene())
        return;
    const QPointF middle = QRectF(m_view.rect()).center();
    pick(middle, isClickedPlace(middle) ? m_depth + 1 : 0);
}
