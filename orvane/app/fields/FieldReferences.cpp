#include "orvane/app/fields/FieldReferences.h"

#include "orvane/app/base/TextConversion.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QStringList>

#include <functional>
#include <unordered_map>

namespace orvane {

namespace {

QString quotedForShell(QString text)
{
    text.replace(u'\'', QStringLiteral("'\\''"));
    return u'\'' + text + u'\'';
}

/// Calls a function with the path of each field, in the order of the scene.
void forEachPath(const FieldSet& fields, const NxGroup& scene,
    const std::function<void(const QString& path, const NxField& field)>& function)
{
    std::unordered_map<const NxFieldContainer*, const NxField*> wanted;
    for (const NxField* const field : fields.fields())
        wanted.emplace(field->getContainer(), field);
    meridane::NodeTraversal nodes(scene);
    for (std::size_t found = 0; found < wanted.size();) {
        const NxNode* const node = nodes.next();
        if (node == nullptr)
            return;
        const auto entry = wanted.find(node);
        if (entry == wanted.end())
            continue;
        ++found;
        function(toQString(NxScenePath::toText(&scene, nodes.path(), entry->second)), *entry->second);
    }
}

} // namespace

QString pathsOf(const FieldSet& fields, const NxGroup& scene)
{
    QStringList paths;
    forEachPath(fields, scene, [&paths](const QString& path, const NxField& /*field*/) { paths += path; });
    return paths.join(u'\n');
}

QString assignmentsOf(const FieldSet& fields, const NxGroup& scene)
{
    QStringList arguments;
    forEachPath(fields, scene, [&arguments](const QString& path, const NxField& field) {
        VbString text;
        field.get(text);
        arguments += QStringLiteral("--set ") + quotedForShell(path + u'=' + toQString(text.view()));
    });
    return arguments.join(u'\n');
}

std::vector<NxNode*> nodesWithValue(const NxField& field, const NxGroup& scene)
{
    std::unordered_map<const NxFieldData*, int> indexes;
    std::vector<NxNode*> found;
    meridane::NodeTraversal nodes(scene);
    while (NxNode* const node = nodes.next()) {
        const NxFieldData* const data = node->getFieldData();
        const auto [entry, isNew] = indexes.try_emplace(data, -1);
        if (isNew)
            entry->second = FieldSet::indexOfLike(*data, field);
        const NxField* const like = data->getField(node, entry->second);
        if (like != nullptr && like->isSame(field))
            found.push_back(node);
    }
    return found;
}

} // namespace orvane
