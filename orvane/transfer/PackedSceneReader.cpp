#include "orvane/transfer/PackedSceneReader.h"

#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/single/NxSFImage.h"

#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

namespace orvane {
namespace {

constexpr const char* noRoom = "the scene doesn't fit in memory";

} // namespace

PackedSceneReader::PackedSceneReader(PackedParts parts)
    : m_parts(std::move(parts))
{
}

PackedSceneReader::State PackedSceneReader::step(std::chrono::microseconds budget)
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + budget;
    try {
        do
            work(budget);
        while (m_state == State::Working && Clock::now() < end);
    } catch (const std::bad_alloc&) {
        fail(noRoom);
    } catch (const std::length_error&) {
        fail(noRoom);
    }
    return m_state;
}

PackedSceneReader::State PackedSceneReader::run()
{
    while (step(std::chrono::hours(1)) == State::Working) { }
    return m_state;
}

double PackedSceneReader::progress() const noexcept
{
    if (m_state == State::Done)
        return 1;
    const double textShare = m_textReader != nullptr ? m_textReader->progress() : m_scene ? 1 : 0;
    const double all = static_cast<double>(m_textSize) + static_cast<double>(m_blockBytes);
    const double done = static_cast<double>(m_textSize) * textShare + static_cast<double>(m_doneBytes);
    return all > 0 ? done / all : 0;
}

NxRef<NxGroup> PackedSceneReader::takeScene()
{
    return m_state == State::Done ? std::exchange(m_scene, nullptr) : nullptr;
}

void PackedSceneReader::work(std::chrono::microseconds budget)
{
    if (m_state != State::Working)
        return;
    if (m_textReader != nullptr)
        return readText(budget);
    if (!m_scene)
        return startText();
    if (m_done < m_blocks.size())
        return m_visitedNodes <= block().node ? findNode() : readBlock();
    m_state = State::Done;
}

void PackedSceneReader::startText()
{
    if (!m_parts.isComplete())
        return fail(m_parts.failure());
    std::string text = m_parts.takeText();
    m_blocks = m_parts.takeBlocks();
    m_textSize = text.size();
    for (const PackedBlock& block : m_blocks)
        m_blockBytes += block.bytes.size();
    m_textReader = std::make_unique<NxSceneReader>(std::move(text), std::string());
}

void PackedSceneReader::readText(std::chrono::microseconds budget)
{
    const State state = m_textReader->step(budget);
    if (state == State::Working)
        return;
    if (state == State::Failed)
        return fail(m_textReader->failure().text());
    m_scene = m_textReader->takeScene();
    m_textReader.reset();
    m_traversal.emplace(*m_scene);
}

void PackedSceneReader::findNode()
{
    constexpr std::size_t nodesPerTimeCheck = 1000;
    for (std::size_t count = 0; count < nodesPerTimeCheck && m_visitedNodes <= block().node; ++count) {
        m_node = m_traversal->next();
        m_nextField = 0;
        ++m_visitedNodes;
        if (m_node == nullptr)
            return failAtBlock("is for a node that isn't there");
    }
}

void PackedSceneReader::readBlock()
{
    if (block().node + 1 != m_visitedNodes)
        return failAtBlock("is for a node before that of the block before it");
    const NxFieldData& data = *m_node->getFieldData();
    int index = 0;
    while (index < data.getNumFields() && data.getFieldName(index).getString() != block().field)
        ++index;
    if (index == data.getNumFields())
        return failAtBlock("is for a field that its node doesn't have");
    if (index < m_nextField)
        return failAtBlock("is for a field that had one, or is before that of the block before it");
    m_nextField = index + 1;
    const std::size_t size = block().bytes.size();
    readValues(*data.getField(m_node, index));
    m_doneBytes += size;
    if (m_state == State::Working)
        m_blocks[m_done++] = {};
}

void PackedSceneReader::readValues(NxField& field)
{
    bool fits = false;
    if (block().kind == PackedBlock::Kind::List) {
        auto* const list = dynamic_cast<NxMField*>(&field);
        fits = list != nullptr && list->plainRowBytes() > 0;
        if (fits)
            readList(*list);
    } else if (auto* image = dynamic_cast<NxSFImage*>(&field)) {
        fits = true;
        readImage(*image);
    }
    if (!fits)
        failAtBlock("is for a field of another kind");
}

void PackedSceneReader::readList(NxMField& list)
{
    const std::vector<unsigned char>& bytes = block().bytes;
    if (bytes.size() % list.plainRowBytes() != 0)
        return failAtBlock("ends within a value");
    if (bytes.size() / list.plainRowBytes() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        return failAtBlock("has too many values");
    if (list.getNum() != 0)
        return failAtBlock("is for a field that has values already");
    if (!list.replacePlainRows(0, 0, {reinterpret_cast<const char*>(bytes.data()), bytes.size()}))
        fail(noRoom);
}

void PackedSceneReader::readImage(NxSFImage& image)
{
    VbVec2s size;
    int components = 0;
    if (image.getValue(size, components) != nullptr)
        return failAtBlock("is for a field that has values already");
    if (!image.setValue(VbVec2s(block().width, block().height), block().components, std::move(block().bytes)))
        failAtBlock("has another size than its image");
}

void PackedSceneReader::fail(std::string reason)
{
    m_scene = nullptr;
    m_textReader.reset();
    m_blocks = {};
    m_failure = std::move(reason);
    m_state = State::Failed;
}

void PackedSceneReader::failAtBlock(std::string_view reason)
{
    fail(std::string("its block ").append(std::to_string(m_done + 1)).append(" ").append(reason));
}

} // namespace orvane
