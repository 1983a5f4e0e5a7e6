#pragma once

#include "orvane/app/instance/HandedFile.h"
#include "orvane/app/instance/SocketFolder.h"

#include <chrono>

/// Hands a file to the window that was used last.
class InstanceClient {
public:
    enum class Outcome {
        Taken, ///< the other has the file
        Nobody, ///< no window is there
        Refused, ///< the windows that are there can't take it
    };
    struct Result {
        Outcome outcome = Outcome::Nobody;
        /// Why it was refused, as a sentence.
        QString reason;
    };

    /// `patience` is how long all of it may take; a window that hangs doesn't answer.
    explicit InstanceClient(SocketFolder folder, std::chrono::milliseconds patience = std::chrono::milliseconds(3000));

    /// Blocks until there is an answer. Needs an application object. Sockets that nobody listens on are deleted.
    [[nodiscard]] Result hand(const HandedFile& file) const;

private:
    SocketFolder m_folder;
    std::chrono::milliseconds m_patience;
};
