#include "meridane/scene/check/detail/NodeCheck.h"

#include "meridane/base/values/MessageText.h"
#include "meridane/scene/check/detail/ClassFindings.h"
#include "meridane/scene/check/detail/WorkMeter.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/single/NxSFFilePathString.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace meridane {
namespace {

constexpr std::size_t listRowsAtOnce = 256;

} // namespace

void NodeCheck::start(NxNode& node)
{
    stop();
    m_node = &node;
    m_plan = &m_plans.of(node);
}

void NodeCheck::stop() noexcept
{
    m_node = {};
    m_field = 0;
    m_component = 0;
    m_row = 0;
    m_findings = {};
    if (m_plan != nullptr && m_plan->role == ClassPlan::Role::Mesh)
        m_mesh = {};
    m_plan = nullptr;
    m_problems.clear();
    m_awaitsFile = false;
}

bool NodeCheck::step(WorkMeter& meter)
{
    if (!checkNumbers(meter))
        return false;
    if (m_plan->role == ClassPlan::Role::Mesh && !m_mesh.step(static_cast<NxMesh&>(*m_node), meter, m_problems))
        return false;
    checkByClass();
    checkFiles();
    return true;
}

std::vector<NxSceneProblem> NodeCheck::take()
{
    return std::exchange(m_problems, {});
}

NxSceneProblem& NodeCheck::report(NxProblemKind kind, NxField* field)
{
    NxSceneProblem& problem = m_problems.emplace_back();
    problem.kind = kind;
    problem.node = m_node;
    problem.field = field;
    return problem;
}

bool NodeCheck::checkNumbers(WorkMeter& meter)
{
    NxFieldData* const data = m_node->getFieldData();
    for (; m_field < m_plan->numbers.size(); ++m_field) {
        const ClassPlan::Numbers& numbers = m_plan->numbers[m_field];
        NxField& field = *data->getField(m_node.get(), numbers.index);
        // The scene ignores the value.
        if (field.isIgnored())
            continue;
        // The mesh check has the positions and why they can't be drawn.
        if (m_plan->role == ClassPlan::Role::Mesh && &field == &static_cast<NxMesh&>(*m_node).positions)
            continue;
        if (!checkField(numbers, field, meter))
            return false;
        if (m_findings.notFinite + m_findings.outOfRange > 0)
            reportNumbers(numbers, field);
        m_component = 0;
        m_row = 0;
        m_findings = {};
    }
    return true;
}

void NodeCheck::checkNumber(const ClassPlan::Numbers& numbers, int row, double value)
{
    if (!std::isfinite(value)) {
        ++m_findings.notFinite;
        if (m_findings.firstNotFinite < 0 || row < m_findings.firstNotFinite)
            m_findings.firstNotFinite = row;
    } else if (numbers.hasRange && !numbers.range.contains(m_component, value)) {
        ++m_findings.outOfRange;
        if (m_findings.firstOutOfRange < 0 || row < m_findings.firstOutOfRange)
            m_findings.firstOutOfRange = row;
    }
}

bool NodeCheck::checkField(const ClassPlan::Numbers& numbers, NxField& field, WorkMeter& meter)
{
    const int components = numbers.components->count();
    if (!numbers.isList) {
        for (m_component = 0; m_component < components; ++m_component)
            checkNumber(numbers, 0, numbers.components->get(field, 0, m_component));
        meter.count(static_cast<std::size_t>(components));
        return true;
    }
    std::array<double, listRowsAtOnce>
        values; // NOLINT(cppcoreguidelines-pro-type-member-init): written before it is read
    const int rows = numbers.components->rows(field);
    for (; m_component < components; ++m_component) {
        while (m_row < rows) {
            if (meter.isSpent())
                return false;
            const std::size_t count = std::min(listRowsAtOnce, static_cast<std::size_t>(rows - m_row));
            numbers.components->read(field, m_row, m_component, std::span(values).first(count));
            for (std::size_t i = 0; i < count; ++i)
                checkNumber(numbers, m_row + static_cast<int>(i), values[i]);
            m_row += static_cast<int>(count);
            meter.count(2 * count + 8);
        }
        m_row = 0;
    }
    return true;
}

void NodeCheck::reportNumbers(const ClassPlan::Numbers& numbers, NxField& field)
{
    const std::size_t total = static_cast<std::size_t>(numbers.components->rows(field))
        * static_cast<std::size_t>(numbers.components->count());
    if (m_findings.notFinite > 0) {
        NxSceneProblem& problem = report(NxProblemKind::NotFinite, &field);
        problem.row = numbers.isList ? m_findings.firstNotFinite : -1;
        problem.count = m_findings.notFinite;
        problem.total = total;
        problem.isMendable = true;
    }
    if (m_findings.outOfRange > 0) {
        NxSceneProblem& problem = report(NxProblemKind::OutOfRange, &field);
        problem.row = numbers.isList ? m_findings.firstOutOfRange : -1;
        problem.count = m_findings.outOfRange;
        problem.total = total;
        problem.detail = numbers.range.text();
        problem.isMendable = numbers.range.isClosed();
    }
}

void NodeCheck::checkFiles()
{
    constexpr std::size_t maxBytes = 200;
    if (m_options.findFile == nullptr || m_plan->files.empty())
        return;
    const bool isTexture = m_plan->role == ClassPlan::Role::Texture;
    if (isTexture && hasOwnImage(static_cast<const NxTexture&>(*m_node)))
        return;
    for (const ClassPlan::File& file : m_plan->files) {
        auto& field = static_cast<NxSFFilePathString&>(*m_node->getFieldData()->getField(m_node.get(), file.index));
        const std::string path(field.getValue().view());
        if (field.isIgnored() || path.empty())
            continue;
        const NxFileFinding finding = m_options.findFile(path, isTexture);
        if (finding.state == NxFileFinding::State::Missing)
            report(NxProblemKind::MissingFile, &field).detail = excerpt(path, maxBytes);
        else if (finding.state == NxFileFinding::State::Unreadable)
            report(NxProblemKind::UnreadableFile, &field).detail
                = std::string("'").append(excerpt(path, maxBytes)).append("' ").append(finding.reason);
        else if (std::max(finding.width, finding.height) > m_options.maxImageSide)
            reportLargeImage(field, finding);
        m_awaitsFile = m_awaitsFile || finding.state == NxFileFinding::State::Unknown;
    }
}

void NodeCheck::reportLargeImage(NxField& field, const NxFileFinding& finding)
{
    NxSceneProblem& problem = report(NxProblemKind::ImageTooLarge, &field);
    problem.limit = static_cast<std::size_t>(m_options.maxImageSide);
    problem.detail = imageSizeText(finding.width, finding.height);
}

void NodeCheck::checkByClass()
{
    if (!hasFindings(m_plan->role))
        return;
    const auto found = [this](NxProblemKind kind, NxField* field) -> NxSceneProblem& { return report(kind, field); };
    findByClass(*m_node, m_plan->role, m_options, found);
}

} // namespace meridane
