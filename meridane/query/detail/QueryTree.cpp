#include "meridane/query/detail/QueryTree.h"

#include "meridane/base/values/Unicode.h"
#include "meridane/base/values/VbName.h"
#include "meridane/query/detail/FieldTexts.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxNode.h"

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

template <typename Test>
bool anyField(const NxNode& node, Test test)
{
    const std::vector<NxField*> fields = fieldsOf(node);
    return std::ranges::any_of(fields, [&](const NxField* field) { return test(*field); });
}

std::string nameOf(const NxField& field)
{
    const NxFieldContainer* const container = field.getContainer();
    return container != nullptr ? latin1ToUtf8(container->getFieldName(&field).getString()) : std::string();
}

} // namespace

QueryTree::QueryTree(Condition condition)
    : m_condition(std::move(condition))
{
    const auto isAbout = [](const QueryTree& tree) { return tree.m_isAboutFields; };
    const auto isOnly = [](const QueryTree& tree) { return tree.m_isOnlyAboutFields; };
    const auto combined = [&](const std::vector<QueryTree>& conditions) {
        return std::pair(std::ranges::any_of(conditions, isAbout), std::ranges::all_of(conditions, isOnly));
    };
    std::tie(m_isAboutFields, m_isOnlyAboutFields)
        = std::visit(Overloaded{
                         [](const Name&) { return std::pair(false, false); },
                         [](const Class&) { return std::pair(false, false); },
                         [&](const All& all) { return combined(all.conditions); },
                         [&](const Any& any) { return combined(any.conditions); },
                         [&](const Not& negation) { return combined(negation.condition); },
                         [](const auto&) { return std::pair(true, true); },
                     },
            m_condition);
}

bool QueryTree::matches(const NxField& field) const
{
    const auto isMatch = [&field](const QueryTree& tree) { return tree.matches(field); };
    return std::visit(Overloaded{
                          [&](const Name& name) {
                              return name.pattern.matchesName(nameOf(field))
                                  || name.pattern.matchesName(field.getTypeId().getName().getString())
                                  || name.pattern.matchesText(beginningOfValue(field));
                          },
                          [&](const Class& type) {
                              const auto* const node = dynamic_cast<const NxNode*>(field.getContainer());
                              return type.pattern.matches(field) || (node != nullptr && type.pattern.matches(*node));
                          },
                          [&](const FieldName& name) { return name.pattern.matchesName(nameOf(field)); },
                          [&](const ValueText& text) { return text.pattern.matchesText(beginningOfValue(field)); },
                          [&](const ValueTest& test) { return test.matches(field); },
                          [&](const Changed&) { return field.getContainer() != nullptr && !field.isDefault(); },
                          [&](const Ignored&) { return field.isIgnored(); },
                          [&](const All& all) { return std::ranges::all_of(all.conditions, isMatch); },
                          [&](const Any& any) { return std::ranges::any_of(any.conditions, isMatch); },
                          [&](const Not& negation) { return !negation.condition.front().matches(field); },
                      },
        m_condition);
}

bool QueryTree::matches(const NxNode& node) const
{
    const auto isMatch = [&node](const QueryTree& tree) { return tree.matches(node); };
    return std::visit(
        Overloaded{
            [&](const Name& name) {
                return name.pattern.matchesName(node.getName().view()) || name.pattern.matchesText(node.getClassName());
            },
            [&](const Class& type) { return type.pattern.matches(node); },
            [&](const All& all) {
                const auto isPositive = [](const QueryTree& tree) {
                    return tree.isOnlyAboutFields() && !std::holds_alternative<Not>(tree.m_condition);
                };
                // Then all conditions about fields are about one of them; otherwise no field has what is excluded.
                const bool isOneField = std::ranges::any_of(all.conditions, isPositive);
                const bool areOthers = std::ranges::all_of(all.conditions, [&](const QueryTree& tree) {
                    return (isOneField && tree.isOnlyAboutFields()) || tree.matches(node);
                });
                return areOthers && (!isOneField || anyField(node, [&](const NxField& field) {
                    return std::ranges::all_of(all.conditions,
                        [&](const QueryTree& tree) { return !tree.isOnlyAboutFields() || tree.matches(field); });
                }));
            },
            [&](const Any& any) { return std::ranges::any_of(any.conditions, isMatch); },
            [&](const Not& negation) { return !negation.condition.front().matches(node); },
            [&](const auto&) { return anyField(node, [this](const NxField& field) { return matches(field); }); },
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
