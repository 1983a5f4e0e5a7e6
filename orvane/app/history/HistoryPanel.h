#pragma once

#include "orvane/app/base/RowTable.h"

#include <QTimer>
#include <QWidget>

class FilterLine;
class HistoryModel;
class MessageBar;
class OrvServices;
class QAction;
class QLabel;
class QSlider;
class QToolButton;
class StepTravel;

/// Shows the undo history: a row for each state, a line to filter them, and a slider through time.
class HistoryPanel : public QWidget {
    Q_OBJECT

public:
    /// All live longer.
    HistoryPanel(OrvServices& services, StepTravel& travel, MessageBar& messages, QWidget* parent = nullptr);
    ~HistoryPanel() override;

    [[nodiscard]] HistoryModel* model() const noexcept { return m_model; }
    [[nodiscard]] RowTable* view() const noexcept { return m_view; }

private:
    void buildTopLine(QWidget* page);
    void buildView();
    void buildBottomLine(QWidget* page);
    void update();
    void updateActions();
    void goToRow(int row);
    void putBack();
    [[nodiscard]] int selectedPosition() const;

    OrvServices& m_services;
    StepTravel& m_travel;
    MessageBar& m_messages;
    HistoryModel* m_model;
    RowTable* m_view;
    FilterLine* m_filter;
    QAction* m_goTo;
    QAction* m_putBack;
    QToolButton* m_putBackButton;
    QSlider* m_slider;
    QLabel* m_place; // of the present among the steps
    QLabel* m_memory;
    QTimer m_update;
    int m_shownPosition = -1;
};
