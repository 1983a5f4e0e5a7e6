#include "orvane/app/base/DraggedFile.h"

#include "orvane/app/base/TextConversion.h"

#include <QMimeData>
#include <QUrl>

QString orvane::draggedFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? fromFileUrl(urls.front().toEncoded()) : QString();
}
