#pragma once

#include <QAbstractTableModel>

class PluginLoader;
struct PluginRecord;

/// The plug-ins of the tool as rows, each with a check box that switches it off from the next start on.
class PluginModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { NameColumn, VersionColumn, StateColumn, TimeColumn, FileColumn, ColumnCount };

    /// The loader lives longer.
    explicit PluginModel(PluginLoader& loader, QObject* parent = nullptr);

    [[nodiscard]] const PluginRecord* record(const QModelIndex& index) const;
    /// What became of a plug-in, in a few words.
    [[nodiscard]] static QString stateText(const PluginRecord& record);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void update();
    [[nodiscard]] QVariant text(const PluginRecord& record, int column) const;

    PluginLoader& m_loader;
    int m_rows = 0; // that views know of
};
