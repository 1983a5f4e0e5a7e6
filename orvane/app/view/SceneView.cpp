#include "orvane/app/view/SceneView.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/view/ViewMessage.h"
#include "orvane/app/view/ViewPicking.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

/// Whatever else the window's first picture has led to goes first: the context takes longer than all of it.
constexpr std::chrono::milliseconds startDelay(15);

std::vector<NxRef<NxNode>> held(const std::vector<NxNode*>& nodes)
{
    return {nodes.begin(), nodes.end()};
}

} // namespace

SceneView::SceneView(QWidget* parent)
    : QWidget(parent)
    , m_navigation(m_viewpoint,
          [this](const QPointF& position) -> std::optional<VbVec3d> {
              const std::optional<NxRayHit> hit = hitAt(position);
              return hit ? std::optional(hit->point) : std::nullopt;
          })
    , m_input(*this, m_navigation, inputHooks())
{
    setObjectName(QStringLiteral("sceneView"));
    orvane::followLanguage(this, [this] {
        setAccessibleName(tr("View"));
        setAccessibleDescription(tr(
            "The picture of the scene. The arrow keys go round it, with Shift they move it; plus and "
            "minus zoom, F frames the selection, A frames all, 1 to 6 look along the axes, 7 from a corner. With the "
            "right button held, W, A, S, D, Q and E fly."));
    });
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_viewpoint = orvane::firstViewpoint();
    orvane::setViewColors(m_style, palette(), m_background);
    m_drawing.setStyle(m_style);
    m_drawing.setChangeHook([this] { redrawLater(); });
    connect(&m_pictures, &ViewPictures::refined, this, [this](const QImage& picture) {
        m_picture = picture;
        update();
    });
}

SceneView::~SceneView() = default;

ViewInput::Hooks SceneView::inputHooks()
{
    ViewInput::Hooks hooks;
    hooks.hasScene = [this] { return static_cast<bool>(m_scene); };
    hooks.hitAt = [this](const QPointF& position) { return hitAt(position); };
    hooks.hitsAt = [this](const QPointF& position) { return hitsAt(position); };
    hooks.moved = [this] { noteMove(); };
    hooks.picked = [this](const std::optional<NxRayHit>& hit) {
        if (hit)
            Q_EMIT picked(*hit);
        else
            Q_EMIT pickedNothing();
    };
    hooks.menuRequested = [this](const QPoint& place) { Q_EMIT menuRequested(place); };
    return hooks;
}

void SceneView::start()
{
    if (m_drawing.isStarted() || m_message != nullptr)
        return;
    if (!m_drawing.start())
        showProblem();
    redrawLater();
}

void SceneView::showProblem()
{
    if (m_message != nullptr)
        return;
    m_message = orvane::addViewMessage(this, m_drawing.problem());
}

void SceneView::setScene(NxGroup* scene, const QString& folder, const std::optional<NxViewpoint>& viewpoint)
{
    Q_EMIT sceneAboutToChange();
    m_isSceneDrawn = false;
    m_scene = NxRef<NxGroup>(scene);
    m_selected.clear();
    m_drawing.setScene(scene, folder);
    m_pictures.reset();
    m_input.cancel();
    m_viewpoint = viewpoint.value_or(orvane::firstViewpoint());
    m_hasMoved = viewpoint.has_value();
    m_showsAll = !viewpoint.has_value();
    m_framesAll = m_showsAll;
    redrawLater();
    Q_EMIT sceneChanged();
}

void SceneView::setSelectedPath(const std::vector<NxNode*>& nodes)
{
    m_selected = held(nodes);
    m_drawing.setSelectedPath(nodes);
    if (QAccessible::isActive()) { // the description says what is selected
        QAccessibleEvent described(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&described);
    }
}

void SceneView::setViewpoint(const NxViewpoint& viewpoint)
{
    m_viewpoint = viewpoint;
    m_hasMoved = true;
    m_showsAll = false;
    m_framesAll = false;
    redrawLater();
}

void SceneView::navigate(const NxViewpoint& viewpoint)
{
    m_viewpoint = viewpoint;
    noteMove();
}

void SceneView::goTo(const NxViewpoint& viewpoint)
{
    const NxViewpoint before = m_viewpoint;
    noteMove();
    m_viewpoint = viewpoint;
    Q_EMIT jumped(before);
}

void SceneView::showStep(const NxViewpoint& viewpoint)
{
    m_viewpoint = viewpoint;
    redrawLater();
}

void SceneView::noteMove()
{
    m_input.noteMove();
    m_hasMoved = true;
    m_showsAll = false;
    m_framesAll = false;
    redrawLater();
    Q_EMIT moved();
}

void SceneView::showAll()
{
    m_showsAll = true;
    m_framesAll = true;
    redrawLater();
}

void SceneView::frameAll()
{
    const NxViewpoint before = m_viewpoint;
    noteMove();
    showAll();
    frameIfAsked();
    Q_EMIT jumped(before);
}

void SceneView::frameIfAsked()
{
    const NxBounds bounds = m_framesAll ? m_drawing.bounds() : NxBounds();
    if (bounds.isEmpty())
        return;
    m_viewpoint.frame(bounds.min, bounds.max, m_navigation.aspect());
    m_framesAll = false;
}

