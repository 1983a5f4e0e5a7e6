#pragma once

#include <QTimer>
#include <QWidget>

class FilterLine;
class HistoryModel;
class MessageBar;
class OrvServices;
class QAction;
class QLabel;
class QModelIndex;
class QSlider;
class QTableView;
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
    [[nodiscard]] QTableView* view() const noexcept { return m_view; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildTopLine(QWidget* page);
    void buildView();
    void buildBottomLine(QWidget* page);
    void sizeColumns();
    void update();
    void updateActions();
    void goToRow(const QModelIndex& index);
    void putBack();
    [[nodiscard]] int selectedPosition() const;

    OrvServices& m_services;
    StepTravel& m_travel;
    MessageBar& m_messages;
    HistoryModel* m_model;
    QTableView* m_view;
    FilterLine* m_filter;
    QAction* m_goTo;
    QAction* m_putBack;
    QToolButton* m_putBackButton;
    QSlider* m_slider;
    QLabel* m_place; // of the present among the steps
    QLabel* m_memory;
    QTimer m_update;
    int m_shownPosition = -1;
    bool m_sizingColumns = false;
    bool m_columnsChosen = false; // by the user
};
