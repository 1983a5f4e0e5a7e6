#pragma once

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxRef.h"

#include <QAbstractTableModel>

#include <memory>
#include <vector>

/// The fields of one node: name, type and value, a row each.
///
/// Values are shown by the beginning of their text form. Fields that the scene ignores, and fields that differ from
/// their default, look different. The last rows are fields of the file that the class doesn't have. Changes
/// arrive by sensors, so a moment later.
class FieldTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, ValueColumn, ColumnCount };
    /// How much of a value's text is shown.
    static constexpr int shownCharacters = 300;

    explicit FieldTableModel(QObject* parent = nullptr);
    ~FieldTableModel() override;

    /// Shows the fields of this node and holds it alive; null for none.
    void setNode(NxFieldContainer* node);
    [[nodiscard]] NxFieldContainer* node() const noexcept { return m_node.get(); }

    /// The field of a row; null for a row that has none.
    [[nodiscard]] NxField* field(const QModelIndex& index) const;
    /// The first cell of the row of a field of the node, or an invalid index.
    [[nodiscard]] QModelIndex indexOf(const NxField* field) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Row;

    [[nodiscard]] QVariant fieldData(Row& row, int column, int role) const;
    [[nodiscard]] QVariant unknownData(const NxFieldContainer::UnknownField& field, int column, int role) const;
    void updateRow(Row& row);

    NxRef<NxFieldContainer> m_node;
    std::vector<std::unique_ptr<Row>> m_rows; // of the fields; those of unknown fields follow
};
