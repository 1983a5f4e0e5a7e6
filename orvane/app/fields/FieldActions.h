#pragma once

#include <QModelIndex>
#include <QObject>

#include <vector>

class CellServices;
class FieldSet;
class FieldTableModel;
class FieldTableView;
class FieldWriter;
class NxNode;
class OrvServices;
class QAction;

/// What can be done with the rows of the field table: by keys while the table has the focus, and in its context menu.
class FieldActions : public QObject {
    Q_OBJECT

public:
    /// The view owns it; all others live longer.
    FieldActions(OrvServices& services, CellServices& cells, FieldTableModel* model, FieldTableView* view);

Q_SIGNALS:
    /// Something couldn't be done, or not all of it.
    void failed(const QString& message);
    /// The field of that row is to be made a favourite, or no favourite any more.
    void favoriteToggled(const QModelIndex& index);
    /// The field of that row is to be written only when its edit is done, or at once.
    void deferralToggled(const QModelIndex& index, bool deferred);
    /// These nodes, two at least, have the value that was looked for.
    void nodesFound(const std::vector<NxNode*>& nodes);

private:
    QAction* add(const char* name, const char* text, const char* statusTip, const QList<QKeySequence>& keys,
        void (FieldActions::*slot)());
    void showMenu(const QPoint& place);
    void update();
    [[nodiscard]] QModelIndex current() const;
    [[nodiscard]] FieldSet fields() const;
    [[nodiscard]] bool isDeferred() const;
    [[nodiscard]] QString nodes() const;

    void edit();
    void copyValue();
    void pasteValue();
    void copyPath();
    void copyAssignment();
    void copyAll();
    void copyGroup();
    void pasteAll();
    void reset();
    void toggleIgnored();
    void findSameValue();
    void copyRows(const QModelIndex& group);

    OrvServices& m_services;
    CellServices& m_cells;
    FieldWriter& m_writer;
    FieldTableModel* m_model;
    FieldTableView* m_view;
    QAction* m_edit;
    QAction* m_copy;
    QAction* m_paste;
    QAction* m_copyPath;
    QAction* m_copyAssignment;
    QAction* m_copyAll;
    QAction* m_copyGroup;
    QAction* m_pasteAll;
    QAction* m_reset;
    QAction* m_ignore;
    QAction* m_favorite;
    QAction* m_defer;
    QAction* m_findSame;
};
