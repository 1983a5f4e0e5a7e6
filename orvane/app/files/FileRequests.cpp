#include "orvane/app/files/FileRequests.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

QString FileRequest::name(Kind kind, const QString& fileName)
{
    const QString file = fileName.isEmpty() ? FileRequests::tr("a file") : QFileInfo(fileName).fileName();
    switch (kind) {
    case Kind::New:
        return FileRequests::tr("making a new scene");
    case Kind::Open:
        return FileRequests::tr("opening %1").arg(file);
    case Kind::Add:
        return FileRequests::tr("adding %1").arg(file);
    case Kind::Compare:
        return FileRequests::tr("comparing with %1").arg(file);
    case Kind::Reload:
        return FileRequests::tr("reloading %1").arg(file);
    case Kind::Save:
    case Kind::SaveAs:
        return fileName.isEmpty() ? FileRequests::tr("saving the scene") : FileRequests::tr("saving %1").arg(file);
    case Kind::Export:
        return FileRequests::tr("exporting to %1").arg(file);
    case Kind::Close:
        return FileRequests::tr("closing the scene");
    case Kind::Quit:
        break;
    }
    return FileRequests::tr("quitting");
}

void FileRequests::push(FileRequest request)
{
    const auto repeatsLast = [this, &request] {
        const FileRequest& last = m_waiting.back();
        return last.kind == request.kind && last.fileName == request.fileName && last.scene == request.scene;
    };
    const bool known = request.kind != Kind::Add && !request.lost && !m_waiting.empty() && repeatsLast();
    if (!known)
        m_waiting.push_back(std::move(request));
}

std::optional<FileRequest> FileRequests::takeFirst(const std::function<bool(const FileRequest&)>& mayRun)
{
    const auto found = std::find_if(m_waiting.begin(), m_waiting.end(), mayRun);
    if (found == m_waiting.end())
        return std::nullopt;
    FileRequest request = std::move(*found);
    m_waiting.erase(found);
    return request;
}

QStringList FileRequests::dropOtherScenes(int scene, const QString& reason)
{
    const auto isOther = [scene](const FileRequest& request) {
        return request.scene != FileRequest::anyScene && request.scene != scene;
    };
    dropIf([&](const FileRequest& request) { return isOther(request) && request.kind == Kind::Close; }, reason);
    return dropIf(isOther, reason);
}

QStringList FileRequests::dropLeaving(const QString& reason)
{
    return dropIf(
        [](const FileRequest& request) {
            return request.kind == Kind::New || request.kind == Kind::Open || request.kind == Kind::Close
                || request.kind == Kind::Quit;
        },
        reason);
}

QStringList FileRequests::dropIf(const std::function<bool(const FileRequest&)>& condition, const QString& reason)
{
    QStringList names;
    while (const std::optional<FileRequest> request = takeFirst(condition)) {
        names += request->name();
        if (request->lost)
            request->lost(reason);
    }
    return names;
}
