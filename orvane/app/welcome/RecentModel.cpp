#include "orvane/app/welcome/RecentModel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/base/UserLocale.h"

#include <QDir>
#include <QHash>
#include <QMimeData>
#include <QPixmap>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace {

QString recentName(const QString& fileName)
{
    return fileName.section(u'/', -1);
}

/// The folder, from the user's own on as it is usually written.
QString folderText(const QString& fileName)
{
    const QString folder = fileName.section(u'/', 0, -2);
    const QString home = QDir::homePath();
    if (folder == home || folder.startsWith(home + u'/'))
        return u'~' + folder.mid(home.size());
    return folder.isEmpty() ? QStringLiteral("/") : folder;
}

} // namespace

RecentModel::RecentModel(
    Thumbnails thumbnails, FileLookup::Look look, std::chrono::milliseconds patience, QObject* parent)
    : QAbstractListModel(parent)
    , m_thumbnails(std::move(thumbnails))
    , m_lookup(std::move(look), patience)
    , m_pictures(1)
{
    connect(&m_lookup, &FileLookup::found, this, &RecentModel::takeState);
}

RecentModel::~RecentModel() = default;

void RecentModel::setFiles(const QStringList& pinned, const QStringList& others)
{
    QHash<QString, Entry> known;
    for (Entry& entry : m_entries) {
        const QString fileName = entry.fileName;
        known[fileName] = std::move(entry);
    }
    beginResetModel();
    m_entries.clear();
    m_entries.reserve(static_cast<std::size_t>(pinned.size() + others.size()));
    const auto add = [this, &known](const QString& fileName, bool isPinned) {
        Entry entry = known.value(fileName);
        entry.fileName = fileName;
        entry.isPinned = isPinned;
        m_entries.push_back(std::move(entry));
    };
    for (const QString& fileName : pinned)
        add(fileName, true);
    for (const QString& fileName : others) {
        if (!pinned.contains(fileName))
            add(fileName, false);
    }
    endResetModel();
    Q_EMIT missingChanged();
}

void RecentModel::look(int row)
{
    Entry& entry = m_entries[static_cast<std::size_t>(row)];
    if (std::exchange(entry.isLookedAt, true))
        return;
    m_lookup.request(entry.fileName);
    m_pictures.run([this, thumbnails = m_thumbnails, fileName = entry.fileName]() -> BackgroundJobs::Take {
        const QImage picture = thumbnails.read(fileName);
        // Carried out only as long as this object is there.
        return [this, fileName, picture] { takePicture(fileName, picture); };
    });
}

void RecentModel::forget()
{
    for (Entry& entry : m_entries)
        entry.isLookedAt = false;
}

QStringList RecentModel::missing() const
{
    QStringList result;
    for (const Entry& entry : m_entries) {
        if (entry.state.kind == FileState::Kind::Missing)
            result.append(entry.fileName);
    }
    return result;
}

int RecentModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant RecentModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry& entry = m_entries[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return orvane::shortLine(recentName(entry.fileName));
    case Qt::DecorationRole:
        return entry.picture.isNull() ? QVariant() : QVariant(entry.picture);
    case Qt::ToolTipRole:
        return orvane::plainToolTip(orvane::oneLine(entry.fileName) + u'\n' + stateText(entry.state));
    case Qt::AccessibleTextRole:
        return describe(entry);
    case FileNameRole:
        return entry.fileName;
    case FolderRole:
        return orvane::shortLine(folderText(entry.fileName));
    case StateTextRole:
        return stateText(entry.state);
    case StateRole:
        return static_cast<int>(entry.state.kind);
    case PinnedRole:
        return entry.isPinned;
    case SearchRole:
        return entry.fileName;
    default:
        return {};
    }
}

Qt::ItemFlags RecentModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractListModel::flags(index);
    if (index.isValid())
        flags |= Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    return flags;
}

QStringList RecentModel::mimeTypes() const
{
    return {QStringLiteral("text/uri-list")};
}

QMimeData* RecentModel::mimeData(const QModelIndexList& indexes) const
{
    QList<QUrl> urls;
    for (const QModelIndex& index : indexes)
        urls.append(QUrl::fromEncoded(orvane::toFileUrl(index.data(FileNameRole).toString())));
    auto* const data = new QMimeData;
    data->setUrls(urls);
    return data;
}

int RecentModel::rowOf(const QString& fileName) const
{
    const auto entry
        = std::ranges::find_if(m_entries, [&fileName](const Entry& one) { return one.fileName == fileName; });
    return entry == m_entries.end() ? -1 : static_cast<int>(entry - m_entries.begin());
}

void RecentModel::takeState(const QString& fileName, const FileState& state)
{
    const int row = rowOf(fileName);
    if (row < 0)
        return; // it was removed meanwhile
    m_entries[static_cast<std::size_t>(row)].state = state;
    Q_EMIT dataChanged(index(row), index(row));
    Q_EMIT missingChanged();
}

void RecentModel::takePicture(const QString& fileName, const QImage& picture)
{
    const int row = rowOf(fileName);
    if (row < 0 || picture.isNull())
        return;
    m_entries[static_cast<std::size_t>(row)].picture = picture;
    Q_EMIT dataChanged(index(row), index(row), {Qt::DecorationRole});
}

QString RecentModel::stateText(const FileState& state)
{
    switch (state.kind) {
    case FileState::Kind::Unknown:
        return {};
    case FileState::Kind::There:
        return orvane::momentText(state.changed, QDate::currentDate());
    case FileState::Kind::Missing:
        return tr("Missing");
    case FileState::Kind::NoAnswer:
        return tr("The drive doesn't answer");
    }
    return {};
}

QString RecentModel::describe(const Entry& entry)
{
    QStringList parts{orvane::shortLine(recentName(entry.fileName)), orvane::shortLine(folderText(entry.fileName))};
    if (entry.isPinned)
        parts.append(tr("pinned"));
    if (entry.state.kind != FileState::Kind::Unknown)
        parts.append(stateText(entry.state));
    return parts.join(QStringLiteral(", "));
}
