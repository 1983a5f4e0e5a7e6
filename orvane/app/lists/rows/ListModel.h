#pragma once

#include "orvane/app/lists/rows/ListColumns.h"
#include "orvane/app/lists/rows/ListWatch.h"
#include "orvane/app/lists/rows/RowMap.h"

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxRef.h"

#include <QAbstractTableModel>

class NxMField;
class OrvDocument;

/// The rows of a list and their components, read from the list when they are shown. The number of rows costs nothing.
///
/// A map says which rows are shown, all by default. While only values change, it stays as it is; when rows come and go,
/// it shows those of its rows that are still there.
class ListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Role {
        /// Of the first cell of a row of a list of colours: its colour.
        SwatchRole = Qt::UserRole,
    };

    /// The document lives longer.
    explicit ListModel(OrvDocument& document, QObject* parent = nullptr);
    ~ListModel() override;

    /// Shows all rows of a list, and keeps its node alive; of no list if null.
    void setList(NxMField* list);
    [[nodiscard]] NxMField* list() const noexcept { return m_list; }
    [[nodiscard]] const ListColumns& columns() const noexcept { return m_columns; }
    /// The number of rows that the list had when its last change was announced.
    [[nodiscard]] int listCount() const noexcept { return m_listCount; }
    /// See `ListWatch::revision`.
    [[nodiscard]] int revision() const noexcept { return m_watch.revision(); }

    /// Shows these rows. A reset of the model, unless nothing changes.
    void setMap(RowMap map);
    /// Shows all rows in their order, however many they become.
    void showAll();
    [[nodiscard]] const RowMap& map() const noexcept { return m_map; }
    /// Whether all rows are shown in their order.
    [[nodiscard]] bool showsAll() const noexcept { return m_showsAll; }
    /// The row of the list of an index of this model.
    [[nodiscard]] int listRow(const QModelIndex& index) const { return m_map.listRow(index.row()); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// Another list is about to be shown.
    void listAboutToBeLeft();
    /// Rows of the list came and went. Within a reset of the model if it doesn't show all rows.
    void rowsSpliced(const std::vector<RowSplice>& splices);
    /// The list has changed, or is another one; the model shows it already.
    void listChanged();

private:
    void follow(const std::vector<RowSplice>& splices);
    void spliceAll(RowSplice splice);
    void spliceMap(const std::vector<RowSplice>& splices);
    void announceValues();
    [[nodiscard]] int presentRow(int row) const;
    [[nodiscard]] QVariant swatch(int row) const;
    [[nodiscard]] QString shownText(int row, int column) const;

    NxRef<NxFieldContainer> m_node;
    NxMField* m_list = nullptr;
    ListColumns m_columns;
    RowMap m_map;
    std::vector<RowSplice> m_pending; // changes that views don't know of yet
    int m_listCount = 0;
    bool m_showsAll = true;
    ListWatch m_watch;
};
