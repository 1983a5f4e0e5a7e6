#include "meridane/scene/file/detail/ScenePrinter.h"

#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/single/NxSFFilePathString.h"
#include "meridane/scene/file/detail/SceneLimits.h"
#include "meridane/scene/text/ValueText.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace meridane {

namespace {

constexpr std::size_t unitsPerSlice = 16;
constexpr std::size_t blanksPerLevel = 4;

} // namespace

ScenePrinter::ScenePrinter(NxGroup* scene)
    : m_sharing(scene)
{
    m_open.push_back({scene, nullptr});
}

bool ScenePrinter::step(std::string& text, const WorkBudget& budget)
{
    try {
        do {
            for (std::size_t unit = 0; unit < unitsPerSlice && m_phase != Phase::Done; ++unit)
                work(text);
        } while (m_phase != Phase::Done && !budget.isSpent());
    } catch (const std::exception&) {
        fail("the text of the scene doesn't fit in memory");
    }
    return m_phase != Phase::Done;
}

double ScenePrinter::progress() const noexcept
{
    if (m_phase == Phase::Done)
        return 1;
    if (m_phase == Phase::Sharing)
        return 0;
    return static_cast<double>(m_written) / static_cast<double>(std::max<std::size_t>(1, m_sharing.nodeCount()));
}

void ScenePrinter::fail(std::string message)
{
    m_failure = std::move(message);
    m_phase = Phase::Done;
}

void ScenePrinter::work(std::string& text)
{
    switch (m_phase) {
    case Phase::Sharing:
        return lookOver(text);
    case Phase::Nodes:
        return writeNext(text);
    case Phase::Value:
        return writeValueSlice(text);
    case Phase::UnknownValue:
        return writeUnknownSlice(text);
    case Phase::Done:
        return;
    }
}

void ScenePrinter::lookOver(std::string& text)
{
    constexpr std::size_t nodesPerSlice = 100;
    if (m_sharing.step(nodesPerSlice))
        return;
    if (m_sharing.depth() > maxSceneDepth)
        return fail("nodes are nested " + std::to_string(m_sharing.depth())
            + " levels deep, a scene file holds at most " + std::to_string(maxSceneDepth));
    text += "#mrd 1.0\n";
    m_phase = Phase::Nodes;
}

void ScenePrinter::writeNext(std::string& text)
{
    if (startNextField(text))
        return;
    OpenNode& open = m_open.back();
    const std::vector<NxFieldContainer::UnknownField>& unknown = open.node->getUnknownFields();
    const auto children = open.node->getChildren();
    if (open.data != nullptr && open.nextUnknownField < unknown.size()) {
        m_unknownField = &unknown[open.nextUnknownField++];
        startField(text, m_unknownField->name, m_unknownField->ignored);
        m_position = 0;
        m_phase = Phase::UnknownValue;
        return;
    }
    if (open.nextChild < children.size())
        return writeChild(text, children[open.nextChild++]);
    m_open.pop_back();
    if (m_open.empty()) {
        m_phase = Phase::Done;
        return;
    }
    indent(text);
    text += "}\n";
}

bool ScenePrinter::startNextField(std::string& text)
{
    OpenNode& open = m_open.back();
    while (open.data != nullptr && open.nextField < open.data->getNumFields()) {
        const int index = open.nextField++;
        const NxField* field = open.data->getField(open.node, index);
        if (!field->isIgnored() && open.data->getDefault(index)->isSame(*field))
            continue;
        const std::size_t lineStart = text.size();
        startField(text, open.data->getFieldName(index).getString(), field->isIgnored());
        if (writeMappedPath(text, *field))
            return true;
        m_wrapper.start(text.size() - lineStart, m_open.size() * blanksPerLevel);
        m_field = field;
        m_position = 0;
        m_phase = Phase::Value;
        return true;
    }
    return false;
}

bool ScenePrinter::writeMappedPath(std::string& text, const NxField& field) const
{
    if (!m_pathMap || !field.isOfType(NxSFFilePathString::getClassTypeId()))
        return false;
    const VbString& path = static_cast<const NxSFFilePathString&>(field).getValue();
    writeValue(text, VbString(m_pathMap(path.view())));
    text += '\n';
    return true;
}

void ScenePrinter::startField(std::string& text, std::string_view name, bool ignored)
{
    indent(text);
    text += ignored ? "ignored " : "";
    text += name;
    text += " = ";
}

void ScenePrinter::writeValueSlice(std::string& text)
{
    constexpr std::size_t valuesPerSlice = 1000;
    m_slice.clear();
    const bool more = m_field->writeText(m_slice, m_position, valuesPerSlice);
    m_wrapper.append(text, m_slice);
    if (more)
        return;
    text += '\n';
    m_phase = Phase::Nodes;
}

void ScenePrinter::writeUnknownSlice(std::string& text)
{
    constexpr std::size_t bytesPerSlice = std::size_t{1} << 14U;
    const std::string_view part = std::string_view(m_unknownField->text).substr(m_position, bytesPerSlice);
    text += part;
    m_position += part.size();
    if (m_position < m_unknownField->text.size())
        return;
    text += '\n';
    m_phase = Phase::Nodes;
}

void ScenePrinter::writeChild(std::string& text, NxNode* child)
{
    if (m_open.size() == 1)
        text += '\n'; // between the top nodes
    SceneSharing::SharedNode* shared = m_sharing.find(child);
    if (shared == nullptr || !shared->written)
        return startNode(text, child, shared == nullptr ? std::string() : shared->label);
    indent(text);
    text += "use ";
    writeQuoted(text, shared->label.empty() ? shared->name : std::string_view(shared->label));
    text += '\n';
}

void ScenePrinter::startNode(std::string& text, NxNode* node, const std::string& label)
{
    indent(text);
    text += node->getClassName();
    if (!node->getName().isEmpty()) {
        text += ' ';
        writeQuoted(text, node->getName().view());
    }
    if (!label.empty()) {
        text += " as ";
        writeQuoted(text, label);
    }
    text += " {\n";
    if (SceneSharing::SharedNode* shared = m_sharing.find(node))
        shared->written = true;
    ++m_written;
    m_open.push_back({node, node->getFieldData()});
}

void ScenePrinter::writeQuoted(std::string& text, std::string_view name)
{
    const std::size_t start = text.size();
    writeValue(text, VbString(name));
    if (text.size() - start > maxNameLength)
        fail("the name of a node has more than " + std::to_string(maxNameLength) + " bytes");
}

void ScenePrinter::indent(std::string& text) const
{
    text.append((m_open.size() - 1) * blanksPerLevel, ' ');
}

} // namespace meridane
