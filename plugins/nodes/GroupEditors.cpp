#include "plugins/nodes/GroupEditors.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/EffectiveField.h"

namespace nodes {

namespace {

struct GroupTexts {
    Q_DECLARE_TR_FUNCTIONS(GroupEditor)
};

constexpr int allChildren = -3;

QString shownChild(const NxSwitch& node)
{
    const int which = meridane::effectiveField(node.whichChild).getValue();
    if (which == allChildren)
        return GroupTexts::tr("all children");
    const auto children = node.getChildren();
    if (which < 0 || static_cast<std::size_t>(which) >= children.size())
        return GroupTexts::tr("no child");
    NxNode& child = *children[static_cast<std::size_t>(which)];
    const QString name = orvane::toQString(child.getName());
    return name.isEmpty() ? QString::fromUtf8(child.getClassName()) : name;
}

} // namespace

void GroupEditor::build()
{
    addChildrenRows();
}

void SwitchEditor::build()
{
    addText(GroupTexts::tr("Shown is"), [](const NxSwitch& node) { return shownChild(node); });
    addField(&NxSwitch::whichChild);
    addChildrenRows();
}

} // namespace nodes
