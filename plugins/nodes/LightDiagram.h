#pragma once

#include <QWidget>

#include <functional>

class NxDirectionalLight;
class NxPointLight;
class NxSpotLight;

namespace nodes {

/// A lamp as seen from its side, and how bright it is where: the rays of a directional light, the reach of a point
/// light, the cone of a spot light.
class LightDiagram : public QWidget {
    Q_OBJECT

public:
    LightDiagram();

    void setLight(const NxDirectionalLight& light);
    void setLight(const NxPointLight& light);
    void setLight(const NxSpotLight& light);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintRays(QPainter& painter) const;
    void paintReach(QPainter& painter) const;
    void paintCone(QPainter& painter) const;

    enum class Kind { None, Rays, Reach, Cone };

    Kind m_kind = Kind::None;
    QColor m_color; // of the light, with its intensity
    double m_cutOff = 0; // of the cone, in radians
    double m_dropOff = 0;
    std::function<double(double distance)> m_fading; // from 1 on
    double m_reach = 1; // the distance at which a tenth of the light is left
};

/// The distance from which less than a tenth of the light arrives; infinite if more arrives anywhere.
[[nodiscard]] double reachOf(const NxPointLight& light);

} // namespace nodes
