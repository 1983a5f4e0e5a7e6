#include "meridane/scene/check/detail/ValueMends.h"

#include "meridane/scene/check/detail/FieldRange.h"
#include "meridane/scene/check/detail/MendRecorder.h"
#include "meridane/scene/check/detail/MeshMends.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxSwitch.h"

#include <cmath>
#include <vector>

namespace meridane {
namespace {

const NxField* defaultOf(NxNode& node, const NxField& field)
{
    const NxFieldData* const data = node.getFieldData();
    return data->getDefault(data->getIndex(&node, &field));
}

/// The component of a new row of a list: of the identity, the z axis, or black.
double newNumber(const FieldComponents& components, int component)
{
    const int last = components.count() - 1;
    const bool hasAxis = components.name(last) == "angle" || components.name(last) == "distance";
    const bool isOne = components.count() == 16
        ? component % 5 == 0
        : (hasAxis && component == 2) || (components.name(last) == "a" && component == last);
    return isOne ? 1 : 0;
}

/// Replaces the numbers of a field for which `replacement` returns another one.
template <typename Replacement>
bool replaceNumbers(NxField& field, const FieldComponents& components, MendRecorder& recorder, Replacement replacement)
{
    bool isKept = false;
    bool isDone = true;
    std::vector<double> numbers(static_cast<std::size_t>(components.rows(field)));
    for (int component = 0; component < components.count(); ++component) {
        components.read(field, 0, component, numbers);
        std::vector<int> rows;
        std::vector<double> values;
        for (std::size_t row = 0; row < numbers.size(); ++row) {
            const double other = replacement(component, numbers[row]);
            if (other == numbers[row])
                continue;
            rows.push_back(static_cast<int>(row));
            values.push_back(other);
        }
        if (rows.empty())
            continue;
        if (!isKept)
            recorder.keepValue(field);
        isKept = true;
        isDone = components.setColumn(field, rows, component, values) && isDone;
    }
    return isKept && isDone;
}

bool mendNumbers(const NxSceneProblem& problem, MendRecorder& recorder)
{
    NxField& field = *problem.field;
    const FieldComponents* const components = FieldComponents::of(field);
    if (components == nullptr || field.isIgnored())
        return false;
    if (problem.kind == NxProblemKind::OutOfRange) {
        const FieldRange range(*components, factsOf(field));
        return range.isClosed() && replaceNumbers(field, *components, recorder, [&](int component, double number) {
            return !std::isfinite(number) || range.contains(component, number) ? number : range.limited(number);
        });
    }
    const bool isList = dynamic_cast<const NxMField*>(&field) != nullptr;
    const NxField* const original = isList ? nullptr : defaultOf(*problem.node, field);
    return replaceNumbers(field, *components, recorder, [&](int component, double number) {
        if (std::isfinite(number))
            return number;
        const double usual = original == nullptr ? number : components->get(*original, 0, component);
        return std::isfinite(usual) ? usual : newNumber(*components, component);
    });
}

bool setToDefault(const NxSceneProblem& problem, MendRecorder& recorder)
{
    const NxField* const original = defaultOf(*problem.node, *problem.field);
    if (original == nullptr || problem.field->isIgnored() || problem.field->isDefault())
        return false;
    recorder.keepValue(*problem.field);
    return problem.field->copyFrom(*original);
}

bool showNoChild(NxSwitch& node, MendRecorder& recorder)
{
    const int child = node.whichChild.getValue();
    if (child == NxSwitch::NONE || child == NxSwitch::ALL || (child >= 0 && child < node.getNumChildren()))
        return false;
    recorder.keepValue(node.whichChild);
    node.whichChild.setValue(NxSwitch::NONE);
    return true;
}

} // namespace

bool mendValues(const NxSceneProblem& problem, MendRecorder& recorder)
{
    if (!problem.isMendable || problem.node.get() == nullptr || problem.field == nullptr)
        return false;
    if (auto* const mesh = dynamic_cast<NxMesh*>(problem.node.get());
        mesh != nullptr && problem.kind != NxProblemKind::NotFinite && problem.kind != NxProblemKind::OutOfRange)
        return mendMesh(*mesh, problem.kind, recorder);
    switch (problem.kind) {
    case NxProblemKind::NotFinite:
    case NxProblemKind::OutOfRange:
        return mendNumbers(problem, recorder);
    case NxProblemKind::ZeroAxis:
        return setToDefault(problem, recorder);
    case NxProblemKind::SwitchIndex:
        return showNoChild(static_cast<NxSwitch&>(*problem.node), recorder);
    default:
        return false;
    }
}

} // namespace meridane
