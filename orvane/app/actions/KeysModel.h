#pragma once

#include "orvane/app/actions/ActionList.h"

#include <QAbstractTableModel>
#include <QString>

class ActionKeys;

/// The rows of the page of keys: each action with its keys, then the keys that can't be changed.
class KeysModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { ActionColumn, PlaceColumn, KeysColumn, StateColumn, ColumnCount };

    /// The keys live longer.
    KeysModel(const QMainWindow& window, ActionKeys& keys, QObject* parent = nullptr);

    /// Shows the rows that have these letters in order in their text, place or keys, in each word's own place.
    void setFilter(const QString& text);
    /// The name of the action of a row; empty for a key that can't be changed.
    [[nodiscard]] QString name(const QModelIndex& index) const;
    [[nodiscard]] QString text(const QString& name) const;
    [[nodiscard]] QModelIndex indexOf(const QString& name) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row {
        QString name;
        QString text;
        QString place;
        QString fixedKeys;
        QString statusTip;
    };

    [[nodiscard]] QString keysOf(const Row& row) const;
    [[nodiscard]] QString stateOf(const Row& row) const;
    void update();

    ActionKeys& m_keys;
    QList<Row> m_all;
    QList<int> m_shown;
};
