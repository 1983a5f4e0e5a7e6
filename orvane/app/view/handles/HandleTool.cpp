#include "orvane/app/view/handles/HandleTool.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/values/FieldText.h"
#include "orvane/app/fields/values/FieldWriteCommand.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/handles/HandlePainter.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/ChangeRecord.h"
#include "meridane/scene/fields/NxField.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

using namespace meridane;

namespace {

PicturePlace placeOf(const QPointF& position)
{
    return {position.x(), position.y()};
}

} // namespace

HandleTool::HandleTool(SceneView* view, SceneTreePanel* tree, OrvServices& services)
    : QObject(view)
    , m_view(view)
    , m_services(services)
    , m_targets(tree)
{
    connect(tree, &SceneTreePanel::selectionChanged, this, &HandleTool::select);
    connect(view, &SceneView::sceneChanged, this, [this] { m_targets.clear(); });
    view->input().addTool(this);
}

void HandleTool::setKind(std::optional<Kind> kind)
{
    cancel();
    m_kind = kind;
    select();
}

void HandleTool::setAxes(HandleAxes axes)
{
    cancel();
    m_axes = axes;
    m_view->update();
}

void HandleTool::select()
{
    if (m_drag) // the drag goes on with the nodes that it began with
        return;
    if (m_kind)
        m_targets.collect();
    else
        m_targets.clear();
    m_hovered = HandlePart::None;
    m_view->update();
    Q_EMIT changed();
}

PictureProjection HandleTool::projection() const
{
    return {m_view->viewpoint(), static_cast<double>(m_view->width()), static_cast<double>(m_view->height())};
}

std::optional<HandleShape> HandleTool::shape() const
{
    std::optional<HandleFrame> frame
        = m_kind && m_view->scene() != nullptr ? m_targets.frame(*m_kind, m_axes) : std::nullopt;
    if (!frame)
        return {};
    if (m_drag)
        frame->axes = m_drag->frame().axes; // which the drag turns otherwise
    return HandleShape(*m_kind, *frame, projection());
}

bool HandleTool::mousePress(const QMouseEvent& event)
{
    if (m_drag) {
        if (event.button() == Qt::RightButton)
            cancel();
        return true;
    }
    const bool takes = event.button() == Qt::LeftButton
        && (event.modifiers() == Qt::NoModifier || event.modifiers() == Qt::ControlModifier);
    if (!takes || !m_kind)
        return false;
    m_targets.collect(); // the nodes may have other places by now
    const std::optional<HandleShape> handles = shape();
    const HandlePart part = handles ? handles->partAt(placeOf(event.position())) : HandlePart::None;
    if (part == HandlePart::None)
        return false;
    if (!hasIgnoredField())
        begin(part, event.position());
    return true;
}

bool HandleTool::hasIgnoredField()
{
    for (const NodePlacement& placement : m_targets.placements(*m_kind)) {
        NxNode& node = placement.node();
        for (const NxField* field : NodePlacement::fields(node, *m_kind)) {
            if (!field->isIgnored())
                continue;
            Q_EMIT refused(
                tr("%1 of \"%2\" is ignored, so a change of it would not be seen. Clear its mark \"ignored\" "
                   "in the field table first.")
                    .arg(orvane::toQString(node.getFieldName(field)), orvane::nodeName(node)));
            return true;
        }
    }
    return false;
}

void HandleTool::begin(HandlePart part, const QPointF& place)
{
    m_placements = m_targets.placements(*m_kind);
    m_before.clear();
    for (const NodePlacement& placement : m_placements) {
        for (NxField* const field : NodePlacement::fields(placement.node(), *m_kind))
            m_before.push_back(field->recordOfValue());
    }
    m_typed.clear();
    m_place = place;
    m_drag.emplace(*m_kind, part, *m_targets.frame(*m_kind, m_axes), projection(), placeOf(place));
    m_services.beginEdit(label());
    m_view->update();
}

QString HandleTool::label() const
{
    const auto count = static_cast<int>(m_placements.size());
    const QString name = count == 1 ? orvane::nodeName(m_placements.front().node()) : tr("%n nodes", nullptr, count);
    switch (*m_kind) {
    case Kind::Move:
        return tr("Move %1").arg(name);
    case Kind::Turn:
        return tr("Turn %1").arg(name);
    case Kind::Scale:
        return tr("Scale %1").arg(name);
    }
    return {};
}

