#include "orvane/app/view/ViewPictures.h"

#include "orvane/app/view/ViewDrawing.h"

#include <QElapsedTimer>

#include <chrono>
#include <utility>

namespace {

/// How long nothing has moved when the picture with full detail begins.
constexpr std::chrono::milliseconds restTime(150);
/// How often the view asks whether meshes are reduced.
constexpr std::chrono::milliseconds waitTime(50);
/// How long the view may be busy before it reacts to the user.
constexpr double mostMilliseconds = 6;

DetailGovernor::Clock usualClock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

} // namespace

ViewPictures::ViewPictures(ViewDrawing& drawing, DetailGovernor::Clock clock, QObject* parent)
    : QObject(parent)
    , m_drawing(drawing)
    , m_governor(clock ? std::move(clock) : usualClock())
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(restTime);
    m_work.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &ViewPictures::startRefining);
    connect(&m_work, &QTimer::timeout, this, &ViewPictures::work);
}

void ViewPictures::reset()
{
    m_governor.reset();
    m_rest.stop();
    m_work.stop();
    m_isFirst = true;
    m_isRefining = false;
    m_isFull = true;
}

bool ViewPictures::isLarge() const
{
    constexpr std::uint64_t corners = 3;
    return m_drawing.counts().fullCorners > m_manyTriangles * corners;
}

QImage ViewPictures::draw(const NxViewpoint& viewpoint, QSize size, float scale)
{
    m_rest.stop();
    m_isRefining = false;
    m_viewpoint = viewpoint;
    m_size = size;
    m_scale = scale;
    m_isFull = m_isAlwaysFull || std::exchange(m_isFirst, false) || !isLarge();
    QImage picture;
    if (m_isFull) {
        picture = m_drawing.draw(viewpoint, size, scale);
    } else {
        const bool isSettled = !m_drawing.isReducing();
        const double milliseconds = m_drawing.drawReduced(viewpoint, size, scale, m_governor.detail(), picture);
        // Times say nothing about the detail while meshes are still being reduced, nor do those of uploads. Of many
        // meshes, a few need another reduced mesh in nearly every picture.
        if (isSettled)
            m_governor.note(milliseconds - m_drawing.counts().uploadMilliseconds);
        m_rest.start();
    }
    if (!m_isAlwaysFull && isLarge() && !m_work.isActive())
        m_work.start(0);
    return picture;
}

void ViewPictures::startRefining()
{
    m_isRefining = m_drawing.begin(m_viewpoint, m_size, m_scale);
    m_work.start(0);
}

void ViewPictures::work()
{
    m_drawing.reduceMeshes(mostMilliseconds);
    const bool isRefining = m_isRefining && refineSome();
    if (isRefining || m_drawing.canReduceMore())
        m_work.start(0);
    else if (m_drawing.isReducing())
        m_work.start(waitTime);
}

bool ViewPictures::refineSome()
{
    switch (m_drawing.proceed(2 * mostMilliseconds)) {
    case NxPictureState::Unfinished:
        return true;
    case NxPictureState::Outdated:
        m_isRefining = m_drawing.begin(m_viewpoint, m_size, m_scale);
        return m_isRefining;
    case NxPictureState::Finished:
        break;
    }
    m_isRefining = false;
    m_isFull = true;
    Q_EMIT refined(m_drawing.finishedPicture());
    return false;
}