std::vector<NxNode*> SceneView::pointers(const std::vector<NxRef<NxNode>>& nodes)
{
    std::vector<NxNode*> pointers(nodes.size());
    std::transform(nodes.begin(), nodes.end(), pointers.begin(), [](const auto& node) { return node.get(); });
    return pointers;
}

void SceneView::frameSelection()
{
    std::vector<NxNode*> nodes = pointers(m_selected);
    NxBounds bounds = m_drawing.bounds(nodes);
    // A material or a light has no extent; a group around it has.
    while (bounds.isEmpty() && !nodes.empty()) {
        nodes.pop_back();
        bounds = m_drawing.bounds(nodes);
    }
    if (bounds.isEmpty()) {
        frameAll();
        return;
    }
    const NxViewpoint before = m_viewpoint;
    noteMove();
    m_viewpoint.frame(bounds.min, bounds.max, m_navigation.aspect());
    Q_EMIT jumped(before);
}

void SceneView::lookAlong(const VbVec3f& direction, const VbVec3f& up)
{
    const NxViewpoint before = m_viewpoint;
    const bool showedAll = m_showsAll;
    noteMove();
    m_viewpoint.lookAlong(direction, up);
    if (showedAll)
        showAll();
    frameIfAsked();
    Q_EMIT jumped(before);
}

void SceneView::lookFromCorner()
{
    setProjection(NxViewpoint::PERSPECTIVE);
    lookAlong(orvane::firstViewpoint().viewDirection(), VbVec3f(0, 1, 0));
}

void SceneView::setProjection(NxViewpoint::Projection projection)
{
    if (projection == m_viewpoint.projection)
        return;
    const bool showedAll = m_showsAll;
    noteMove();
    m_viewpoint.setProjection(projection);
    if (showedAll)
        showAll();
}

void SceneView::setStyle(const NxDrawingStyle& style)
{
    m_style = style;
    orvane::setViewColors(m_style, palette(), m_background);
    m_drawing.setStyle(m_style);
    redrawLater();
}

void SceneView::setBackground(orvane::ViewBackground background)
{
    m_background = background;
    setStyle(m_style);
}

QSize SceneView::sizeHint() const
{
    return {640, 480};
}

QSize SceneView::minimumSizeHint() const
{
    return {160, 120};
}

void SceneView::redrawLater()
{
    m_stale = true;
    update();
}

void SceneView::redraw(const QSize& deviceSize)
{
    frameIfAsked(); // not with each picture: an object that is moved would seem not to move
    m_stale = false;
    m_drawnSize = deviceSize;
    m_picture = m_pictures.draw(m_viewpoint, deviceSize, static_cast<float>(devicePixelRatioF()));
    m_isSceneDrawn = static_cast<bool>(m_scene);
    if (!m_drawing.isStarted())
        showProblem();
}

void SceneView::paintEvent(QPaintEvent*)
{
    const QSize deviceSize = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (m_drawing.isStarted() && (m_stale || deviceSize != m_drawnSize))
        redraw(deviceSize);
    QPainter painter(this);
    if (!m_picture.isNull() && m_message == nullptr) {
        painter.drawImage(QRectF(rect()), m_picture);
    } else if (m_message != nullptr) {
        painter.fillRect(rect(), palette().window());
    } else {
        painter.fillRect(rect(), orvane::viewBackground(m_style, height()));
    }
    if (m_message == nullptr)
        m_input.paint(painter);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (!std::exchange(m_startQueued, true)) {
        // The delay begins when the whole window is painted: its first texts take longer than that.
        const auto startSoon = [this] { QTimer::singleShot(startDelay, this, &SceneView::start); };
        QMetaObject::invokeMethod(this, startSoon, Qt::QueuedConnection);
    }
}

void SceneView::resizeEvent(QResizeEvent*)
{
    m_navigation.setSize(size());
    if (m_showsAll)
        showAll();
    redrawLater();
}

void SceneView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        setStyle(m_style);
    QWidget::changeEvent(event);
}

std::optional<NxRayPick> SceneView::pickAt(const QPointF& position) const
{
    if (!m_scene)
        return {};
    return orvane::pickAt(m_viewpoint, m_navigation.place(position), size(), m_style.section, m_drawing.visibility());
}

std::optional<NxRayHit> SceneView::hitAt(const QPointF& position) const
{
    const std::optional<NxRayPick> pick = pickAt(position);
    return pick ? pick->pick(*m_scene) : std::nullopt;
}

std::vector<NxRayHit> SceneView::hitsAt(const QPointF& position) const
{
    constexpr std::size_t most = 100;
    const std::optional<NxRayPick> pick = pickAt(position);
    return pick ? pick->pickAll(*m_scene, most) : std::vector<NxRayHit>();
}

bool SceneView::focusNextPrevChild(bool next)
{
    return m_input.pickBehind(next) || QWidget::focusNextPrevChild(next);
}

void SceneView::keyPressEvent(QKeyEvent* event)
{
    if (!m_input.keyPress(*event))
        QWidget::keyPressEvent(event);
}

void SceneView::leaveEvent(QEvent*)
{
    m_input.leave();
}

bool SceneView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && m_input.overridesShortcut(static_cast<const QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void SceneView::focusInEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    m_input.setMiddleShown(
        reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason);
    update();
}

void SceneView::focusOutEvent(QFocusEvent*)
{
    m_input.setMiddleShown(false);
    update();
}
