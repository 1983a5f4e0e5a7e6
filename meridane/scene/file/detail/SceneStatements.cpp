#include "meridane/base/values/TextPosition.h"
#include "meridane/scene/file/detail/SceneLimits.h"
#include "meridane/scene/file/detail/SceneParser.h"
#include "meridane/scene/text/Identifier.h"

// The grammar of scene files: one statement after the other.

namespace meridane {

namespace {

constexpr std::string_view expectedOutside = "a node";
constexpr std::string_view expectedInside = "a field, a node or \"}\"";

bool endsStatement(char character)
{
    return character == '\n' || character == '\r' || character == ';' || character == '}' || character == '#';
}

} // namespace

void SceneParser::readStatement()
{
    skipSeparators();
    if (m_reader.isInterrupted() || m_reader.isSpent())
        return;
    if (m_reader.atEnd())
        return endText();
    if (m_depth > 0 && m_reader.peek() == '}')
        return endNode();
    std::size_t place = m_reader.position();
    std::string_view word;
    if (!readIdentifier(word, m_depth == 0 ? expectedOutside : expectedInside))
        return failAsNoted();
    if (isEqualsAhead())
        return startField(word, place, false);
    if (word == "use")
        return startReference();
    if (word == "ignored") {
        place = m_reader.position();
        if (!readIdentifier(word, "a field"))
            return failAsNoted();
        if (!isEqualsAhead())
            return failExpecting(m_reader.position(), "\"=\"");
        return startField(word, place, true);
    }
    startNode(word, place);
}

void SceneParser::skipSeparators()
{
    while (m_reader.accept(';') && !m_reader.isSpent()) { }
}

bool SceneParser::readIdentifier(std::string_view& word, std::string_view expected)
{
    const std::string_view rest = m_reader.rest();
    if (rest.empty() || !isIdentifierStart(rest.front()))
        return m_reader.fail(expected);
    std::size_t length = 1;
    while (length < rest.size() && length <= maxNameLength && isIdentifierCharacter(rest[length]))
        ++length;
    if (length > maxNameLength)
        return m_reader.fail("a word of at most 65536 bytes");
    word = rest.substr(0, length);
    m_reader.advance(length);
    return true;
}

bool SceneParser::readNameText(std::string& name)
{
    m_reader.skipBlanks();
    const std::size_t place = m_reader.position();
    std::string_view text;
    if (!m_reader.readQuoted(text))
        return false;
    if (m_reader.position() - place > maxNameLength)
        return m_reader.failAt(place, "a name of at most 65536 bytes");
    name = text;
    return true;
}

bool SceneParser::isEqualsAhead()
{
    m_reader.skipBlanks();
    return m_reader.peek() == '=';
}

void SceneParser::startNode(std::string_view className, std::size_t place)
{
    if (top().group == nullptr)
        return failAt(
            place, "a node of class " + top().nodeClass->name() + " holds no others, expected a field or \"}\"");
    if (m_depth >= maxSceneDepth)
        return failAt(place, "nodes nested deeper than " + std::to_string(maxSceneDepth) + " levels");
    std::string name;
    std::string label;
    if (!readNodeHead(name, label))
        return failAsNoted();
    const NodeClass& nodeClass = m_classes.find(className);
    const NxRef<NxNode> node = nodeClass.create();
    if (!name.empty())
        node->setName(VbString(name));
    NxGroup* const group = nodeClass.isGroup() ? static_cast<NxGroup*>(node.get()) : nullptr;
    top().group->appendUnchecked(node.get(), group);
    if (++m_depth == m_open.size())
        m_open.emplace_back();
    OpenNode& open = top();
    open.node = node.get();
    open.group = group;
    open.nodeClass = &nodeClass;
    open.label = std::move(label);
    open.place = place;
    open.nextField = 0;
    open.seenFields.assign(nodeClass.fieldCount(), false);
    if (!open.seenUnknownFields.empty())
        open.seenUnknownFields = {}; // not `clear`, which would clear the table of the largest node each time
}

bool SceneParser::readNodeHead(std::string& name, std::string& label)
{
    m_reader.skipBlanks();
    std::string_view expected = "a name in quotes, \"as\" or \"{\"";
    if (m_reader.peek() == '"') {
        if (!readNameText(name))
            return false;
        m_reader.skipBlanks();
        expected = "\"as\" or \"{\"";
    }
    if (isIdentifierStart(m_reader.peek())) {
        const std::size_t place = m_reader.position();
        std::string_view word;
        if (!m_reader.readWord(word, expected) || word != "as")
            return m_reader.failAt(place, expected);
        if (!readNameText(label))
            return false;
        m_reader.skipBlanks();
        expected = "\"{\"";
    }
    return m_reader.accept('{') || m_reader.fail(expected);
}

void SceneParser::endNode()
{
    m_reader.advance(1);
    m_references.add(top().node, top().label);
    --m_depth;
}

void SceneParser::endText()
{
    if (m_depth == 0) {
        m_phase = Phase::Done;
        return;
    }
    const int line = positionOf(m_text, top().place).line;
    failExpecting(m_text.size(),
        "\"}\" behind the node of class " + top().nodeClass->name() + " that begins in line " + std::to_string(line));
}

void SceneParser::startReference()
{
    if (top().group == nullptr)
        return failAt(m_reader.position(),
            "a node of class " + top().nodeClass->name() + " holds no others, expected a field or \"}\"");
    m_referencePlace = m_reader.position();
    if (!readNameText(m_reference))
        return failAsNoted();
    m_phase = Phase::Reference;
}

void SceneParser::startField(std::string_view name, std::size_t place, bool ignored)
{
    if (m_depth == 0)
        return failAt(place, "a field outside of a node, expected a node");
    m_reader.advance(1);
    // A value begins in the line of its field, so that the next line isn't read as a missing value.
    m_reader.skipBlanksOfLine();
    if (m_reader.atEnd() || endsStatement(m_reader.peek()))
        return failExpecting(m_reader.position(), "a value");
    const int index = top().nodeClass->findField(name, top().nextField);
    if (index >= 0)
        startKnownField(static_cast<std::size_t>(index), name, place, ignored);
    else
        startUnknownField(name, place, ignored);
}

void SceneParser::startKnownField(std::size_t index, std::string_view name, std::size_t place, bool ignored)
{
    OpenNode& open = top();
    if (open.seenFields[index])
        return failTwice(name, place);
    open.seenFields[index] = true;
    open.nextField = index + 1;
    m_field = open.nodeClass->field(*open.node, index);
    if (ignored)
        m_field->setIgnored(1);
    m_firstSlice = true;
    m_phase = Phase::Value;
}

void SceneParser::startUnknownField(std::string_view name, std::size_t place, bool ignored)
{
    if (!top().seenUnknownFields.insert(name).second)
        return failTwice(name, place);
    m_unknownField.name = name;
    m_unknownField.ignored = ignored;
    m_rawValue.start(m_reader);
    m_phase = Phase::RawValue;
}

void SceneParser::failTwice(std::string_view name, std::size_t place)
{
    failAt(place, "the field \"" + std::string(name) + "\" is given twice in the node, expected it once");
}

void SceneParser::endStatement()
{
    // The value may have moved the cursor to the next line already.
    const bool newLine = m_reader.isBehindLineEnd();
    const std::size_t start = m_reader.position();
    if (!newLine)
        m_reader.skipBlanksOfLine();
    if (m_reader.isInterrupted()) {
        m_reader.goBack(start);
        m_phase = Phase::EndOfStatement;
        return;
    }
    if (!newLine && !m_reader.atEnd() && !endsStatement(m_reader.peek()))
        return failExpecting(m_reader.position(), "the end of the line or \";\"");
    m_phase = Phase::Statement;
}

} // namespace meridane
