#include "orvane/app/SceneEdit.h"

#include "orvane/app/FieldText.h"
#include "orvane/app/TextConversion.h"

#include "meridane/base/VbName.h"
#include "meridane/scene/NxField.h"
#include "meridane/scene/NxFieldData.h"
#include "meridane/scene/NxRef.h"
#include "meridane/scene/NxScenePath.h"

#include <vector>

namespace orvane {

namespace {

constexpr qsizetype listedValueLength = 1000;

// Follows a path that has to name a field.
std::optional<QString> findField(NxGroup* scene, const QString& path, NxField*& field)
{
    const NxScenePath::Target target = NxScenePath::find(scene, path.toStdString());
    if (!target.error.empty())
        return toQString(target.error);
    if (target.field == nullptr)
        return QStringLiteral("%1: this is a node; a field is named as %1.field").arg(path);
    field = target.field;
    return std::nullopt;
}

// Tries a text on the same field of a new node of the class, so that nobody who looks at the field is told.
bool acceptsText(NxField* field, const VbString& text)
{
    NxFieldContainer* const node = field->getContainer();
    auto* const object = static_cast<NxTypedObject*>(node->getTypeId().createInstance(nullptr));
    const NxRef<NxFieldContainer> trial(dynamic_cast<NxFieldContainer*>(object));
    NxFieldData* const data = node->getFieldData();
    return trial && data->getField(trial.get(), data->getIndex(node, field))->set(text);
}

void listNode(const NxGroup* scene, const std::vector<NxNode*>& path, QString& lines)
{
    NxNode* const node = path.back();
    lines += QStringLiteral("%1\t%2\n")
                 .arg(toQString(NxScenePath::toText(scene, path)), QString::fromUtf8(node->getClassName()));
    for (const NxField* const field : node->getFields())
        lines += QStringLiteral("%1\t%2\t%3\n")
                     .arg(toQString(NxScenePath::toText(scene, path, field)), typeName(*field),
                         beginningOf(*field, listedValueLength));
}

} // namespace

std::optional<QString> findAssignedField(NxGroup* scene, const CommandLine::Assignment& assignment, NxField*& field)
{
    if (auto error = findField(scene, assignment.path, field))
        return error;
    if (acceptsText(field, VbString(assignment.text.toStdString())))
        return std::nullopt;
    return QStringLiteral("%1: '%2' is no value for a field of type %3")
        .arg(assignment.path, assignment.text, typeName(*field));
}

std::optional<QString> setField(NxGroup* scene, const CommandLine::Assignment& assignment)
{
    NxField* field = nullptr;
    if (auto error = findAssignedField(scene, assignment, field))
        return error;
    field->set(VbString(assignment.text.toStdString()));
    return std::nullopt;
}

std::optional<QString> getField(NxGroup* scene, const QString& path, QString& text)
{
    NxField* field = nullptr;
    if (auto error = findField(scene, path, field))
        return error;
    VbString value;
    field->get(value);
    text = toQString(value.view());
    return std::nullopt;
}

QString listScene(NxGroup* scene)
{
    // A stack of its own: scenes may be nested deeper than the call stack would like.
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;
    };
    QString lines;
    std::vector<NxNode*> path;
    std::vector<Level> levels{{scene->getChildren()}};
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.next == level.children.size()) {
            levels.pop_back();
            if (!path.empty())
                path.pop_back();
            continue;
        }
        NxNode* const node = level.children[level.next++];
        path.push_back(node);
        listNode(scene, path, lines);
        levels.push_back({node->getChildren()});
    }
    return lines;
}

} // namespace orvane
