#include "orvane/app/view/navigation/ViewBookmarks.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/view/ViewpointText.h"

#include <QStringList>

#include <algorithm>

namespace {

const QString bookmarksKey = QStringLiteral("view/bookmarks");
/// Between the file and its bookmarks. Neither files that are kept nor names have it.
constexpr QChar bookmarkEnd(u'\n');

QString fileOfBookmarks(const QString& entry)
{
    return entry.section(bookmarkEnd, 0, 0);
}

} // namespace

std::vector<ViewBookmark> ViewBookmarks::find(const QString& fileName) const
{
    const QStringList entries = m_settings.value(bookmarksKey).toStringList();
    const auto entry = std::find_if(entries.begin(), entries.end(),
        [&fileName](const QString& other) { return !fileName.isEmpty() && fileOfBookmarks(other) == fileName; });
    std::vector<ViewBookmark> bookmarks;
    if (entry == entries.end())
        return bookmarks;
    for (const QString& text : entry->split(bookmarkEnd).mid(1, mostBookmarks)) {
        const std::optional<NxViewpoint> viewpoint = orvane::viewpointOf(text);
        const QString name = text.section(u' ', orvane::viewpointNumbers);
        if (viewpoint && !name.isEmpty())
            bookmarks.push_back({name, *viewpoint});
    }
    return bookmarks;
}

void ViewBookmarks::store(const QString& fileName, const std::vector<ViewBookmark>& bookmarks)
{
    if (fileName.isEmpty() || fileName.contains(bookmarkEnd))
        return;
    QStringList entries = m_settings.value(bookmarksKey).toStringList();
    entries.removeIf([&fileName](const QString& other) { return fileOfBookmarks(other) == fileName; });
    if (!bookmarks.empty()) {
        QString entry = fileName;
        for (const ViewBookmark& bookmark : bookmarks)
            entry += bookmarkEnd + orvane::textOf(bookmark.viewpoint) + bookmark.name;
        entries.prepend(entry);
    }
    m_settings.setValue(bookmarksKey, entries.mid(0, mostFiles));
}
