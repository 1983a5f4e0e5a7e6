#pragma once

#include "meridane/base/types/NxType.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// Lets the user choose a class of nodes: a list with what each class is, those of plug-ins among them, and a line that
/// filters it. Deletes itself when it is closed.
class AddNodeDialog : public QDialog {
    Q_OBJECT

public:
    /// `place` says where the node is going to be.
    AddNodeDialog(const QString& place, QWidget* window);

    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    void chosen(NxType type);

private:
    void fill();
    void filter(const QString& text);
    void choose();

    QLineEdit* m_line;
    QTreeWidget* m_list;
    QLabel* m_description;
    QPushButton* m_add;
};
