#include "orvane/app/structure/DraggedNodes.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/scene/SceneDocument.h"

#include <QDir>
#include <QFile>

#include <utility>

namespace {

const QString textType = QStringLiteral("text/plain");
const QString urlsType = QStringLiteral("text/uri-list");

/// The folder of all files that are dragged out of this program; deleted at its end.
const QTemporaryDir& dragFolder()
{
    static const QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/orvane-drag-XXXXXX"));
    return folder;
}

} // namespace

DraggedNodes::DraggedNodes(Content content, Say say)
    : m_content(std::move(content))
    , m_say(std::move(say))
{
}

DraggedNodes::~DraggedNodes() = default;

QString DraggedNodes::pathMimeType()
{
    return QStringLiteral("application/x-orvane-paths");
}

QString DraggedNodes::fileNameFor(const QString& nodeName)
{
    constexpr qsizetype longest = 60;
    QString name;
    for (const QChar character : nodeName.left(longest)) {
        const bool isUsable = character.isLetterOrNumber() || QStringLiteral(" -_.()").contains(character);
        name += isUsable ? character : u'_';
    }
    name = name.trimmed();
    // A hidden file wouldn't be found again.
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    return name.isEmpty() ? QStringLiteral("node") : name;
}

QStringList DraggedNodes::formats() const
{
    return {orvane::nodeMimeType(), urlsType, textType, pathMimeType()};
}

QVariant DraggedNodes::retrieveData(const QString& mimeType, QMetaType /*type*/) const
{
    if (mimeType == pathMimeType())
        return m_content.paths.join(u'\n').toUtf8();
    if (mimeType == urlsType)
        return fileUrl();
    if (mimeType != orvane::nodeMimeType() && mimeType != textType)
        return {};
    const QMimeData* const data = written();
    // What is too long for a text is named at least.
    if (data == nullptr)
        return mimeType == textType ? QVariant(m_content.paths.join(u'\n')) : QVariant();
    return mimeType == textType ? QVariant(data->text()) : QVariant(data->data(mimeType));
}

const QMimeData* DraggedNodes::written() const
{
    if (m_written == nullptr && !m_hasFailed) {
        auto data = orvane::nodeMimeData(m_content.nodes, m_content.origin);
        if (data)
            m_written = std::move(data).value();
        else
            m_say(data.error());
        m_hasFailed = m_written == nullptr;
    }
    return m_written.get();
}

// A file for each drag, so that a program that is still reading the last one isn't disturbed.
QByteArray DraggedNodes::fileUrl() const
{
    if (!m_fileUrl.isEmpty() || m_hasFailed)
        return m_fileUrl;
    const auto text = orvane::nodeFileText(m_content.nodes, m_content.origin.folder);
    QTemporaryDir folder(dragFolder().filePath(QStringLiteral("XXXXXX")));
    QFile file(folder.filePath(fileNameFor(m_content.name) + SceneDocument::fileExtension()));
    QString reason = text.error();
    if (text) {
        const auto size = static_cast<qint64>(text.value().size());
        if (!folder.isValid())
            reason = folder.errorString();
        else if (!file.open(QIODevice::WriteOnly) || file.write(text.value().data(), size) != size || !file.flush())
            reason = file.errorString();
    }
    if (reason.isEmpty()) {
        folder.setAutoRemove(false);
        m_fileUrl = orvane::toFileUrl(file.fileName()) + "\r\n";
    } else {
        m_hasFailed = true;
        m_say(tr("The nodes can't be dragged to other programs: %1").arg(reason));
    }
    return m_fileUrl;
}
