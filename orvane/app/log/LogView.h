#pragma once

#include "orvane/app/base/RowTable.h"
#include "orvane/app/log/LogLinks.h"
#include "orvane/app/log/LogModel.h"

#include <optional>

class LogDelegate;

/// The rows of the log. It follows the end of the log until the user scrolls up.
///
/// A click on a link, or Return in a row with one, chooses it. A click into the count, Right and Left unfold and fold
/// equal lines.
class LogView : public RowTable {
    Q_OBJECT

public:
    /// All live longer.
    LogView(LogModel& model, LogDelegate& delegate, LogLinks& links, QWidget* parent = nullptr);

    /// Whether the last row is shown when rows come.
    [[nodiscard]] bool followsEnd() const noexcept { return m_followsEnd; }
    void showEnd();
    /// What is seen and selected, to be found again among other rows.
    struct Place {
        std::optional<LogModel::Line> current;
        std::optional<LogModel::Line> top; ///< none at the end
    };
    [[nodiscard]] Place place() const;
    void returnTo(const Place& place);
    /// Selects a row and brings it into view, in the middle of the rows around it.
    void goTo(int row);

Q_SIGNALS:
    void linkChosen(const LogLink& link);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] std::optional<LogLink> linkAt(const QPoint& place) const;
    void followRows();
    void toggle(int row);

    LogModel& m_model;
    LogDelegate& m_delegate;
    LogLinks& m_links;
    bool m_followsEnd = true;
    bool m_isPressed = false; // by the left button, without other keys
};
