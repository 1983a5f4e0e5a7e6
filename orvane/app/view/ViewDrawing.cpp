#include "orvane/app/view/ViewDrawing.h"

#include "orvane/app/base/TextConversion.h"

#include "meridane/base/NxPreferences.h"
#include "meridane/gl/NxSceneDrawing.h"
#include "meridane/gl/gpu/NxImage.h"
#include "meridane/gl/gpu/NxOffscreenContext.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace {

constexpr double millisecondsPerNanosecond = 1e-6;

std::vector<NxNode*> pointersTo(const std::vector<NxRef<NxNode>>& nodes)
{
    std::vector<NxNode*> pointers;
    pointers.reserve(nodes.size());
    for (const NxRef<NxNode>& node : nodes)
        pointers.push_back(node.get());
    return pointers;
}

} // namespace

ViewDrawing::ViewDrawing()
{
    QObject::connect(&m_textures, &TextureFiles::changed, &m_textures, [this](const std::string& fileName) {
        if (m_drawing != nullptr)
            m_drawing->reloadImage(fileName);
    });
}

ViewDrawing::~ViewDrawing()
{
    if (m_context != nullptr)
        static_cast<void>(m_context->makeCurrent()); // fails if the context was lost; its objects are gone then
    m_drawing.reset();
    m_buffer.reset();
    m_reducedBuffer.reset();
}

void ViewDrawing::setSamples(int samples)
{
    m_samples = samples;
    if (m_buffer != nullptr)
        m_buffer->setSamples(samples);
}

bool ViewDrawing::start()
{
    if (isStarted() || !m_problem.isEmpty())
        return isStarted();
    if (NxPreferences::getBool("ORVANE_VIEW", 1) == 0) {
        m_problem = QCoreApplication::translate("ViewDrawing",
            "The view is turned off by the preference ORVANE_VIEW. Remove it, or set it to 1, and start Orvane again.");
        return false;
    }
    if (!makeContext())
        return false;
    m_buffer = std::make_unique<PictureBuffer>(m_functions);
    m_buffer->setSamples(m_samples);
    m_reducedBuffer = std::make_unique<PictureBuffer>(m_functions, PictureBuffer::Edges::Rough);
    m_drawing = std::make_unique<NxSceneDrawing>(m_functions);
    m_drawing->setImageLoader([this](const std::string& fileName, NxImage& image, std::string& reason) {
        return m_textures.load(fileName, image, reason);
    });
    m_drawing->setStyle(m_style);
    m_drawing->setScene(m_scene.get());
    m_drawing->setSelectedPath(pointersTo(m_selected));
    m_drawing->setOtherSelectedNodes(pointersTo(m_otherSelected));
    m_drawing->setVisibility(m_visibility);
    m_drawing->setMarkedPoints(pointersTo(std::exchange(m_markedPath, {})), std::exchange(m_markedPoints, {}));
    m_drawing->setChangeHook(m_hook);
    return true;
}

bool ViewDrawing::makeContext()
{
    m_context = std::make_unique<NxOffscreenContext>();
    if (!m_context->isValid() || !m_context->makeCurrent()) {
        giveUp(orvane::toQString(m_context->error().view()));
        return false;
    }
    if (!m_functions.load(&NxOffscreenContext::getProcAddress)) {
        giveUp(orvane::toQString(m_functions.error()));
        return false;
    }
    return true;
}

void ViewDrawing::giveUp(const QString& reason)
{
    m_problem = QCoreApplication::translate("ViewDrawing",
        "The scene can't be drawn here: %1. Install a driver with OpenGL 3.3, such as the packages libegl-mesa0 and "
        "libgl1-mesa-dri, and start Orvane again. Everything else works without it.")
                    .arg(reason);
}

void ViewDrawing::restart()
{
    m_drawing->contextLost();
    m_buffer->contextLost();
    m_reducedBuffer->contextLost();
    m_context.reset();
    if (makeContext())
        return;
    m_drawing.reset();
    m_buffer.reset();
    m_reducedBuffer.reset();
}

void ViewDrawing::setChangeHook(std::function<void()> hook)
{
    m_hook = std::move(hook);
}

void ViewDrawing::setScene(NxGroup* scene, const QString& folder)
{
    m_scene = NxRef<NxGroup>(scene);
    m_selected.clear();
    m_markedPath.clear();
    m_markedPoints.clear();
    m_otherSelected.clear();
    m_visibility = NxNodeVisibility();
    m_textures.clear();
    m_textures.setFolder(folder);
    if (m_drawing != nullptr)
        m_drawing->setScene(scene);
}

void ViewDrawing::setSelectedPath(const std::vector<NxNode*>& nodes)
{
    m_selected.clear();
    for (NxNode* node : nodes)
        m_selected.emplace_back(node);
    if (m_drawing != nullptr)
        m_drawing->setSelectedPath(nodes);
}

void ViewDrawing::setMarkedPoints(const std::vector<NxNode*>& nodes, std::vector<VbVec3f> points)
{
    if (m_drawing != nullptr) {
        m_drawing->setMarkedPoints(nodes, std::move(points));
        return;
    }
    m_markedPath.assign(nodes.begin(), nodes.end());
    m_markedPoints = std::move(points);
}

void ViewDrawing::setHoveredPath(const std::vector<NxNode*>& nodes)
{
    if (m_drawing != nullptr)
        m_drawing->setHoveredPath(nodes);
}

