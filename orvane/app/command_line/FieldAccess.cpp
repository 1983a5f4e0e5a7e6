#include "orvane/app/command_line/FieldAccess.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/values/FieldText.h"
#include "orvane/app/fields/values/FieldTrial.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePath.h"

namespace orvane {

namespace {

// Follows a path that has to name a field.
Result<NxField*> findField(NxGroup* scene, const QString& path)
{
    const NxScenePath::Target target = NxScenePath::find(scene, path.toStdString());
    if (!target.error.empty())
        return Failure{toQString(target.error)};
    if (target.field == nullptr)
        return Failure{QStringLiteral("%1: this is a node; a field is named as %1.field").arg(path)};
    return target.field;
}

// Tries a text on the same field of a new node of the class, so that no sensor of the field is notified.
bool acceptsText(const NxField* field, const VbString& text)
{
    const FieldTrial trial(*field);
    return trial.field() != nullptr && trial.field()->set(text);
}

} // namespace

Result<NxField*> findAssignedField(NxGroup* scene, const CommandLine::Assignment& assignment)
{
    auto field = findField(scene, assignment.path);
    if (!field || acceptsText(field.value(), VbString(assignment.text.toStdString())))
        return field;
    return Failure{QStringLiteral("%1: '%2' isn't a value for a field of type %3")
                       .arg(assignment.path, assignment.text, typeName(*field.value()))};
}

Result<> setField(NxGroup* scene, const CommandLine::Assignment& assignment)
{
    const auto field = findAssignedField(scene, assignment);
    if (!field)
        return Failure{field.error()};
    field.value()->set(VbString(assignment.text.toStdString()));
    return {};
}

Result<QString> fieldText(NxGroup* scene, const QString& path)
{
    const auto field = findField(scene, path);
    if (!field)
        return Failure{field.error()};
    VbString value;
    field.value()->get(value);
    return toQString(value.view());
}

} // namespace orvane
