#pragma once

#include <QTableView>

/// A table of whole rows with one line of text each, for lists of any length.
class RowTable : public QTableView {
    Q_OBJECT

public:
    explicit RowTable(QWidget* parent = nullptr);
};
