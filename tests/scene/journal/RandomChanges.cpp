#include "scene/journal/RandomChanges.h"

#include "scene/FieldCatalogue.h"

#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/list/NxMFFloat.h"
#include "meridane/scene/nodes/NodeTraversal.h"

#include <algorithm>

RandomChanges::RandomChanges(NxGroup& scene, unsigned int seed)
    : m_scene(&scene)
    , m_random(seed)
{
    m_nodes.emplace_back(&scene);
    meridane::NodeTraversal nodes(scene);
    while (NxNode* const node = nodes.next())
        m_nodes.emplace_back(node);
}

void RandomChanges::makeSome()
{
    for (std::size_t count = 1 + m_random.below(4); count > 0; --count)
        makeOne();
}

void RandomChanges::releaseNodes()
{
    std::erase_if(m_nodes, [](const NxRef<NxNode>& node) { return node->getRefCount() == 1; });
}

void RandomChanges::makeOne()
{
    NxNode& node = *m_nodes[m_random.below(m_nodes.size())].get();
    const std::vector<NxField*> fields = node.getFields();
    const std::size_t choice = m_random.below(8);
    if (choice == 0) {
        VbString name;
        m_random.fill(name);
        node.setName(name);
    } else if (choice < 3 || fields.empty()) {
        changeChildren();
    } else {
        changeField(*fields[m_random.below(fields.size())]);
    }
}

void RandomChanges::changeField(NxField& field)
{
    if (m_random.below(8) == 0) {
        field.setIgnored(static_cast<int>(m_random.below(2)));
        return;
    }
    auto* const list = dynamic_cast<NxMField*>(&field);
    if (list != nullptr && m_random.below(4) != 0) {
        changeList(*list);
        return;
    }
    const auto kind = std::ranges::find_if(
        fieldCatalogue(), [&](const FieldKind& other) { return other.type == field.getTypeId(); });
    if (kind != fieldCatalogue().end())
        kind->setRandom(field, m_random);
}

void RandomChanges::changeList(NxMField& list)
{
    const auto row = [&] { return static_cast<int>(m_random.below(static_cast<std::size_t>(list.getNum()) + 1)); };
    const int count = static_cast<int>(m_random.below(4));
    switch (m_random.below(4)) {
    case 0:
        list.insertSpace(row(), count);
        break;
    case 1:
        list.deleteValues(row(), count);
        break;
    case 2: {
        // As a user copies one row to another.
        VbString text;
        list.get1(row(), text);
        list.set1(row(), text);
        break;
    }
    default:
        if (auto* const numbers = dynamic_cast<NxMFFloat*>(&list)) {
            float value = 0;
            m_random.fill(value);
            numbers->set1Value(row(), value);
        }
    }
}

void RandomChanges::changeChildren()
{
    auto* const group = dynamic_cast<NxGroup*>(m_nodes[m_random.below(m_nodes.size())].get());
    if (group == nullptr)
        return;
    const auto place = [&] { return static_cast<int>(m_random.below(group->getChildren().size() + 1)); };
    switch (m_random.below(8)) {
    case 0:
        group->removeAllChildren();
        break;
    case 1:
    case 2:
    case 3:
        group->removeChild(place());
        break;
    case 4:
        group->insertChild(m_nodes[m_random.below(m_nodes.size())].get(), place());
        break;
    default: {
        const auto& kinds = fieldCatalogue();
        const NxRef<NxFieldContainer> node = kinds[m_random.below(kinds.size())].makeNode();
        group->insertChild(static_cast<NxNode*>(node.get()), place());
        m_nodes.emplace_back(static_cast<NxNode*>(node.get()));
    }
    }
}
