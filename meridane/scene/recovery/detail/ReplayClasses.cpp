#include "meridane/scene/recovery/detail/ReplayClasses.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxUnknownNode.h"
#include "meridane/scene/recovery/detail/ClassFingerprint.h"
#include "meridane/scene/recovery/detail/RecoveryFormat.h"
#include "meridane/scene/text/Identifier.h"

#include <string_view>

namespace meridane {

namespace {

constexpr const char* incompleteClass = "the description of a class is incomplete";

} // namespace

std::string ReplayClasses::add(ByteReader& reader)
{
    std::uint8_t kind = 0;
    std::string_view name;
    if (!reader.byte(kind) || kind > static_cast<std::uint8_t>(RecoveryFormat::ClassKind::Unknown)
        || !reader.text(name))
        return incompleteClass;
    Class& added = m_classes.emplace_back();
    added.name = name;
    if (kind == static_cast<std::uint8_t>(RecoveryFormat::ClassKind::Unknown)) {
        std::uint64_t fields = 0;
        return isClassName(name) && reader.number(fields, 0) ? std::string() : incompleteClass;
    }
    added.known = &m_knownClasses.find(name);
    const NxRef<NxNode> example = added.known->create();
    if (example->isOfType(NxUnknownNode::getClassTypeId()))
        return "it needs the node class " + added.name + ", which isn't there; load the plug-in that has it";
    m_described.insert(example->getFieldData());
    return compareFields(reader, added.name, *example->getFieldData());
}

std::string ReplayClasses::compareFields(ByteReader& reader, const std::string& name, NxFieldData& data)
{
    std::uint64_t count = 0;
    if (!reader.number(count))
        return incompleteClass;
    bool isSame = count == static_cast<std::uint64_t>(data.getNumFields());
    for (int i = 0; isSame && i < data.getNumFields(); ++i) {
        std::string_view fieldName;
        std::string_view type;
        std::uint64_t hash = 0;
        if (!reader.text(fieldName) || !reader.text(type) || !reader.wideNumber(hash))
            return incompleteClass;
        const NxField& field = *data.getDefault(i);
        isSame = fieldName == data.getFieldName(i).getString() && type == field.getTypeId().getName().getString()
            && hash == hashOfDefault(field);
    }
    if (isSame)
        return {};
    return "the node class " + name + " has other fields or defaults here than where the changes were made";
}

NxRef<NxNode> ReplayClasses::create(std::uint64_t number) const
{
    const Class& nodeClass = m_classes[number];
    if (nodeClass.known != nullptr)
        return nodeClass.known->create();
    const NxRef<NxUnknownNode> node(new NxUnknownNode);
    node->setClassName(nodeClass.name);
    return node;
}

NxField* ReplayClasses::field(NxNode& node, std::uint64_t index) const
{
    NxFieldData* const data = node.getFieldData();
    if (!m_described.contains(data) || index >= static_cast<std::uint64_t>(data->getNumFields()))
        return nullptr;
    return data->getField(&node, static_cast<int>(index));
}

} // namespace meridane
