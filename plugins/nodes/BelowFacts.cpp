#include "plugins/nodes/BelowFacts.h"

#include "plugins/nodes/NumberText.h"

#include <array>
#include <chrono>
#include <vector>

using namespace std::chrono_literals;

namespace nodes {

namespace {

constexpr auto sliceOfFigures = 2ms;

QString sizeText(const VbVec3f& vector, const QString& between)
{
    const std::array<double, 3> numbers{
        static_cast<double>(vector[0]), static_cast<double>(vector[1]), static_cast<double>(vector[2])};
    return numbersText(numbers, between);
}

} // namespace

BelowFacts::BelowFacts()
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void BelowFacts::setNode(NxNode& node)
{
    if (m_node.get() != &node)
        setText(tr("Counting…"));
    m_node = NxRef<NxNode>(&node);
    m_figures = std::make_unique<meridane::NodeFigures>(std::vector<NxNode*>{&node});
    advance();
}

void BelowFacts::timerEvent(QTimerEvent* /*event*/)
{
    advance();
}

void BelowFacts::advance()
{
    // A hidden editor shows nothing, and is given its node again before it is shown.
    if (m_figures == nullptr || !m_figures->advance(sliceOfFigures)) {
        if (m_figures != nullptr)
            m_timer.start(0, this);
        return;
    }
    m_timer.stop();
    if (m_figures->meshes() == 0) {
        setText(tr("no meshes"));
    } else {
        const std::uint64_t triangles = m_figures->triangles();
        QString text = m_figures->meshes() == 1 ? tr("1 mesh") : tr("%1 meshes").arg(m_figures->meshes());
        text += QStringLiteral(", ") + (triangles == 1 ? tr("1 triangle") : tr("%1 triangles").arg(triangles));
        if (!m_figures->isComplete())
            text = tr("at least %1").arg(text);
        if (const NxBounds& bounds = m_figures->bounds(); !bounds.isEmpty())
            text += tr("\n%1 around %2")
                        .arg(sizeText(bounds.size(), QStringLiteral(" × ")),
                            sizeText(bounds.center(), QStringLiteral(", ")));
        setText(text);
    }
    m_figures.reset();
}

} // namespace nodes
