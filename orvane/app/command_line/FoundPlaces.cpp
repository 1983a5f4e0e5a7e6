#include "orvane/app/command_line/FoundPlaces.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/problems/FileLook.h"

#include "meridane/base/values/TextPosition.h"
#include "meridane/scene/check/NxSceneCheck.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QTextStream>

#include <optional>

using orvane::Failure;
using orvane::Result;

Result<meridane::Query> FoundPlaces::parse(const QString& text)
{
    const std::string utf8 = text.toStdString();
    const auto parsed = meridane::Query::parse(utf8);
    if (const auto* const error = std::get_if<meridane::QueryError>(&parsed))
        return Failure{QStringLiteral("--find '%1', character %2: %3")
                           .arg(text.left(200))
                           .arg(meridane::positionOf(utf8, error->position).column)
                           .arg(orvane::toQString(error->message))};
    return std::get<meridane::Query>(parsed);
}

Result<> FoundPlaces::print(const QString& text)
{
    const auto query = parse(text);
    if (!query)
        return Failure{query.error()};
    const meridane::QueryFacts known = query.value().needsFacts() ? facts() : meridane::QueryFacts();
    bool hasFound = false;
    meridane::NodeTraversal nodes(*m_scene);
    while (m_output.status() == QTextStream::Ok) {
        NxNode* const node = nodes.next();
        if (node == nullptr)
            break;
        if (!query.value().isAboutFields()) {
            if (query.value().matches(*node, &known)) {
                hasFound = true;
                printPath(nodes.indices(), nullptr);
            }
            continue;
        }
        for (const NxField* const field : node->getFields()) {
            if (query.value().matches(*field, &known)) {
                hasFound = true;
                printPath(nodes.indices(), field);
            }
        }
    }
    return hasFound ? Result<>() : Failure{QStringLiteral("--find '%1' matches nothing.").arg(text.left(200))};
}

meridane::QueryFacts FoundPlaces::facts() const
{
    NxCheckOptions options;
    options.findFile = orvane::fileFinder(m_folder);
    NxSceneCheck check(NxRef<NxGroup>(m_scene), std::move(options));
    check.run();
    meridane::QueryFacts facts;
    check.reportAll([&facts](const NxSceneProblem& problem, std::span<const int> /*places*/) {
        facts.add(problem);
        return true;
    });
    return facts;
}

void FoundPlaces::printPath(const std::vector<int>& places, const NxField* field)
{
    const std::optional<std::string> path = m_namer.name(*m_scene, places, field, std::chrono::nanoseconds::max());
    m_output << orvane::toQString(path.value_or(std::string())) << '\n';
}
