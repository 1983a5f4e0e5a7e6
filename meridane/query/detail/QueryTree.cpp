#include "meridane/query/detail/QueryTree.h"

#include "meridane/base/values/Unicode.h"
#include "meridane/base/values/VbName.h"
#include "meridane/query/QueryFacts.h"
#include "meridane/query/detail/FieldTexts.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxNode.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

#include <algorithm>
#include <string>
#include <utility>

namespace meridane {
namespace {

template <typename... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template <typename... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

std::vector<NxField*> fieldsOf(const NxNode& node)
{
    // Reading the fields of a node changes nothing.
    return const_cast<NxNode&>(node).getFields(); // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

/// The first field of a node that passes the test, or null.
template <typename Test>
NxField* findField(const NxNode& node, Test test)
{
    const std::vector<NxField*> fields = fieldsOf(node);
    const auto found = std::ranges::find_if(fields, test);
    return found != fields.end() ? *found : nullptr;
}

std::string nameOf(const NxField& field)
{
    const NxFieldContainer* const container = field.getContainer();
    return container != nullptr ? latin1ToUtf8(container->getFieldName(&field).getString()) : std::string();
}

const NxNode* nodeOf(const NxField& field)
{
    return dynamic_cast<const NxNode*>(field.getContainer());
}

} // namespace

QueryTree::QueryTree(Condition condition)
    : m_condition(std::move(condition))
{
    const auto combine = [this](const std::vector<QueryTree>& conditions) {
        m_isAboutFields = std::ranges::any_of(conditions, &QueryTree::m_isAboutFields);
        m_isOnlyAboutFields = std::ranges::all_of(conditions, &QueryTree::m_isOnlyAboutFields);
        m_needsFacts = std::ranges::any_of(conditions, &QueryTree::m_needsFacts);
    };
    std::visit(Overloaded{
                   [](const Name&) {},
                   [](const Class&) {},
                   [this](const Unused&) { m_needsFacts = true; },
                   [&](const All& all) { combine(all.conditions); },
                   [&](const Any& any) { combine(any.conditions); },
                   [&](const Not& negation) { combine(negation.condition); },
                   [this](const auto& about) {
                       m_isAboutFields = true;
                       m_isOnlyAboutFields = true;
                       m_needsFacts = std::is_same_v<decltype(about), const Missing&>;
                   },
               },
        m_condition);
}

bool QueryTree::matches(const Field& subject) const
{
    const NxField& field = subject.field;
    const auto isMatch = [&subject](const QueryTree& tree) { return tree.matches(subject); };
    return std::visit(Overloaded{
                          [&](const Name& name) {
                              return name.pattern.matchesName(nameOf(field))
                                  || name.pattern.matchesName(field.getTypeId().getName().getString())
                                  || name.pattern.matchesText(beginningOfValue(field));
                          },
                          [&](const Class& type) {
                              const NxNode* const node = nodeOf(field);
                              return type.pattern.matches(field) || (node != nullptr && type.pattern.matches(*node));
                          },
                          [&](const Unused&) {
                              const NxNode* const node = nodeOf(field);
                              return subject.facts != nullptr && node != nullptr && subject.facts->isUnused(*node);
                          },
                          [&](const FieldName& name) { return name.pattern.matchesName(nameOf(field)); },
                          [&](const ValueText& text) { return text.pattern.matchesText(beginningOfValue(field)); },
                          [&](const ValueTest& test) { return test.matches(field); },
                          [&](const Changed&) { return field.getContainer() != nullptr && !field.isDefault(); },
                          [&](const Ignored&) { return field.isIgnored(); },
                          [&](const Missing&) { return subject.facts != nullptr && subject.facts->isMissing(field); },
                          [&](const All& all) { return std::ranges::all_of(all.conditions, isMatch); },
                          [&](const Any& any) { return std::ranges::any_of(any.conditions, isMatch); },
                          [&](const Not& negation) { return !negation.condition.front().matches(subject); },
                      },
        m_condition);
}

bool QueryTree::matches(const Node& subject) const
{
    const auto isMatch = [&subject](const QueryTree& tree) { return tree.matches(subject); };
    return std::visit(
        Overloaded{
            [&](const Name& name) { return matchesName(name, subject); },
            [&](const Class& type) { return type.pattern.matches(subject.node, subject.type); },
            [&](const Unused&) { return subject.facts != nullptr && subject.facts->isUnused(subject.node); },
            [&](const All& all) { return matchesAll(all, subject); },
            [&](const Any& any) { return std::ranges::any_of(any.conditions, isMatch); },
            [&](const Not& negation) { return !negation.condition.front().matches(subject); },
            [&](const auto&) {
                return findField(subject.node, [&](const NxField* field) {
                    return matches(Field{*field, subject.facts});
                }) != nullptr;
            },
        },
        m_condition);
}

bool QueryTree::matchesName(const Name& name, const Node& subject)
{
    if (name.pattern.matchesFoldedName(subject.foldedName, [&] { return subject.node.getName().view(); }))
        return true;
    const auto isInClass = [&] { return name.pattern.matchesText(subject.node.getClassName()); };
    return subject.type == NxUnknownNode::getClassTypeId() ? isInClass() : name.classes.of(subject.type, isInClass);
}

bool QueryTree::matchesAll(const All& all, const Node& subject) const
{
    const auto isPositive = [](const QueryTree& tree) {
        return tree.isOnlyAboutFields() && !std::holds_alternative<Not>(tree.m_condition);
    };
    // Then all conditions about fields are about one of them; otherwise no field has what is excluded.
    const bool isOneField = m_isAboutFields && std::ranges::any_of(all.conditions, isPositive);
    const bool areOthers = std::ranges::all_of(all.conditions,
        [&](const QueryTree& tree) { return (isOneField && tree.isOnlyAboutFields()) || tree.matches(subject); });
    return areOthers && (!isOneField || oneField(all, subject) != nullptr);
}

NxField* QueryTree::oneField(const All& all, const Node& subject)
{
    return findField(subject.node, [&](const NxField* field) {
        return std::ranges::all_of(all.conditions, [&](const QueryTree& tree) {
            return !tree.isOnlyAboutFields() || tree.matches(Field{*field, subject.facts});
        });
    });
}

NxField* QueryTree::firstField(const Node& subject) const
{
    const auto first = [&](const std::vector<QueryTree>& conditions) -> NxField* {
        for (const QueryTree& tree : conditions) {
            NxField* const field = tree.matches(subject) ? tree.firstField(subject) : nullptr;
            if (field != nullptr)
                return field;
        }
        return nullptr;
    };
    if (!m_isAboutFields)
        return nullptr;
    return std::visit(Overloaded{
                          [&](const All& all) {
                              const bool hasOwn = std::ranges::any_of(all.conditions, &QueryTree::m_isOnlyAboutFields);
                              return hasOwn ? oneField(all, subject) : first(all.conditions);
                          },
                          [&](const Any& any) { return first(any.conditions); },
                          [](const Not&) -> NxField* { return nullptr; },
                          [&](const auto&) {
                              return findField(subject.node, [&](const NxField* field) {
                                  return matches(Field{*field, subject.facts});
                              });
                          },
                      },
        m_condition);
}

bool QueryTree::matchesText(std::string_view text) const
{
    const auto isMatch = [text](const QueryTree& tree) { return tree.matchesText(text); };
    return std::visit(Overloaded{
                          [&](const Name& name) { return name.pattern.matchesText(text); },
                          [&](const All& all) { return std::ranges::all_of(all.conditions, isMatch); },
                          [&](const Any& any) { return std::ranges::any_of(any.conditions, isMatch); },
                          [&](const Not& negation) { return !negation.condition.front().matchesText(text); },
                          [](const auto&) { return false; }, // a query for plain texts has none of the others
                      },
        m_condition);
}

void QueryTree::addFound(std::string_view text, SearchedText kind, FoundParts& parts) const
{
    const auto addAll = [&](const std::vector<QueryTree>& conditions) {
        for (const QueryTree& each : conditions)
            each.addFound(text, kind, parts);
    };
    std::visit(Overloaded{
                   [&](const Name& name) {
                       kind == SearchedText::Value ? name.pattern.addFoundInText(text, parts)
                                                   : name.pattern.addFoundInName(text, parts);
                   },
                   [&](const Class& type) {
                       if (kind == SearchedText::Class)
                           type.pattern.addFound(text, parts);
                   },
                   [&](const FieldName& name) {
                       if (kind == SearchedText::Name)
                           name.pattern.addFoundInName(text, parts);
                   },
                   [&](const ValueText& value) {
                       if (kind == SearchedText::Value)
                           value.pattern.addFoundInText(text, parts);
                   },
                   [&](const All& all) { addAll(all.conditions); },
                   [&](const Any& any) { addAll(any.conditions); },
                   [](const auto&) {},
               },
        m_condition);
}

} // namespace meridane
