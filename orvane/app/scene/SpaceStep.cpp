#include "orvane/app/scene/SpaceStep.h"

#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QCoreApplication>

namespace {

struct SpaceTexts {
    Q_DECLARE_TR_FUNCTIONS(SpaceStep)
};

} // namespace

SpaceStep::SpaceStep(NxGroup* scene)
{
    if (scene == nullptr || scene->getNumChildren() == 0)
        return;
    NxNode* const top = scene->getChild(0);
    const NxFieldData& data = *top->getFieldData();
    for (int index = 0; index < data.getNumFields(); ++index) {
        NxField* const field = data.getField(top, index);
        if (field->isDefault())
            continue;
        VbString text;
        field->get(text);
        m_values.emplace_back(field, text);
        data.getDefault(index)->get(text);
        field->set(text);
    }
}

void SpaceStep::push(OrvServices& services) const
{
    if (m_values.empty())
        return;
    services.beginEdit(SpaceTexts::tr("Convert Unit and Up Axis"));
    for (const auto& [field, text] : m_values)
        field->set(text);
    services.endEdit();
    services.setClean();
}
