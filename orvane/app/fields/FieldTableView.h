#pragma once

#include <QTableView>

/// The table of fields: whole rows, and one row at a time.
class FieldTableView : public QTableView {
    Q_OBJECT

public:
    explicit FieldTableView(QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user pressed the mouse or a key of activation on the row that is selected already.
    void currentPressed(const QModelIndex& index);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};
