#pragma once

#include <QWidget>

class NxOrthographicCamera;
class NxPerspectiveCamera;

namespace nodes {

/// A camera as seen from its side, and what is between its near and far border.
class CameraDiagram : public QWidget {
    Q_OBJECT

public:
    CameraDiagram();

    void setCamera(const NxPerspectiveCamera& camera);
    void setCamera(const NxOrthographicCamera& camera);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double m_near = 0;
    double m_far = 0;
    double m_angle = 0; // in perspective, in radians; otherwise 0
    double m_height = 0; // of what an orthographic camera sees
};

} // namespace nodes
