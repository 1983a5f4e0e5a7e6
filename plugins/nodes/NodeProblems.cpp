#include "plugins/nodes/NodeProblems.h"

#include "meridane/scene/nodes/NxGroup.h"

#include <QStringList>

#include <chrono>

using namespace std::chrono_literals;

namespace nodes {

namespace {

constexpr auto sliceOfCheck = 2ms;

} // namespace

NodeProblems::NodeProblems()
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void NodeProblems::setNode(NxNode& node)
{
    if (m_node.get() != &node)
        setText(tr("Checking…"));
    m_node = NxRef<NxNode>(&node);
    // The check takes a scene: one with this node alone.
    NxRef<NxGroup> scene(new NxGroup);
    scene->addChild(&node);
    m_check = std::make_unique<NxSceneCheck>(scene);
    advance();
}

void NodeProblems::timerEvent(QTimerEvent* /*event*/)
{
    advance();
}

void NodeProblems::advance()
{
    if (m_check == nullptr)
        return;
    if (m_check->step(sliceOfCheck) != NxSceneCheck::State::Done) {
        m_timer.start(0, this);
        return;
    }
    m_timer.stop();
    QStringList sentences;
    m_check->reportAll([&](const NxSceneProblem& problem, std::span<const int> /*places*/) {
        sentences.append(QString::fromStdString(problem.sentence()));
        return true;
    });
    m_check.reset();
    setText(sentences.isEmpty() ? tr("nothing") : sentences.join(u'\n'));
}

} // namespace nodes
