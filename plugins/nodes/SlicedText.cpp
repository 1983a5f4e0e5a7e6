#include "plugins/nodes/SlicedText.h"

#include <utility>

using namespace std::chrono_literals;

namespace nodes {

namespace {

constexpr auto slice = 2ms;

} // namespace

SlicedText::SlicedText(const QString& waiting)
    : m_waiting(waiting)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void SlicedText::setNode(NxNode& node)
{
    if (m_node.get() != &node)
        setText(m_waiting);
    m_node = NxRef<NxNode>(&node);
    begin(node);
    m_isWorking = true;
    work();
}

void SlicedText::timerEvent(QTimerEvent* /*event*/)
{
    work();
}

void SlicedText::work()
{
    if (m_isWorking && !advance(slice)) {
        m_timer.start(0, this);
        return;
    }
    m_timer.stop();
    if (std::exchange(m_isWorking, false))
        setText(finish());
}

} // namespace nodes
