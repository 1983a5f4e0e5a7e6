#include "plugins/nodes/NodeProblems.h"

#include "meridane/scene/nodes/NxGroup.h"

#include <QStringList>

#include <span>

namespace nodes {

NodeProblems::NodeProblems()
    : SlicedText(tr("Checking…"))
{
}

void NodeProblems::begin(NxNode& node)
{
    // The check takes a scene: one with this node alone.
    NxRef<NxGroup> scene(new NxGroup);
    scene->addChild(&node);
    m_check = std::make_unique<NxSceneCheck>(scene);
}

bool NodeProblems::advance(std::chrono::microseconds slice)
{
    return m_check->step(slice) == NxSceneCheck::State::Done;
}

QString NodeProblems::finish()
{
    QStringList sentences;
    m_check->reportAll([&](const NxSceneProblem& problem, std::span<const int> /*places*/) {
        sentences.append(QString::fromStdString(problem.sentence()));
        return true;
    });
    m_check.reset();
    return sentences.isEmpty() ? tr("nothing") : sentences.join(u'\n');
}

} // namespace nodes
