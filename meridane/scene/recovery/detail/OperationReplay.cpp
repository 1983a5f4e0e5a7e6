#include "meridane/scene/recovery/detail/OperationReplay.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/single/NxSFImage.h"
#include "meridane/scene/text/TextReader.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace meridane {

using RecoveryFormat::Operation;

namespace {

constexpr int operationsPerLook = 32;
constexpr int replayedNodesPerLook = 256;
constexpr std::uint64_t mostRows = std::numeric_limits<int>::max();
constexpr const char* incompleteOperation = "an operation is incomplete";
constexpr const char* noSuchRows = "rows of a list that it replaces aren't there";
constexpr const char* listTooLong = "a list doesn't fit in memory";
constexpr const char* otherField = "a field that it changes is of another type";

} // namespace

OperationReplay::OperationReplay(
    std::span<const std::string_view> operations, NxRef<NxGroup> base, std::uint64_t nodeCount)
    : m_operations(operations)
    , m_scene(base ? std::move(base) : NxRef<NxGroup>(new NxGroup))
    , m_nodeCount(nodeCount)
{
    for (const std::string_view entry : operations)
        m_bytes += entry.size();
    m_traversal.emplace(*m_scene);
    m_nodes.emplace_back(m_scene.get());
}

bool OperationReplay::step(const WorkBudget& budget)
{
    do {
        if (!m_failure.empty())
            return false;
        if (m_traversal)
            numberNodes();
        else if (m_nextEntry < m_operations.size() || !m_reader.atEnd())
            applyNext();
        else if (!m_nodes.empty())
            releaseNodes();
        else
            return false;
    } while (!budget.isSpent());
    return true;
}

double OperationReplay::progress() const noexcept
{
    if (m_bytes == 0)
        return 1;
    return static_cast<double>(m_doneBytes + m_entrySize - m_reader.rest().size()) / static_cast<double>(m_bytes);
}

NxRef<NxGroup> OperationReplay::takeScene()
{
    return std::exchange(m_scene, nullptr);
}

void OperationReplay::numberNodes()
{
    for (int i = 0; i < replayedNodesPerLook; ++i) {
        NxNode* const node = m_traversal->next();
        if (node != nullptr) {
            m_nodes.emplace_back(node);
            continue;
        }
        m_traversal.reset();
        if (m_nodes.size() != m_nodeCount)
            fail("the scene file has other nodes than where the changes were made");
        return;
    }
}

// Those that aren't part of the scene are destroyed, some at a time.
void OperationReplay::releaseNodes()
{
    if (m_open) {
        fail("its last value is incomplete");
        return;
    }
    m_nodes.resize(m_nodes.size() - std::min<std::size_t>(m_nodes.size(), replayedNodesPerLook));
}

void OperationReplay::applyNext()
{
    for (int i = 0; i < operationsPerLook && m_failure.empty(); ++i) {
        if (m_reader.atEnd()) {
            m_doneBytes += std::exchange(m_entrySize, 0);
            if (m_nextEntry == m_operations.size())
                return;
            m_reader = ByteReader(m_operations[m_nextEntry++]);
            m_entrySize = m_reader.rest().size();
            continue;
        }
        std::uint8_t code = 0;
        if (!m_reader.byte(code) || !apply(static_cast<Operation>(code)))
            fail(incompleteOperation);
    }
}

// Returns false if the operation is incomplete; sets the failure if it doesn't fit in another way.
bool OperationReplay::apply(Operation operation)
{
    switch (operation) {
    case Operation::Class:
        return addClass();
    case Operation::Node:
        return addNode();
    case Operation::Name:
        return setName();
    case Operation::Ignored:
        return setIgnored();
    case Operation::Value:
        return setValue();
    case Operation::Image:
        return setImage();
    case Operation::PlainRows:
        return replacePlainRows();
    case Operation::TextRows:
        return replaceTextRows();
    case Operation::Children:
        return replaceChildren();
    case Operation::UnknownField:
        return addUnknownField();
    }
    return fail("it has an operation that this version doesn't know");
}

bool OperationReplay::addClass()
{
    const std::string failure = m_classes.add(m_reader);
    return failure.empty() || fail(failure);
}

