#include "orvane/app/problems/ProblemText.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/language/ToolkitText.h"

#include "meridane/base/values/VbName.h"

#include <string_view>

namespace orvane {
namespace {

QString textOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

QString severityName(NxSeverity severity)
{
    return textOf(meridane::severityText(severity));
}

QString sentenceOf(const NxSceneProblem& problem)
{
    return oneLine(toolkitText(toQString(problem.sentence())));
}

QString mendText(const NxSceneProblem& problem)
{
    return problem.isMendable ? toolkitText(textOf(problem.about().mend)) : QString();
}

QString identifierOf(const NxSceneProblem& problem)
{
    return textOf(problem.about().identifier);
}

QString roughPlace(const NxSceneCheck& check, const NxGroup& scene, const NxSceneProblem& problem)
{
    QString text;
    const NxNode* node = &scene;
    for (const int place : check.placesOf(problem)) {
        node = static_cast<const NxGroup*>(node)->getChild(place);
        text += u'/'
            + (node->getName().isEmpty() ? QString::fromUtf8(node->getClassName()) : toQString(node->getName()));
    }
    if (problem.field != nullptr)
        text += u'.' + QString::fromUtf8(problem.node->getFieldName(problem.field).getString());
    return oneLine(text);
}

QString lineEnd(const NxSceneProblem& problem)
{
    return severityName(problem.about().severity) + u'\t' + identifierOf(problem) + u'\t' + sentenceOf(problem);
}

} // namespace orvane
