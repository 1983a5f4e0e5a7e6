#include "plugins/nodes/BelowFacts.h"

#include "plugins/nodes/NumberText.h"

#include <array>
#include <utility>
#include <vector>

namespace nodes {

namespace {

QString sizeText(const VbVec3f& vector, const QString& between)
{
    const std::array<double, 3> numbers{
        static_cast<double>(vector[0]), static_cast<double>(vector[1]), static_cast<double>(vector[2])};
    return numbersText(numbers, between);
}

} // namespace

BelowFacts::BelowFacts()
    : SlicedText(tr("Counting…"))
{
}

void BelowFacts::begin(NxNode& node)
{
    m_figures = std::make_unique<meridane::NodeFigures>(std::vector<NxNode*>{&node});
}

bool BelowFacts::advance(std::chrono::microseconds slice)
{
    return m_figures->advance(slice);
}

QString BelowFacts::finish()
{
    const std::unique_ptr<meridane::NodeFigures> figures = std::move(m_figures);
    if (figures->meshes() == 0)
        return tr("no meshes");
    const std::uint64_t triangles = figures->triangles();
    QString text = figures->meshes() == 1 ? tr("1 mesh") : tr("%1 meshes").arg(figures->meshes());
    text += QStringLiteral(", ") + (triangles == 1 ? tr("1 triangle") : tr("%1 triangles").arg(triangles));
    if (!figures->isComplete())
        text = tr("at least %1").arg(text);
    if (const NxBounds& bounds = figures->bounds(); !bounds.isEmpty())
        text += tr("\n%1 around %2")
                    .arg(sizeText(bounds.size(), QStringLiteral(" × ")),
                        sizeText(bounds.center(), QStringLiteral(", ")));
    return text;
}

} // namespace nodes