bool OperationReplay::addNode()
{
    std::uint64_t number = 0;
    if (!m_reader.number(number) || number >= m_classes.count())
        return false;
    m_nodes.push_back(m_classes.create(number));
    return true;
}

bool OperationReplay::setName()
{
    std::uint64_t number = 0;
    NxNode* node = nullptr;
    std::string_view name;
    if (!readNode(number, node) || !m_reader.text(name))
        return false;
    node->setName(VbString(name));
    return true;
}

bool OperationReplay::setIgnored()
{
    std::uint64_t node = 0;
    std::uint64_t index = 0;
    NxField* field = nullptr;
    std::uint8_t flag = 0;
    if (!readField(node, index, field) || !m_reader.byte(flag) || flag > 1)
        return false;
    field->setIgnored(flag);
    return true;
}

bool OperationReplay::setValue()
{
    std::uint64_t node = 0;
    std::uint64_t index = 0;
    NxField* field = nullptr;
    std::uint8_t parts = 0;
    std::string_view text;
    if (!readField(node, index, field) || !m_reader.byte(parts) || !m_reader.text(text)
        || !beginPart({node, index, Operation::Value}, parts))
        return false;
    m_content += text;
    if (!endPart(parts))
        return true;
    TextReader reader(m_content);
    const auto progress = field->readText(reader, true, std::numeric_limits<std::size_t>::max());
    return (progress == NxField::Progress::Done && reader.expectEnd()) || fail("a value can't be read");
}

bool OperationReplay::setImage()
{
    std::uint64_t node = 0;
    std::uint64_t index = 0;
    NxField* field = nullptr;
    std::uint8_t parts = 0;
    std::string_view bytes;
    if (!readField(node, index, field) || !m_reader.byte(parts))
        return false;
    if (!field->isOfType(NxSFImage::getClassTypeId()))
        return fail(otherField);
    if ((parts & RecoveryFormat::firstPart) != 0) {
        m_pixels.clear();
        constexpr std::uint64_t longestSide = std::numeric_limits<short>::max();
        constexpr std::uint64_t mostComponents = 4;
        if (!m_reader.number(m_width, longestSide) || !m_reader.number(m_height, longestSide)
            || !m_reader.number(m_components, mostComponents))
            return false;
    }
    if (!m_reader.text(bytes) || !beginPart({node, index, Operation::Image}, parts))
        return false;
    m_pixels.insert(m_pixels.end(), bytes.begin(), bytes.end());
    if (!endPart(parts))
        return true;
    const VbVec2s size(static_cast<short>(m_width), static_cast<short>(m_height));
    auto& image = static_cast<NxSFImage&>(*field);
    return image.setValue(size, static_cast<int>(m_components), std::exchange(m_pixels, {}))
        || fail("an image has another size than its bytes");
}

bool OperationReplay::replacePlainRows()
{
    std::uint64_t node = 0;
    std::uint64_t index = 0;
    NxField* field = nullptr;
    std::uint64_t start = 0;
    std::uint64_t count = 0;
    std::string_view bytes;
    if (!readField(node, index, field) || !m_reader.number(start, mostRows) || !m_reader.number(count, mostRows)
        || !m_reader.text(bytes))
        return false;
    auto* const list = dynamic_cast<NxMField*>(field);
    if (list == nullptr || list->plainRowBytes() == 0)
        return fail(otherField);
    const auto rows = static_cast<std::uint64_t>(list->getNum());
    if (start > rows || count > rows - start || bytes.size() % list->plainRowBytes() != 0)
        return fail(noSuchRows);
    return list->replacePlainRows(static_cast<int>(start), static_cast<int>(count), bytes) || fail(listTooLong);
}

