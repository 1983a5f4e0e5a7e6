#include "orvane/app/command_line/SceneListing.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/FieldText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QTextStream>

#include <optional>
#include <span>

namespace {

constexpr qsizetype listedValueLength = 1000;

} // namespace

void SceneListing::print()
{
    // A stack of its own: scenes may be nested deeper than the call stack would like.
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;
    };
    std::vector<Level> levels{{m_scene->getChildren()}};
    Places places;
    while (!levels.empty() && m_output.status() == QTextStream::Ok) {
        Level& level = levels.back();
        places.resize(levels.size());
        if (level.next == level.children.size()) {
            levels.pop_back();
            continue;
        }
        places.back() = static_cast<int>(level.next);
        NxNode& node = *level.children[level.next++];
        const Places* const first = firstPlacesOf(node, places);
        printNode(node, places, first);
        if (first == nullptr)
            levels.push_back({node.getChildren()});
    }
}

// Null for a node that wasn't printed yet.
const SceneListing::Places* SceneListing::firstPlacesOf(const NxNode& node, const Places& places)
{
    // Each place holds a reference, so most nodes need no look into the table.
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
