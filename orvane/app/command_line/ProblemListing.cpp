#include "orvane/app/command_line/ProblemListing.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/command_line/StandardOutput.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/check/NxSceneCheck.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePathNamer.h"

#include <QJsonObject>
#include <QTextStream>

#include <chrono>
#include <string>
#include <string_view>

namespace {

/// Makes the paths of many problems.
class Paths {
public:
    explicit Paths(const NxGroup& scene)
        : m_scene(scene)
    {
    }

    [[nodiscard]] QString of(std::span<const int> places, const NxField* field)
    {
        const auto path = m_namer.name(m_scene, places, field, std::chrono::nanoseconds::max());
        return orvane::toQString(path.value_or(std::string()));
    }

private:
    const NxGroup& m_scene;
    NxScenePathNamer m_namer;
};

QJsonObject jsonObject(const NxSceneProblem& problem, const QString& path)
{
    const meridane::ProblemClass& about = problem.about();
    QJsonObject object{{QStringLiteral("path"), path},
        {QStringLiteral("severity"), orvane::toQString(meridane::severityText(about.severity))},
        {QStringLiteral("identifier"), orvane::toQString(about.identifier)},
        {QStringLiteral("text"), orvane::toQString(problem.sentence())},
        {QStringLiteral("class"), QString::fromUtf8(problem.node->getClassName())},
        {QStringLiteral("count"), static_cast<qint64>(problem.count)}};
    if (problem.field != nullptr)
        object[QStringLiteral("field")]
            = QString::fromUtf8(problem.field->getContainer()->getFieldName(problem.field).getString());
    if (problem.row >= 0)
        object[QStringLiteral("row")] = problem.row;
    if (problem.isMendable)
        object[QStringLiteral("mend")] = orvane::toQString(about.mend);
    return object;
}

} // namespace

void ProblemListing::print() const
{
    Paths paths(m_scene);
    m_check.reportAll([&](const NxSceneProblem& problem, std::span<const int> places) {
        const meridane::ProblemClass& about = problem.about();
        m_output << paths.of(places, problem.field) << '\t' << orvane::toQString(meridane::severityText(about.severity))
                 << '\t' << orvane::toQString(about.identifier) << '\t' << orvane::toQString(problem.sentence())
                 << '\n';
        return m_output.status() == QTextStream::Ok;
    });
}

void ProblemListing::printJson(const QString& file) const
{
    const auto count = [this](NxSeverity severity) { return static_cast<qint64>(m_check.count(severity)); };
    const QJsonObject head{{QStringLiteral("version"), 1}, {QStringLiteral("file"), file},
        {QStringLiteral("errors"), count(NxSeverity::Error)}, {QStringLiteral("warnings"), count(NxSeverity::Warning)},
        {QStringLiteral("information"), count(NxSeverity::Information)}};
    m_output << orvane::jsonLine(head).chopped(1) << QStringLiteral(",\"problems\":[");
    const char* separator = "\n";
    Paths paths(m_scene);
    m_check.reportAll([&](const NxSceneProblem& problem, std::span<const int> places) {
        m_output << separator << orvane::jsonLine(jsonObject(problem, paths.of(places, nullptr)));
        separator = ",\n";
        return m_output.status() == QTextStream::Ok;
    });
    m_output << QStringLiteral("\n]}\n");
}