bool OperationReplay::replaceTextRows()
{
    std::uint64_t node = 0;
    std::uint64_t index = 0;
    NxField* field = nullptr;
    std::uint64_t start = 0;
    std::uint64_t removed = 0;
    std::uint64_t count = 0;
    if (!readField(node, index, field) || !m_reader.number(start, mostRows) || !m_reader.number(removed, mostRows)
        || !m_reader.number(count, m_reader.rest().size()))
        return false;
    auto* const list = dynamic_cast<NxMField*>(field);
    if (list == nullptr)
        return fail(otherField);
    const auto rows = static_cast<std::uint64_t>(list->getNum());
    const std::uint64_t kept = std::min(removed, count);
    if (start > rows || removed > rows - start || rows - removed + count > mostRows)
        return fail(noSuchRows);
    // Rows that are only rewritten don't move the others.
    const auto firstNew = static_cast<int>(start + kept);
    list->deleteValues(firstNew, static_cast<int>(removed - kept));
    list->insertSpace(firstNew, static_cast<int>(count - kept));
    if (static_cast<std::uint64_t>(list->getNum()) != rows - removed + count)
        return fail(listTooLong);
    for (std::uint64_t i = 0; i < count; ++i) {
        std::string_view text;
        if (!m_reader.text(text))
            return false;
        if (!list->set1(static_cast<int>(start + i), VbString(text)))
            return fail("a value of a list can't be read");
    }
    return true;
}

bool OperationReplay::replaceChildren()
{
    std::uint64_t number = 0;
    NxNode* node = nullptr;
    std::uint64_t start = 0;
    std::uint64_t removed = 0;
    std::uint64_t count = 0;
    if (!readNode(number, node) || !m_reader.number(start, mostRows) || !m_reader.number(removed, mostRows)
        || !m_reader.number(count, m_reader.rest().size()))
        return false;
    if (!node->isOfType(NxGroup::getClassTypeId()))
        return fail("a node that gets children is no group");
    auto& group = static_cast<NxGroup&>(*node);
    const auto children = static_cast<std::uint64_t>(group.getNumChildren());
    if (start > children || removed > children - start)
        return fail("a child that it removes isn't there");
    if (removed == children)
        group.removeAllChildren();
    else
        for (std::uint64_t i = removed; i > 0; --i)
            group.removeChild(static_cast<int>(start + i - 1));
    for (std::uint64_t i = 0; i < count; ++i) {
        NxNode* child = nullptr;
        if (!readNode(number, child))
            return false;
        if (!group.insertChild(child, static_cast<int>(start + i)))
            return fail("a group would contain itself");
    }
    return true;
}

bool OperationReplay::addUnknownField()
{
    std::uint64_t number = 0;
    NxNode* node = nullptr;
    std::uint8_t parts = 0;
    std::string_view text;
    if (!readNode(number, node) || !m_reader.byte(parts))
        return false;
    if ((parts & RecoveryFormat::firstPart) != 0) {
        std::uint8_t ignored = 0;
        std::string_view name;
        if (!m_reader.byte(ignored) || ignored > 1 || !m_reader.text(name))
            return false;
        m_unknownField = {std::string(name), {}, ignored != 0};
    }
    if (!m_reader.text(text) || !beginPart({number, 0, Operation::UnknownField}, parts))
        return false;
    m_unknownField.text += text;
    if (endPart(parts))
        node->addUnknownField(std::exchange(m_unknownField, {}));
    return true;
}

bool OperationReplay::readNode(std::uint64_t& number, NxNode*& node)
{
    if (!m_reader.number(number))
        return false;
    if (number >= m_nodes.size()) {
        fail("a node that it changes isn't there");
        return false;
    }
    node = m_nodes[number].get();
    return true;
}

bool OperationReplay::readField(std::uint64_t& number, std::uint64_t& index, NxField*& field)
{
    NxNode* node = nullptr;
    if (!readNode(number, node) || !m_reader.number(index))
        return false;
    field = m_classes.field(*node, index);
    if (field == nullptr) {
        fail("a field that it changes isn't there");
        return false;
    }
    return true;
}

// Returns false if the part doesn't continue the content before it.
bool OperationReplay::beginPart(const Content& content, std::uint8_t parts)
{
    constexpr std::uint8_t all = RecoveryFormat::firstPart | RecoveryFormat::lastPart;
    if (parts > all)
        return false;
    if ((parts & RecoveryFormat::firstPart) == 0)
        return m_open == content;
    m_open = content;
    m_content.clear();
    return true;
}

// Returns whether the content is whole.
bool OperationReplay::endPart(std::uint8_t parts)
{
    if ((parts & RecoveryFormat::lastPart) == 0)
        return false;
    m_open.reset();
    return true;
}

// Always returns false.
bool OperationReplay::fail(std::string_view reason)
{
    if (m_failure.empty())
        m_failure = "its changes don't fit the scene: " + std::string(reason);
    return false;
}

} // namespace meridane
