#include "orvane/import/PackedScene.h"

#include "orvane/import/Frames.h"
#include "orvane/import/NodeOrder.h"
#include "orvane/import/PackedLists.h"

#include "meridane/scene/NxFieldData.h"
#include "meridane/scene/NxSceneWriter.h"

#include <chrono>

namespace orvane {
namespace {

constexpr std::string_view firstWords = "orvane-scene 1 ";
constexpr std::size_t longestFirstLine = 64;

} // namespace

PackedScene::PackedScene(NxGroup& scene)
{
    NodeOrder order(scene);
    std::size_t number = 0;
    while (NxNode* node = order.next())
        takeLists(*node, number++);
    writeText(scene);
}

void PackedScene::takeLists(NxNode& node, std::size_t number)
{
    const NxFieldData& data = *node.getFieldData();
    for (int index = 0; index < data.getNumFields(); ++index) {
        withPackableList(*data.getField(&node, index), [&](auto& list) {
            if (list.getNum() < shortestList)
                return;
            const auto values
                = std::make_shared<const std::vector<ListValue<std::decay_t<decltype(list)>>>>(list.takeValues());
            const std::size_t size = values->size() * sizeof(values->front());
            m_lists.push_back({std::string("list ")
                                   .append(std::to_string(size))
                                   .append(" ")
                                   .append(std::to_string(number))
                                   .append(" ")
                                   .append(data.getFieldName(index).getString())
                                   .append("\n"),
                values, {reinterpret_cast<const char*>(values->data()), size}});
        });
    }
}

void PackedScene::writeText(NxGroup& scene)
{
    NxSceneWriter writer(&scene);
    while (writer.step(m_text, std::chrono::hours(1))) { }
    m_failure = writer.failure();
    const std::string textHead = std::string("text ").append(std::to_string(m_text.size())).append("\n");
    std::size_t size = textHead.size() + m_text.size();
    for (const List& list : m_lists)
        size += list.head.size() + list.bytes.size();
    m_head.append(firstWords).append(std::to_string(size)).append("\n").append(textHead);
}

std::vector<std::string_view> PackedScene::portions() const
{
    std::vector<std::string_view> portions{m_head, m_text};
    for (const List& list : m_lists)
        portions.insert(portions.end(), {std::string_view(list.head), list.bytes});
    return portions;
}

std::optional<std::size_t> packedSceneSize(std::string_view bytes)
{
    const std::size_t all = bytes.size();
    std::optional<std::string_view> line = takeLine(bytes, longestFirstLine);
    if (!line || !takeStart(*line, firstWords))
        return std::nullopt;
    const std::optional<std::size_t> size = takeNumber(*line);
    const std::size_t head = all - bytes.size();
    if (!size || !line->empty() || *size > std::string::npos - head)
        return std::nullopt;
    return head + *size;
}

} // namespace orvane
