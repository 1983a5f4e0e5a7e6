#include "orvane/app/scene/ScenePaths.h"

#include "orvane/app/base/TextConversion.h"

#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/single/NxSFFilePathString.h"
#include "meridane/scene/nodes/NodeTraversal.h"

#include <QDir>
#include <QFileInfo>

#include <unordered_map>
#include <vector>

namespace {

/// A drive of another system, or an address on the net.
bool isForeign(const QString& path)
{
    return (path.size() > 1 && path[0].isLetter() && path[1] == QLatin1Char(':'))
        || path.contains(QStringLiteral("://"));
}

QString topFolder(const QString& absolutePath)
{
    return absolutePath.section(QLatin1Char('/'), 1, 1);
}

/// A relative path leads out of a folder that is a link to where the link is, or to where its target is, depending on
/// who follows it.
bool isBehindLink(const QString& folder)
{
    const QString real = QFileInfo(folder).canonicalFilePath();
    return !real.isEmpty() && real != QDir::cleanPath(folder);
}

/// Where the file paths are among the fields of the classes.
class PathFields {
public:
    const std::vector<int>& of(NxFieldData& data)
    {
        const auto [place, isNew] = m_indices.try_emplace(&data);
        for (int index = 0; isNew && index < data.getNumFields(); ++index) {
            if (data.getDefault(index)->isOfType(NxSFFilePathString::getClassTypeId()))
                place->second.push_back(index);
        }
        return place->second;
    }

private:
    std::unordered_map<NxFieldData*, std::vector<int>> m_indices;
};

} // namespace

namespace orvane {

QString folderOf(const QString& fileName)
{
    return fileName.isEmpty() ? QString() : QFileInfo(orvane::absoluteFileName(fileName)).path();
}

QString rebasedPath(const QString& path, const QString& from, const QString& to)
{
    if (path.isEmpty() || from.isEmpty() || from == to || QDir::isAbsolutePath(path) || isForeign(path))
        return path;
    QString absolute = QDir::cleanPath(QDir(from).filePath(path));
    if (to.isEmpty() || topFolder(absolute) != topFolder(to) || isBehindLink(to))
        return absolute;
    return QDir(to).relativeFilePath(absolute);
}

NxSceneWriter::PathMap pathMap(const QString& from, const QString& to)
{
    if (from.isEmpty() || from == to)
        return {};
    return [from, to](std::string_view path) { return rebasedPath(toQString(path), from, to).toStdString(); };
}

void rebasePaths(NxGroup& scene, const QString& from, const QString& to)
{
    const NxSceneWriter::PathMap map = pathMap(from, to);
    if (!map)
        return;
    PathFields pathFields;
    const auto rebase = [&](NxNode& node) {
        NxFieldData& data = *node.getFieldData();
        for (const int index : pathFields.of(data)) {
            auto* const field = static_cast<NxSFFilePathString*>(data.getField(&node, index));
            field->setValue(VbString(map(field->getValue().view())));
        }
    };
    rebase(scene);
    meridane::NodeTraversal nodes(scene);
    while (NxNode* const node = nodes.next())
        rebase(*node);
}

} // namespace orvane
