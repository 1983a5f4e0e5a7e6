#pragma once

#include "orvane/app/actions/PickerItem.h"

#include <QAbstractListModel>

/// The rows of a picker.
class PickerModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setItems(const QList<PickerItem>& items);
    [[nodiscard]] const PickerItem* item(const QModelIndex& index) const;
    /// The row of that id, or -1.
    [[nodiscard]] int rowOf(quint64 id) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    /// The display text has all of a row, for those who listen to it.
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QList<PickerItem> m_items;
};
