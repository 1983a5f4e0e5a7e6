#pragma once

#include "orvane/app/view/navigation/ViewpointPath.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

class SceneView;

/// Lets the view travel where it would jump: to what is framed, along an axis, to a bookmark. It is off at first.
///
/// Whatever the user does in the view ends it at once, where it leads to. Another scene, or anything else that moves
/// the view, ends it where it is.
class ViewAnimation : public QObject {
    Q_OBJECT

public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;
    static constexpr std::chrono::milliseconds duration{250};

    /// The view is the parent.
    explicit ViewAnimation(SceneView* view, Clock clock = &std::chrono::steady_clock::now);

    /// Whether things may move here: not where the style is told to show no motion, and not where nobody looks.
    [[nodiscard]] static bool isWanted();

    void setOn(bool isOn);
    [[nodiscard]] bool isOn() const noexcept { return m_isOn; }
    [[nodiscard]] bool isRunning() const noexcept { return m_path.has_value(); }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void start(const NxViewpoint& before);
    void step();
    void finish();
    void stop();

    SceneView* m_view;
    Clock m_clock;
    QTimer m_timer;
    std::optional<ViewpointPath> m_path;
    std::chrono::steady_clock::time_point m_started;
    NxViewpoint m_shown; // the latest step
    bool m_isOn = false;
};
