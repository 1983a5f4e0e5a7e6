#include "orvane/app/base/DraggedFile.h"

#include "orvane/app/base/TextConversion.h"

#include <QMimeData>
#include <QUrl>

QString orvane::nodeMimeType()
{
    return QStringLiteral("application/x-orvane-nodes");
}

bool orvane::hasFiles(const QMimeData& data)
{
    return data.hasUrls() && !data.hasFormat(nodeMimeType());
}

QString orvane::draggedFile(const QMimeData& data)
{
    if (!hasFiles(data))
        return {};
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? fromFileUrl(urls.front().toEncoded()) : QString();
}