bool HandleTool::mouseMove(const QMouseEvent& event)
{
    if (event.buttons() == Qt::NoButton) {
        const std::optional<HandleShape> handles = shape();
        const HandlePart part = handles ? handles->partAt(placeOf(event.position())) : HandlePart::None;
        if (std::exchange(m_hovered, part) != part)
            m_view->update();
        return part != HandlePart::None;
    }
    if (!m_drag)
        return true;
    m_place = event.position();
    // What is typed counts until it is removed.
    if (m_typed.isEmpty())
        apply(m_drag->changeAt(placeOf(m_place), event.modifiers().testFlag(Qt::ControlModifier)));
    return true;
}

void HandleTool::apply(const PlacementChange& change)
{
    for (NodePlacement& placement : m_placements)
        static_cast<void>(placement.apply(change)); // one that can't be computed stays where it is
    m_view->update();
}

void HandleTool::mouseRelease(const QMouseEvent& /*event*/)
{
    end();
}

void HandleTool::end()
{
    if (!m_drag)
        return;
    m_drag.reset();
    // Where the journal doesn't undo, a command does.
    if (!m_services.isUndoExact())
        m_services.pushCommand(new FieldWriteCommand(std::exchange(m_before, {})));
    m_services.endEdit();
    m_before.clear();
    m_placements.clear();
    select();
}

void HandleTool::restore()
{
    for (NodePlacement& placement : m_placements)
        placement.restore();
}

void HandleTool::cancel()
{
    if (!m_drag)
        return;
    restore();
    m_before.clear(); // nothing to undo
    m_drag.reset();
    m_services.endEdit();
    m_placements.clear();
    select();
}

void HandleTool::leave()
{
    if (std::exchange(m_hovered, HandlePart::None) != HandlePart::None)
        m_view->update();
}

bool HandleTool::wantsKey(const QKeyEvent& /*event*/) const
{
    return m_drag.has_value();
}

bool HandleTool::keyPress(const QKeyEvent& event)
{
    if (!m_drag)
        return false;
    switch (event.key()) {
    case Qt::Key_Escape:
        cancel();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_typed.isEmpty() || m_typed.numbers(m_drag->numberAxis()))
            end();
        return true;
    case Qt::Key_Backspace:
        m_typed.removeLast();
        break;
    default:
        if (event.text().size() != 1 || !m_typed.type(event.text().front()))
            return true; // no other key means anything meanwhile
        break;
    }
    applyTyped();
    return true;
}

void HandleTool::applyTyped()
{
    if (m_typed.isEmpty())
        apply(m_drag->changeAt(placeOf(m_place), false));
    else if (const auto numbers = m_typed.numbers(m_drag->numberAxis()))
        apply(m_drag->changeOf(*numbers));
    m_view->update();
}

QString HandleTool::numberText() const
{
    if (!m_typed.isEmpty())
        return m_typed.text();
    constexpr int digits = 5;
    const HandleDrag::Numbers& numbers = m_drag->numbers();
    const bool isAll = m_drag->part() == HandlePart::Center && m_drag->kind() != Kind::Move;
    QStringList parts;
    for (std::size_t i = 0; i < (isAll ? 1U : 3U); ++i) {
        if (!numbers[i])
            continue;
        const QString letter = isAll ? QString() : QStringLiteral("xyz").at(static_cast<int>(i)) + QStringLiteral(" ");
        const QString number = QString::number(*numbers[i], 'g', digits);
        if (m_drag->kind() == Kind::Turn)
            parts.append(letter + tr("%1°", "angle in degrees").arg(number));
        else
            parts.append(letter + (m_drag->kind() == Kind::Scale ? tr("× %1", "factor").arg(number) : number));
    }
    return parts.join(QStringLiteral("   "));
}

void HandleTool::paint(QPainter& painter) const
{
    const std::optional<HandleShape> handles = shape();
    if (!handles)
        return;
    orvane::paintHandles(painter, *handles, *m_kind, m_drag ? m_drag->part() : m_hovered);
    if (const QString text = m_drag ? numberText() : QString(); !text.isEmpty())
        orvane::paintHandleText(painter, text, m_place, m_view->rect(), m_view->palette());
}
