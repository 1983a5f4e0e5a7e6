#include "orvane/import/PackedSceneReader.h"

#include "orvane/import/Frames.h"
#include "orvane/import/PackedLists.h"
#include "orvane/import/PackedScene.h"

#include "meridane/scene/NxFieldData.h"

#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

namespace orvane {
namespace {

constexpr const char* noRoom = "the scene doesn't fit in memory";

struct Block {
    std::string_view lineEnd; // behind the size
    std::string_view bytes;
};

// Takes a line of that word and a size off, and as many bytes as it says.
std::optional<Block> takeBlock(std::string_view& bytes, std::string_view word)
{
    std::optional<std::string_view> line = takeLine(bytes);
    if (!line || !takeStart(*line, word))
        return std::nullopt;
    const std::optional<std::size_t> size = takeNumber(*line);
    if (!size || *size > bytes.size())
        return std::nullopt;
    const Block block{*line, bytes.substr(0, *size)};
    bytes.remove_prefix(*size);
    return block;
}

} // namespace

PackedSceneReader::PackedSceneReader(std::string bytes)
    : m_bytes(std::move(bytes))
    , m_rest(m_bytes)
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
    if (m_bytes.empty() || m_state == State::Done)
        return 1;
    auto unread = static_cast<double>(m_rest.size());
    if (m_textReader != nullptr)
        unread += static_cast<double>(m_textSize) * (1 - m_textReader->progress());
    return 1 - unread / static_cast<double>(m_bytes.size());
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
    if (m_list)
        return m_walked <= m_list->node ? findNode() : readList();
    if (!m_rest.empty())
        return readListHead();
    m_state = State::Done;
}

void PackedSceneReader::startText()
{
    const std::optional<std::size_t> size = packedSceneSize(m_bytes);
    if (!size)
        return fail("it doesn't begin like one");
    if (*size != m_bytes.size())
        return fail(*size < m_bytes.size() ? "there are bytes behind its end" : "bytes are missing at its end");
    static_cast<void>(takeLine(m_rest));
    const std::optional<Block> text = takeBlock(m_rest, "text ");
    if (!text || !text->lineEnd.empty())
        return fail("its text has no size, or one that is too large");
    m_textSize = text->bytes.size();
    m_textReader = std::make_unique<NxSceneReader>(std::string(text->bytes), std::string());
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
    m_order.emplace(*m_scene);
}

void PackedSceneReader::readListHead()
{
    ++m_lists;
    std::optional<Block> block = takeBlock(m_rest, "list ");
    if (!block || !takeStart(block->lineEnd, " "))
        return failAtList("has no size, or one that is too large");
    const std::optional<std::size_t> node = takeNumber(block->lineEnd);
    if (!node || !takeStart(block->lineEnd, " "))
        return failAtList("doesn't tell its node and field");
    m_list = {block->bytes, *node, block->lineEnd};
}

void PackedSceneReader::findNode()
{
    constexpr std::size_t nodesPerLookAtTheClock = 1000;
    for (std::size_t count = 0; count < nodesPerLookAtTheClock && m_walked <= m_list->node; ++count) {
        m_node = m_order->next();
        m_nextField = 0;
        ++m_walked;
        if (m_node == nullptr)
            return failAtList("is for a node that isn't there");
    }
}

void PackedSceneReader::readList()
{
    if (m_list->node + 1 != m_walked)
        return failAtList("is for a node ahead of that of the list before it");
    const NxFieldData& data = *m_node->getFieldData();
    int index = 0;
    while (index < data.getNumFields() && data.getFieldName(index).getString() != m_list->field)
        ++index;
    if (index == data.getNumFields())
        return failAtList("is for a field that its node doesn't have");
    if (index < m_nextField)
        return failAtList("is for a field that had one, or is ahead of that of the list before it");
    m_nextField = index + 1;
    if (!withPackableList(*data.getField(m_node, index), [this](auto& list) { readValues(list); }))
        return failAtList("is for a field of another kind");
    m_list.reset();
}

template <typename Values>
void PackedSceneReader::readValues(Values& list)
{
    using Value = ListValue<Values>;
    const std::string_view bytes = m_list->bytes;
    const std::size_t count = bytes.size() / sizeof(Value);
    if (bytes.size() % sizeof(Value) != 0)
        return failAtList("ends within a value");
    if (count > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        return failAtList("has too many values");
    if (list.getNum() != 0)
        return failAtList("is for a field that has values already");
    std::vector<Value> values(count);
    if (count > 0) // of no bytes there need be no place
        std::memcpy(values.data(), bytes.data(), bytes.size());
    list.setValues(std::move(values));
}

void PackedSceneReader::fail(std::string reason)
{
    m_scene = nullptr;
    m_textReader.reset();
    m_failure = std::move(reason);
    m_state = State::Failed;
}

void PackedSceneReader::failAtList(std::string_view reason)
{
    fail(std::string("its list ").append(std::to_string(m_lists)).append(" ").append(reason));
}

} // namespace orvane
