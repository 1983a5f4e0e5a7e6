#include "meridane/scene/file/detail/SceneParser.h"

#include "meridane/base/values/TextPosition.h"
#include "meridane/base/values/Unicode.h"
#include "meridane/scene/text/detail/TokenDescription.h"

#include <algorithm>
#include <new>
#include <stdexcept>
#include <utility>

namespace meridane {

namespace {

constexpr std::string_view signature = "#mrd ";
constexpr std::string_view version = "1.0";
constexpr std::size_t unitsPerSlice = 32;
constexpr std::size_t bytesPerSlice = std::size_t{1} << 13U;
constexpr std::size_t checkedBytesPerSlice = std::size_t{1} << 16U; // which is faster than parsing

} // namespace

SceneParser::SceneParser(std::string text, std::string fileName)
    : m_text(std::move(text))
    , m_failure{std::move(fileName), 0, 0, {}}
    , m_reader(m_text, TextReader::Blanks::File)
    , m_scene(new NxGroup)
{
    OpenNode& scene = m_open.emplace_back();
    scene.node = m_scene.get();
    scene.group = m_scene.get();
}

void SceneParser::step(const WorkBudget& budget)
{
    try {
        do {
            workInSlice();
        } while (isWorking() && !budget.isSpent());
    } catch (const std::bad_alloc&) {
        failForMemory();
    } catch (const std::length_error&) {
        failForMemory();
    }
}

double SceneParser::progress() const noexcept
{
    // Checking the encoding is a small part of the work.
    constexpr double checking = 0.05;
    if (m_text.empty() || m_phase == Phase::Done)
        return 1;
    const auto all = static_cast<double>(m_text.size());
    return checking * static_cast<double>(m_checked) / all
        + (1 - checking) * static_cast<double>(m_reader.position()) / all;
}

NxRef<NxGroup> SceneParser::takeScene()
{
    return m_phase == Phase::Done ? std::exchange(m_scene, nullptr) : nullptr;
}

// Reading the clock after each unit would cost too much.
void SceneParser::workInSlice()
{
    bool isShort = true;
    m_reader.startSlice(bytesPerSlice);
    for (std::size_t unit = 0; unit < unitsPerSlice && isShort && isWorking(); ++unit) {
        const std::size_t start = m_reader.position();
        work();
        isShort = !m_reader.isSpent();
        if (m_reader.isInterrupted())
            m_reader.goBack(start);
    }
}

void SceneParser::work()
{
    switch (m_phase) {
    case Phase::FirstLine:
        return readFirstLine();
    case Phase::Encoding:
        return checkEncoding();
    case Phase::Statement:
        return readStatement();
    case Phase::Value:
        return readValue();
    case Phase::RawValue:
        return readRawValue();
    case Phase::RawText:
        return takeRawText();
    case Phase::Reference:
        return findReference();
    case Phase::EndOfStatement:
        return endStatement();
    case Phase::Done:
    case Phase::Failed:
        return;
    }
}

void SceneParser::readFirstLine()
{
    m_reader.advance(m_text.size() - withoutByteOrderMark(m_text).size());
    const std::size_t start = m_reader.position();
    if (!m_reader.rest().starts_with(signature))
        return failExpecting(start, "the first line of a scene file, \"#mrd 1.0\"");
    m_reader.advance(signature.size());
    const std::string_view line = m_reader.rest().substr(0, m_reader.rest().find('\n'));
    const std::string_view found = line.substr(0, line.find_last_not_of(" \t\r") + 1);
    if (found != version)
        return failAt(m_reader.position(),
            "scene files of this version can't be read, expected \"1.0\", found "
                + describeToken(m_text, m_reader.position()));
    m_reader.advance(line.size());
    m_phase = Phase::Encoding;
}

void SceneParser::checkEncoding()
{
    constexpr std::size_t longestCharacter = 4;
    const std::string_view rest = std::string_view(m_text).substr(m_checked, checkedBytesPerSlice);
    const bool last = m_checked + rest.size() == m_text.size();
    const std::size_t invalid = findInvalidUtf8(rest);
    if (invalid == std::string_view::npos) {
        m_checked += rest.size();
    } else if (!last && invalid + longestCharacter > rest.size() && invalid > 0) {
        m_checked += invalid; // perhaps a character that continues in the next block
    } else {
        return failAt(m_checked + invalid, "invalid UTF-8, expected a text in UTF-8");
    }
    if (m_checked == m_text.size())
        m_phase = Phase::Statement;
}

void SceneParser::readValue()
{
    constexpr std::size_t valuesPerSlice = 1000;
    const NxField::Progress progress = m_field->readText(m_reader, m_firstSlice, valuesPerSlice);
    m_firstSlice = false;
    if (progress == NxField::Progress::Failed)
        return failAsNoted();
    if (progress == NxField::Progress::Done)
        endStatement();
}

void SceneParser::readRawValue()
{
    const RawValue::Progress progress = m_rawValue.scan(m_reader, bytesPerSlice);
    if (progress == RawValue::Progress::Failed)
        return failAsNoted();
    if (progress == RawValue::Progress::More)
        return;
    m_unknownField.text.clear();
    m_unknownField.text.reserve(m_rawValue.text().size());
    m_phase = Phase::RawText;
}

void SceneParser::takeRawText()
{
    const std::string_view rest = m_rawValue.text().substr(m_unknownField.text.size());
    m_unknownField.text += rest.substr(0, checkedBytesPerSlice);
    if (rest.size() > checkedBytesPerSlice)
        return;
    top().node->addUnknownField(std::exchange(m_unknownField, {}));
    endStatement();
}

void SceneParser::findReference()
{
    constexpr std::size_t nodesPerSlice = 1000;
    if (m_references.update(nodesPerSlice))
        return;
    NxNode* node = m_references.find(m_reference);
    if (node != nullptr) {
        top().group->appendUnchecked(node, dynamic_cast<NxGroup*>(node));
        return endStatement();
    }
    const std::string found = describeToken(m_text, m_referencePlace);
    if (isOpen(m_reference))
        return failAt(m_referencePlace, "the node " + found + " would hold itself, expected one that ends before here");
    failAt(m_referencePlace, "no node before here has the name or label " + found);
}

bool SceneParser::isOpen(std::string_view nameOrLabel) const
{
    return std::any_of(m_open.begin() + 1, m_open.begin() + static_cast<std::ptrdiff_t>(m_depth) + 1,
        [nameOrLabel](
            const OpenNode& open) { return open.label == nameOrLabel || open.node->getName().view() == nameOrLabel; });
}

void SceneParser::failAt(std::size_t offset, std::string message)
{
    if (!m_reader.isInterrupted())
        endAt(offset, std::move(message));
}

void SceneParser::endAt(std::size_t offset, std::string message)
{
    const TextPosition position = positionOf(m_text, offset);
    m_failure.line = position.line;
    m_failure.column = position.column;
    m_failure.message = std::move(message);
    m_phase = Phase::Failed;
    m_scene = nullptr;
}

void SceneParser::failForMemory()
{
    m_scene = nullptr; // frees memory for the message
    endAt(m_reader.position(), "the scene doesn't fit in memory");
}

void SceneParser::failExpecting(std::size_t offset, std::string_view expected)
{
    const std::string what(expected);
    failAt(offset,
        offset >= m_text.size() ? "unexpected end of file, expected " + what
                                : "expected " + what + ", found " + describeToken(m_text, offset));
}

void SceneParser::failAsNoted()
{
    failExpecting(m_reader.failurePosition(), m_reader.expected());
}

} // namespace meridane
