#pragma once

#include "orvane/app/view/ViewTool.h"

#include <QCoreApplication>
#include <QStringList>

class SceneView;

/// What the picture costs, as lines of text over its upper left corner.
class StatisticsOverlay : public ViewTool {
    Q_DECLARE_TR_FUNCTIONS(StatisticsOverlay)

public:
    /// The view lives as long.
    explicit StatisticsOverlay(SceneView& view)
        : m_view(view)
    {
    }

    [[nodiscard]] bool isShown() const noexcept { return m_isShown; }
    void setShown(bool isShown);
    /// The lines for the picture that was drawn last.
    [[nodiscard]] QStringList lines() const;

    void paint(QPainter& painter) const override;

private:
    SceneView& m_view;
    bool m_isShown = false;
};
