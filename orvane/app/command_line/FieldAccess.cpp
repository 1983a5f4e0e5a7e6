#include "orvane/app/command_line/FieldAccess.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/FieldText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/file/NxScenePath.h"

namespace orvane {

namespace {

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

} // namespace orvane
