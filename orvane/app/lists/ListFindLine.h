#pragma once

#include <QWidget>

class ListModel;
class ListView;
class QLineEdit;
class ShownRows;

/// A line that finds rows: by their number, a range, a filter.
class ListFindLine : public QWidget {
    Q_OBJECT

public:
    /// All live longer.
    ListFindLine(ListModel& model, ListView& view, ShownRows& shown, QWidget* parent = nullptr);

    /// Puts the cursor into the line for the number of a row.
    void beginGoTo();
    /// Puts the cursor into the filter.
    void beginFilter();

private:
    QLineEdit* addLine(const char* name, const char* title, const char* toolTip, int characters);
    void goToRow();
    void setRange();
    void setFilter();
    void clear();
    void nameColumns();

    ListModel& m_model;
    ListView& m_view;
    ShownRows& m_shown;
    QLineEdit* m_goTo;
    QLineEdit* m_range;
    QLineEdit* m_filter;
};
