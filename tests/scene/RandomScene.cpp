#include "RandomScene.h"

#include "FieldCatalogue.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

#include <array>
#include <map>

namespace {

/// The classes that can be made and hold values of the toolkit's.
std::vector<NxType> nodeClasses()
{
    std::vector<NxType> result;
    for (const NxType& type : NxType::getAllDerivedFrom(NxNode::getClassTypeId())) {
        if (type.canCreateInstance())
            result.push_back(type);
    }
    return result;
}

class Builder {
public:
    explicit Builder(unsigned int seed)
        : m_random(seed)
    {
    }

    NxRef<NxGroup> build()
    {
        NxRef<NxGroup> scene(new NxGroup);
        std::vector<NxGroup*> groups{scene.get()};
        std::vector<NxNode*> nodes;
        for (std::size_t count = 1 + m_random.below(30); count > 0; --count) {
            NxGroup* const parent = groups[m_random.below(groups.size())];
            if (!nodes.empty() && m_random.below(4) == 0) {
                parent->addChild(nodes[m_random.below(nodes.size())]); // refused where it makes a cycle
                continue;
            }
            NxNode* const node = makeNode();
            const NxRef<NxNode> hold(node);
            parent->insertChild(node, static_cast<int>(m_random.below(parent->getChildren().size() + 1)));
            nodes.push_back(node);
            if (auto* const group = dynamic_cast<NxGroup*>(node))
                groups.push_back(group);
        }
        return scene;
    }

private:
    NxNode* makeNode()
    {
        static const std::vector<NxType> classes = nodeClasses();
        const NxType type = classes[m_random.below(classes.size())];
        auto* const node = static_cast<NxNode*>(static_cast<NxTypedObject*>(type.createInstance(nullptr)));
        if (auto* const unknown = dynamic_cast<NxUnknownNode*>(node))
            unknown->setClassName(m_random.below(2) == 0 ? "Widget" : "as");
        static constexpr std::array names{"", "", "a", "a", "b", "#1", "#2", "arm \"left\"\n", "Größe 🤖"};
        node->setName(VbString(names[m_random.below(names.size())]));
        for (NxField* field : node->getFields())
            fillField(*field);
        fillUnknownFields(*node);
        return node;
    }

    void fillField(NxField& field)
    {
        if (m_random.below(3) == 0) {
            for (const FieldKind& kind : fieldCatalogue()) {
                if (kind.type == field.getTypeId())
                    kind.setRandom(field, m_random);
            }
        }
        field.setIgnored(m_random.below(6) == 0 ? 1 : 0);
    }

    void fillUnknownFields(NxNode& node)
    {
        static constexpr std::array texts{
            "1 2 3", "[1,\n   2, # ]\n\t\"}\"]", "\"a ; b # c } \\\" \"", "A | B", "x[]y"};
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (m_random.below(8) == 0)
                node.addUnknownField({"unknown" + std::to_string(i), texts[i], m_random.below(2) == 0});
        }
    }

    RandomValues m_random;
};

class Comparison {
public:
    std::string compareChildren(const NxNode& left, const NxNode& right)
    {
        const auto leftChildren = left.getChildren();
        const auto rightChildren = right.getChildren();
        if (leftChildren.size() != rightChildren.size())
            return "number of children";
        for (std::size_t i = 0; i < leftChildren.size(); ++i) {
            if (std::string difference = compare(leftChildren[i], rightChildren[i]); !difference.empty())
                return std::to_string(i) + '/' + difference;
        }
        return {};
    }

private:
    std::string compare(NxNode* left, NxNode* right)
    {
        const bool seenLeft = !m_partners.try_emplace(left, right).second;
        const bool seenRight = !m_partners.try_emplace(right, left).second;
        if (seenLeft || seenRight)
            return m_partners[left] == right && m_partners[right] == left ? "" : "sharing";
        if (std::string_view(left->getClassName()) != right->getClassName() || left->getTypeId() != right->getTypeId())
            return "class";
        if (!(left->getName() == right->getName()))
            return "name";
        if (std::string difference = compareFields(*left, *right); !difference.empty())
            return difference;
        return compareChildren(*left, *right);
    }

    static std::string compareFields(NxNode& left, NxNode& right)
    {
        const std::vector<NxField*> leftFields = left.getFields();
        const std::vector<NxField*> rightFields = right.getFields();
        for (std::size_t i = 0; i < leftFields.size(); ++i) {
            if (!leftFields[i]->isSame(*rightFields[i]) || leftFields[i]->isIgnored() != rightFields[i]->isIgnored())
                return left.getFieldName(leftFields[i]).getString();
        }
        const auto& leftUnknown = left.getUnknownFields();
        const auto& rightUnknown = right.getUnknownFields();
        if (leftUnknown.size() != rightUnknown.size())
            return "number of unknown fields";
        for (std::size_t i = 0; i < leftUnknown.size(); ++i) {
            if (leftUnknown[i].name != rightUnknown[i].name || leftUnknown[i].text != rightUnknown[i].text
                || leftUnknown[i].ignored != rightUnknown[i].ignored)
                return leftUnknown[i].name;
        }
        return {};
    }

    std::map<const NxNode*, const NxNode*> m_partners; // both ways
};

} // namespace

NxRef<NxGroup> makeRandomScene(unsigned int seed)
{
    return Builder(seed).build();
}

std::string findDifference(const NxGroup& left, const NxGroup& right)
{
    return Comparison().compareChildren(left, right);
}
