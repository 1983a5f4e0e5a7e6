#pragma once

#include "orvane/app/lists/ListView.h"

#include <QObject>

class ListModel;
class NxMField;

/// Keeps the rows of a list selected that are, whichever of them the model shows and however they move in the list.
class ListSelection : public QObject {
    Q_OBJECT

public:
    /// The view shows the model, and is the parent.
    ListSelection(ListModel& model, ListView* view);

private:
    void remember();
    void restore();

    ListModel& m_model;
    ListView* m_view;
    const NxMField* m_list = nullptr; // whose rows are remembered
    RowRuns m_rows;
    RowRuns m_current; // one row, or none
    int m_currentColumn = 0;
    ListView::Columns m_columns;
    bool m_isSelected = false;
};
