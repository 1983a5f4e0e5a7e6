#pragma once

#include "orvane/app/view/refinement/DetailGovernor.h"

#include "meridane/gl/geometry/NxViewpoint.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QTimer>

#include <cstdint>

class ViewDrawing;

/// The pictures of a view. Those of large scenes have less detail while something moves, so that the view keeps up;
/// when it rests, the picture with full detail is drawn bit by bit, and dropped if something moves again.
class ViewPictures : public QObject {
    Q_OBJECT

public:
    /// Scenes with fewer triangles in view always have full detail, unless `setManyTriangles` sets another number.
    static constexpr std::uint64_t manyTriangles = 300'000;

    /// The drawing outlives this. The clock is that of `DetailGovernor`.
    explicit ViewPictures(ViewDrawing& drawing, DetailGovernor::Clock clock = {}, QObject* parent = nullptr);

    void setManyTriangles(std::uint64_t triangles) { m_manyTriangles = triangles; }
    /// Full detail at once in all pictures, for one that is saved.
    void setAlwaysFull(bool isAlwaysFull) { m_isAlwaysFull = isAlwaysFull; }
    /// Another scene is shown: its first picture has full detail.
    void reset();
    /// Draws the picture that is to be shown now. It may have fewer pixels than the size, which is in device pixels.
    [[nodiscard]] QImage draw(const NxViewpoint& viewpoint, QSize size, float scale);
    /// Whether the latest picture has full detail.
    [[nodiscard]] bool isFull() const noexcept { return m_isFull; }

Q_SIGNALS:
    /// The picture that `draw` gave last has full detail now.
    void refined(const QImage& picture);

private:
    [[nodiscard]] bool isLarge() const;
    void startRefining();
    void work();
    /// Whether more is to be drawn soon.
    bool refineSome();

    ViewDrawing& m_drawing;
    DetailGovernor m_governor;
    QTimer m_rest;
    QTimer m_work;
    std::uint64_t m_manyTriangles = manyTriangles;
    NxViewpoint m_viewpoint;
    QSize m_size;
    float m_scale = 1;
    bool m_isAlwaysFull = false;
    bool m_isFirst = true;
    bool m_isFull = true;
    bool m_isRefining = false;
};
