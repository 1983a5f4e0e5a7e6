#pragma once

#include "orvane/app/log/StreamLines.h"
#include "orvane/app/log/StreamTap.h"

#include <memory>
#include <ostream>
#include <vector>

/// The taps of one stream: one below all who take the stream over, and one on top of each of these.
class StreamLayers {
public:
    /// The stream lives longer. See `StreamLines` for the receiver.
    StreamLayers(std::ostream& stream, StreamLines::Receiver receiver);
    StreamLayers(const StreamLayers&) = delete;
    StreamLayers& operator=(const StreamLayers&) = delete;
    ~StreamLayers();

    /// Takes out the taps on top of what that owner has put in.
    void remove(const void* owner);
    /// Puts in a tap, unless the stream goes into one already. The owner is the one who has put in something.
    void add(const void* owner);

private:
    struct Layer {
        const void* owner = nullptr; ///< null for the lowest
        std::unique_ptr<StreamTap> tap;
    };

    std::ostream& m_stream;
    StreamLines m_lines;
    std::vector<Layer> m_layers; // from the lowest one
};
