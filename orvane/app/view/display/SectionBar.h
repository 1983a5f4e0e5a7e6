#pragma once

#include <QFrame>

class QComboBox;
class QDoubleSpinBox;
class QSlider;
class QToolButton;
class SceneView;

/// The controls of the plane that cuts away a part of the picture, along the lower edge of the view: axis, position and
/// side. The plane is there while the bar is shown.
class SectionBar : public QFrame {
    Q_OBJECT

public:
    /// The view is the parent.
    explicit SectionBar(SceneView* view);

    /// Shows the bar with the plane in the middle of the scene, or hides it.
    void setOn(bool isOn);

Q_SIGNALS:
    /// The user closed the bar.
    void closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void takeRange();
    void moveTo(double position);
    void apply();
    void place();

    SceneView* m_view;
    QComboBox* m_axis;
    QSlider* m_slider;
    QDoubleSpinBox* m_position;
    QToolButton* m_flip;
    double m_least = 0; // of the positions of the slider
    double m_greatest = 1;
};
