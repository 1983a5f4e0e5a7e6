#include "orvane/app/command_line/SceneListing.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/values/FieldText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QTextStream>

#include <optional>

namespace {

constexpr qsizetype listedValueLength = 1000;

} // namespace

void SceneListing::print()
{
    meridane::NodeTraversal nodes(*m_scene);
    while (m_output.status() == QTextStream::Ok) {
        NxNode* const node = nodes.nextUse();
        if (node == nullptr)
            break;
        const Places places = nodes.indices();
        printNode(*node, places, firstPlacesOf(*node, places));
    }
}

// Null for a node that wasn't printed yet.
const SceneListing::Places* SceneListing::firstPlacesOf(const NxNode& node, const Places& places)
{
    // Each place holds a reference, so a node with one reference has one place and isn't in the table.
    if (node.getRefCount() == 1)
        return nullptr;
    const auto [found, isFirst] = m_firstPlaces.try_emplace(&node, places);
    return isFirst ? nullptr : &found->second;
}

void SceneListing::printNode(NxNode& node, const Places& places, const Places* first)
{
    const QString path = pathOf(places);
    m_output << path << '\t' << node.getClassName();
    if (first != nullptr) {
        m_output << "\tsame as " << pathOf(*first) << '\n';
        return;
    }
    m_output << '\n';
    for (const NxField* const field : node.getFields()) {
        m_output << path << '.' << node.getFieldName(field).getString() << '\t' << orvane::typeName(*field) << '\t'
                 << orvane::beginningOf(*field, listedValueLength) << '\n';
    }
}

QString SceneListing::pathOf(const Places& places)
{
    const std::optional<std::string> path = m_namer.name(*m_scene, places, nullptr, std::chrono::nanoseconds::max());
    return orvane::toQString(path.value_or(std::string()));
}
