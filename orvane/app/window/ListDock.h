#pragma once

#include "orvane/app/lists/ListPanel.h"

#include <QDockWidget>

class FieldPanel;
class Inspectors;
class NxField;
class NxMField;
class QMainWindow;
class Session;

/// The dock with the rows of a list field. It is hidden until the user shows it; its content is made then.
class ListDock : public QDockWidget {
    Q_OBJECT

public:
    /// Both live as long as the window.
    ListDock(Session& session, QMainWindow* window);

    /// Shows a list field, which has a node, and moves the focus to its rows.
    void openList(NxMField* list);
    /// Selects a row of the list that is shown. Does nothing while the dock is hidden or shows another list.
    void showRow(const NxField* list, int row);
    /// Opens each list that the user asks for in the panel, and in those of further inspectors. They live as long as
    /// the window.
    void follow(FieldPanel& fields, const Inspectors& inspectors);
    void setVisible(bool visible) override;

Q_SIGNALS:
    /// The panel with the rows has been made.
    void panelMade(ListPanel* panel);

private:
    void fill();
    void showLeastRows();

    Session& m_session;
    QMainWindow* m_window;
    ListPanel* m_panel = nullptr; // made when it is first shown
    bool m_isNew = false; // its height hasn't been chosen
};