void ViewDrawing::setOtherSelectedNodes(const std::vector<NxNode*>& nodes)
{
    m_otherSelected.assign(nodes.begin(), nodes.end());
    if (m_drawing != nullptr)
        m_drawing->setOtherSelectedNodes(nodes);
}

void ViewDrawing::setVisibility(const NxNodeVisibility& visibility)
{
    m_visibility = visibility;
    if (m_drawing != nullptr)
        m_drawing->setVisibility(visibility);
}

void ViewDrawing::setStyle(const NxDrawingStyle& style)
{
    m_style = style;
    if (m_drawing != nullptr)
        m_drawing->setStyle(style);
}

bool ViewDrawing::makeCurrent()
{
    if (isStarted() && (!m_context->makeCurrent() || NxOffscreenContext::isLost()))
        restart();
    return isStarted();
}

std::vector<std::vector<NxNode*>> ViewDrawing::seenIn(
    const QRect& part, const NxViewpoint& viewpoint, QSize size, float scale)
{
    if (!makeCurrent())
        return {};
    const NxPixelRectangle pixels{part.left(), size.height() - part.top() - part.height(), part.width(), part.height()};
    return m_drawing->seenIn(pixels, viewpoint, size.width(), size.height(), scale);
}

QImage ViewDrawing::draw(const NxViewpoint& viewpoint, QSize size, float scale)
{
    if (!makeCurrent())
        return {};
    const QSize possible = m_buffer->bind(size);
    if (possible.isEmpty())
        return {};
    QElapsedTimer clock;
    clock.start();
    m_drawing->draw(viewpoint, possible.width(), possible.height(), scale);
    m_textures.dropResults();
    ++m_pictures;
    QImage picture = m_buffer->read();
    m_milliseconds = static_cast<double>(clock.nsecsElapsed()) * millisecondsPerNanosecond;
    return picture;
}

double ViewDrawing::drawReduced(
    const NxViewpoint& viewpoint, QSize size, float scale, const PictureDetail& detail, QImage& picture)
{
    if (!makeCurrent())
        return 0;
    const QSize possible = m_reducedBuffer->bind(size / detail.divisor);
    if (possible.isEmpty())
        return 0;
    QElapsedTimer clock;
    clock.start();
    const auto divisor = static_cast<float>(detail.divisor);
    m_drawing->draw(viewpoint, possible.width(), possible.height(), scale / divisor, detail.error / divisor);
    ++m_pictures;
    picture = m_reducedBuffer->read();
    return static_cast<double>(clock.nsecsElapsed()) * millisecondsPerNanosecond;
}

bool ViewDrawing::begin(const NxViewpoint& viewpoint, QSize size, float scale)
{
    constexpr double firstCorners = 10'000;
    if (!makeCurrent())
        return false;
    const QSize possible = m_buffer->bind(size);
    if (possible.isEmpty())
        return false;
    QElapsedTimer clock;
    clock.start();
    m_drawing->begin(viewpoint, possible.width(), possible.height(), scale);
    m_cornersInMillisecond = firstCorners;
    m_partMilliseconds = static_cast<double>(clock.nsecsElapsed()) * millisecondsPerNanosecond;
    return true;
}

NxPictureState ViewDrawing::proceed(double time)
{
    if (!makeCurrent())
        return NxPictureState::Outdated;
    m_buffer->bindAgain();
    QElapsedTimer clock;
    clock.start();
    const double corners = std::max(m_cornersInMillisecond * time, 1.0);
    const NxPictureState state = m_drawing->proceed(static_cast<std::uint64_t>(corners));
    m_functions.Finish(); // OpenGL would only collect the work, and do it all at once in the end
    const double taken = static_cast<double>(clock.nsecsElapsed()) * millisecondsPerNanosecond;
    m_partMilliseconds += taken;
    constexpr double mostGrowth = 2;
    m_cornersInMillisecond = std::min(corners / std::max(taken, time / 10), m_cornersInMillisecond * mostGrowth);
    if (state == NxPictureState::Finished) {
        m_textures.dropResults();
        ++m_pictures;
        m_milliseconds = m_partMilliseconds;
    }
    return state;
}

QImage ViewDrawing::finishedPicture()
{
    return makeCurrent() ? m_buffer->read() : QImage();
}

void ViewDrawing::reduceMeshes(double time)
{
    if (!isStarted())
        return;
    QElapsedTimer clock;
    clock.start();
    m_drawing->reduceMeshes(
        [&] { return static_cast<double>(clock.nsecsElapsed()) * millisecondsPerNanosecond >= time; });
}

bool ViewDrawing::isReducing() const
{
    return isStarted() && m_drawing->isReducing();
}

bool ViewDrawing::canReduceMore() const
{
    return isStarted() && m_drawing->canReduceMore();
}

NxDrawingCounts ViewDrawing::counts() const
{
    return isStarted() ? m_drawing->counts() : NxDrawingCounts();
}

NxBounds ViewDrawing::bounds() const
{
    return isStarted() ? m_drawing->bounds() : NxBounds();
}

NxBounds ViewDrawing::bounds(const std::vector<NxNode*>& nodes) const
{
    return isStarted() && !nodes.empty() ? m_drawing->bounds(std::span<NxNode* const>(nodes)) : NxBounds();
}

std::uint64_t ViewDrawing::structure() const
{
    return isStarted() ? m_drawing->structure() : 0;
}
