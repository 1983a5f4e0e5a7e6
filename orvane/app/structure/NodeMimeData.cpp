#include "orvane/app/structure/NodeMimeData.h"

#include "orvane/app/scene/ScenePaths.h"

#include "meridane/scene/file/NxSceneWriter.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QIODevice>
#include <QLocale>
#include <QMimeData>

#include <chrono>
#include <utility>

namespace orvane {

namespace {

struct NodeMimeTexts {
    Q_DECLARE_TR_FUNCTIONS(NodeMimeData)
};

constexpr quint32 nodeFormatVersion = 1;

QString tooLarge(std::size_t size)
{
    return NodeMimeTexts::tr(
        "The clipboard holds %1 of text, but at most %2 can be pasted. Save the text as a scene file "
        "and import that.")
        .arg(QLocale().formattedDataSize(static_cast<qint64>(size)),
            QLocale().formattedDataSize(static_cast<qint64>(mostNodeText)));
}

Result<std::string> writtenText(std::span<const NxRef<NxNode>> nodes, const NxSceneWriter::PathMap& paths = {})
{
    const NxRef<NxGroup> holder(new NxGroup);
    std::vector<NxNode*> children;
    children.reserve(nodes.size());
    for (const NxRef<NxNode>& node : nodes)
        children.push_back(node.get());
    holder->replaceChildren(0, 0, children);
    NxSceneWriter writer(holder.get());
    writer.setPathMap(paths);
    std::string text;
    constexpr std::chrono::milliseconds slice(50);
    while (writer.step(text, slice)) {
        if (text.size() > mostNodeText)
            break;
    }
    if (!writer.failure().empty())
        return Failure{toQString(writer.failure())};
    if (text.size() > mostNodeText)
        return Failure{NodeMimeTexts::tr("The selected nodes are more than %1 of text, too much for the clipboard. "
                                         "Duplicate them instead, or import their file into the other scene.")
                           .arg(QLocale().formattedDataSize(static_cast<qint64>(mostNodeText)))};
    return text;
}

} // namespace

Result<std::unique_ptr<QMimeData>> nodeMimeData(std::span<const NxRef<NxNode>> nodes, const NodeOrigin& origin)
{
    const Result<std::string> text = writtenText(nodes);
    if (!text)
        return Failure{text.error()};
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << nodeFormatVersion << origin.folder << origin.scene
           << QList<quint64>(origin.numbers.begin(), origin.numbers.end())
           << QByteArray::fromRawData(text.value().data(), static_cast<qsizetype>(text.value().size()));
    auto data = std::make_unique<QMimeData>();
    data->setText(toQString(text.value()));
    data->setData(nodeMimeType(), bytes);
    return data;
}

Result<std::string> nodeFileText(std::span<const NxRef<NxNode>> nodes, const QString& folder)
{
    return writtenText(nodes, pathMap(folder, {}));
}

bool hasNodes(const QMimeData& data)
{
    return data.hasFormat(nodeMimeType()) || data.hasText();
}

QByteArray sceneOf(const QMimeData& data)
{
    const QByteArray bytes = data.data(nodeMimeType());
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_4);
    quint32 version = 0;
    QString folder;
    QByteArray scene;
    stream >> version >> folder >> scene;
    return version == nodeFormatVersion && stream.status() == QDataStream::Ok ? scene : QByteArray();
}

Result<NodeText> nodeText(const QMimeData& data)
{
    NodeText result;
    if (data.hasFormat(nodeMimeType())) {
        const QByteArray bytes = data.data(nodeMimeType());
        if (static_cast<std::size_t>(bytes.size()) > mostNodeText + mostNodeText / 4)
            return Failure{tooLarge(static_cast<std::size_t>(bytes.size()))};
        QDataStream stream(bytes);
        stream.setVersion(QDataStream::Qt_6_4);
        quint32 version = 0;
        QList<quint64> numbers;
        QByteArray text;
        stream >> version >> result.origin.folder >> result.origin.scene >> numbers >> text;
        if (version == nodeFormatVersion && stream.status() == QDataStream::Ok) {
            result.origin.numbers.assign(numbers.begin(), numbers.end());
            result.text.assign(text.constData(), static_cast<std::size_t>(text.size()));
            return result;
        }
        result = {}; // of a later program: its plain text may do
    }
    if (!data.hasText())
        return Failure{NodeMimeTexts::tr("The clipboard holds no nodes and no text.")};
    const QString plain = data.text();
    // Each character is a byte at least, so what is far too long needn't be converted.
    if (static_cast<std::size_t>(plain.size()) > mostNodeText)
        return Failure{tooLarge(static_cast<std::size_t>(plain.size()))};
    const QByteArray text = plain.toUtf8();
    if (static_cast<std::size_t>(text.size()) > mostNodeText)
        return Failure{tooLarge(static_cast<std::size_t>(text.size()))};
    if (text.trimmed().isEmpty())
        return Failure{NodeMimeTexts::tr("The clipboard holds no nodes and no text.")};
    // Someone may have copied a node without the first line of its file.
    if (!text.startsWith("#mrd")) {
        result.text = "#mrd 1.0\n";
        result.addedLines = 1;
    }
    result.text.append(text.constData(), static_cast<std::size_t>(text.size()));
    return result;
}

} // namespace orvane
