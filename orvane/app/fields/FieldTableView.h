#pragma once

#include <QTreeView>

/// The table of fields: whole rows, one row at a time, in groups that fold.
class FieldTableView : public QTreeView {
    Q_OBJECT

public:
    explicit FieldTableView(QWidget* parent = nullptr);

    /// Opens the editor of a value in its row.
    void editRow(const QModelIndex& index);

Q_SIGNALS:
    /// The user pressed the mouse or a key of activation on the row that is selected already.
    void currentPressed(const QModelIndex& index);
    /// The user asked to open a row whose value isn't edited in place, such as a list.
    void openRequested(const QModelIndex& index);
    /// The user wants to go on in the editor of the field's dock.
    void editorRequested();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;

private:
    void activateRow(const QModelIndex& index);
    [[nodiscard]] bool isGroup(const QModelIndex& index) const;
};
