#include "orvane/app/plugins/PluginModel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/plugins/PluginLoader.h"

#include <QFileInfo>

PluginModel::PluginModel(PluginLoader& loader, QObject* parent)
    : QAbstractTableModel(parent)
    , m_loader(loader)
    , m_rows(static_cast<int>(loader.records().size()))
{
    connect(&loader, &PluginLoader::changed, this, &PluginModel::update);
}

void PluginModel::update()
{
    const int rows = static_cast<int>(m_loader.records().size());
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    }
    if (m_rows > 0)
        Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, ColumnCount - 1));
}

const PluginRecord* PluginModel::record(const QModelIndex& index) const
{
    return index.isValid() ? &m_loader.records().at(static_cast<std::size_t>(index.row())) : nullptr;
}

QString PluginModel::stateText(const PluginRecord& record)
{
    switch (record.state) {
    case PluginRecord::State::Loaded:
        return record.warnings.isEmpty() ? tr("Loaded") : tr("Loaded, with warnings");
    case PluginRecord::State::Failed:
        return tr("Failed");
    case PluginRecord::State::LeftOut:
        return tr("Not loaded");
    case PluginRecord::State::Suspect:
        return tr("Left out: it ended the program");
    }
    return {};
}

int PluginModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int PluginModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PluginModel::text(const PluginRecord& record, int column) const
{
    switch (column) {
    case NameColumn:
        return record.name.isEmpty() ? QFileInfo(record.fileName).completeBaseName() : orvane::oneLine(record.name);
    case VersionColumn:
        return orvane::oneLine(record.version);
    case StateColumn:
        return stateText(record);
    case TimeColumn:
        return record.state == PluginRecord::State::Loaded
            ? tr("%1 ms").arg(orvane::userLocale().toString(record.milliseconds, 'f', 1))
            : QString();
    case FileColumn:
        return record.fileName;
    default:
        return {};
    }
}

QVariant PluginModel::data(const QModelIndex& index, int role) const
{
    const PluginRecord* const plugin = record(index);
    if (plugin == nullptr)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(*plugin, index.column());
    case Qt::ToolTipRole:
        return index.column() == FileColumn ? plugin->fileName : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == TimeColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::CheckStateRole:
        if (index.column() == NameColumn) {
            const bool isOff
                = m_loader.isSwitchedOff(plugin->fileName) || plugin->state == PluginRecord::State::Suspect;
            return isOff ? Qt::Unchecked : Qt::Checked;
        }
        return {};
    default:
        return {};
    }
}

bool PluginModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const PluginRecord* const plugin = record(index);
    if (plugin == nullptr || role != Qt::CheckStateRole || index.column() != NameColumn)
        return false;
    m_loader.setSwitchedOff(plugin->fileName, value.toInt() != Qt::Checked);
    return true;
}

QVariant PluginModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return tr("Plug-in");
    case VersionColumn:
        return tr("Version");
    case StateColumn:
        return tr("State");
    case TimeColumn:
        return tr("Load time");
    case FileColumn:
        return tr("File");
    default:
        return {};
    }
}

Qt::ItemFlags PluginModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags result = QAbstractTableModel::flags(index);
    if (index.isValid() && index.column() == NameColumn)
        result |= Qt::ItemIsUserCheckable;
    return result;
}
