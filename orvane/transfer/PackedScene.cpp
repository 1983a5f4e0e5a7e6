#include "orvane/transfer/PackedScene.h"

#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/list/NxMFColorRGBA.h"
#include "meridane/scene/fields/list/NxMFInt32.h"
#include "meridane/scene/fields/list/NxMFVec2f.h"
#include "meridane/scene/fields/list/NxMFVec3f.h"
#include "meridane/scene/fields/list/NxMFVec4f.h"
#include "meridane/scene/fields/single/NxSFImage.h"
#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/nodes/NodeTraversal.h"

#include <algorithm>
#include <chrono>
#include <span>
#include <utility>

namespace orvane {

namespace {

/// Calls the action with the field, cast to its class, if it is a list of positions, directions, colours or indices,
/// which may be sent as bytes.
template <typename Action>
void withPackableList(NxField& field, const Action& action)
{
    const auto* const any = dynamic_cast<const NxMField*>(&field);
    if (any == nullptr || any->plainRowBytes() == 0)
        return;
    const auto tryAs = [&]<typename List>(List* list) {
        if (list != nullptr)
            action(*list);
        return list != nullptr;
    };
    static_cast<void>(tryAs(dynamic_cast<NxMFVec3f*>(&field)) || tryAs(dynamic_cast<NxMFVec2f*>(&field))
        || tryAs(dynamic_cast<NxMFVec4f*>(&field)) || tryAs(dynamic_cast<NxMFInt32*>(&field)));
}

std::string lineOf(const char* word, const std::string& message)
{
    std::string text = message.substr(0, PackedScene::longestWarning);
    // Not in the middle of a character.
    while (text.size() < message.size() && !text.empty()
        && (static_cast<unsigned char>(message[text.size()]) & 0xc0) == 0x80)
        text.pop_back();
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
    return word + text + '\n';
}

} // namespace

PackedScene::PackedScene(NxGroup& scene, const std::vector<std::string>& warnings, const SpaceNote& note)
{
    meridane::NodeTraversal nodes(scene);
    std::size_t number = 0;
    while (NxNode* node = nodes.next())
        takeBlocks(*node, number++);
    std::string lines;
    for (const std::string& warning : std::span(warnings).first(std::min(warnings.size(), mostWarnings)))
        lines += lineOf("warning ", warning);
    if (!note.text.empty())
        lines += lineOf(note.isConverted ? "conversion " : "note ", note.text);
    writeText(scene, lines);
}

void PackedScene::takeBlocks(NxNode& node, std::size_t number)
{
    const NxFieldData& data = *node.getFieldData();
    for (int index = 0; index < data.getNumFields(); ++index) {
        NxField& field = *data.getField(&node, index);
        const std::string name(data.getFieldName(index).getString());
        if (field.isOfType(NxSFImage::getClassTypeId()))
            takeImage(static_cast<NxSFImage&>(field), std::to_string(number), name);
        withPackableList(field, [&](auto& list) {
            if (list.getNum() >= shortestList)
                addBlock("list ", std::to_string(number), name, list.takeValues());
        });
    }
}

void PackedScene::takeImage(NxSFImage& field, const std::string& node, const std::string& name)
{
    VbVec2s size;
    int components = 0;
    field.getValue(size, components);
    if (size[0] * size[1] < shortestList)
        return;
    std::string numbers = node;
    for (const int number : {int{size[0]}, int{size[1]}, components})
        numbers.append(" ").append(std::to_string(number));
    addBlock("image ", numbers, name, field.takeBytes());
}

template <typename Value>
void PackedScene::addBlock(
    const char* word, const std::string& numbers, const std::string& name, std::vector<Value> values)
{
    const auto kept = std::make_shared<const std::vector<Value>>(std::move(values));
    const std::size_t size = kept->size() * sizeof(Value);
    std::string head(word);
    head.append(std::to_string(size)).append(" ").append(numbers).append(" ").append(name).append("\n");
    m_blocks.push_back({std::move(head), kept, {reinterpret_cast<const char*>(kept->data()), size}});
}

void PackedScene::writeText(NxGroup& scene, const std::string& messageLines)
{
    NxSceneWriter writer(&scene);
    while (writer.step(m_text, std::chrono::hours(1))) { }
    m_failure = writer.failure();
    const std::string textHead = std::string("text ").append(std::to_string(m_text.size())).append("\n");
    std::size_t size = messageLines.size() + textHead.size() + m_text.size();
    for (const Block& block : m_blocks)
        size += block.head.size() + block.bytes.size();
    m_head.append(firstWords).append(std::to_string(size)).append("\n").append(messageLines).append(textHead);
}

std::vector<std::string_view> PackedScene::portions() const
{
    std::vector<std::string_view> portions{m_head, m_text};
    for (const Block& block : m_blocks)
        portions.insert(portions.end(), {std::string_view(block.head), block.bytes});
    return portions;
}

} // namespace orvane
