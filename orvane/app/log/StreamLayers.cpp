#include "orvane/app/log/StreamLayers.h"

#include <algorithm>
#include <utility>

namespace {

/// Keeps a tap until the program ends, since what was put on top of it may still use it.
void keep(std::unique_ptr<StreamTap> tap)
{
    static auto& kept = *new std::vector<std::unique_ptr<StreamTap>>;
    kept.push_back(std::move(tap));
}

} // namespace

StreamLayers::StreamLayers(std::ostream& stream, StreamLines::Receiver receiver)
    : m_stream(stream)
    , m_lines(std::move(receiver))
{
    add(nullptr);
}

StreamLayers::~StreamLayers()
{
    for (; !m_layers.empty(); m_layers.pop_back()) {
        StreamTap& tap = *m_layers.back().tap;
        if (tap.isOnTop())
            continue;
        tap.retire(tap.below());
        keep(std::move(m_layers.back().tap));
    }
}

void StreamLayers::remove(const void* owner)
{
    for (auto layer = m_layers.end(); layer != m_layers.begin() + 1;) {
        --layer;
        if (layer->owner != owner)
            continue;
        if (!layer->tap->isOnTop()) {
            layer->tap->retire((layer - 1)->tap.get());
            keep(std::move(layer->tap));
        }
        layer = m_layers.erase(layer);
    }
}

void StreamLayers::add(const void* owner)
{
    const auto isOnTop = [](const Layer& layer) { return layer.tap->isOnTop(); };
    if (std::ranges::none_of(m_layers, isOnTop))
        m_layers.push_back(
            {owner, std::make_unique<StreamTap>(m_stream, [this](std::string_view text) { m_lines.put(text); })});
}
