#include "orvane/app/tree/facts/SpokenFacts.h"

#include "orvane/app/tree/facts/IgnoredFields.h"

#include "meridane/scene/nodes/NxNode.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

struct SpokenTexts {
    Q_DECLARE_TR_FUNCTIONS(SpokenFacts)
};

} // namespace

QString orvane::spokenFacts(NxNode& node, bool isHidden)
{
    QStringList facts{QString::fromUtf8(node.getClassName())};
    if (const std::size_t children = node.getChildren().size(); children > 0)
        facts += children == 1 ? SpokenTexts::tr("1 child") : SpokenTexts::tr("%1 children").arg(children);
    if (isHidden)
        facts += SpokenTexts::tr("hidden");
    if (hasIgnoredField(node))
        facts += SpokenTexts::tr("has ignored fields");
    return facts.join(QStringLiteral(", "));
}
