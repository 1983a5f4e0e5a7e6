#pragma once

#include "meridane/scene/check/NxProblemKind.h"

#include <QObject>
#include <QString>

#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

/// Makes lines of what is written to a stream, on any thread: those of one thread aren't mixed with those of another. A
/// line that isn't ended is passed on when nothing follows for a while. Empty lines are left out.
class StreamLines : public QObject {
    Q_OBJECT

public:
    /// Called on the thread that writes, or on that of this object for a line that isn't ended.
    using Receiver = std::function<void(const QString& line)>;

    explicit StreamLines(Receiver receiver, QObject* parent = nullptr);
    /// Passes on what isn't ended.
    ~StreamLines() override;

    void put(std::string_view text);

private:
    struct Unfinished {
        std::string text;
        bool isNew = false; ///< it has grown since the last look
    };

    void lookLater();
    void look();
    void pass(std::string_view line) const;

    Receiver m_receiver;
    std::mutex m_mutex;
    std::map<std::thread::id, Unfinished> m_unfinished;
    bool m_isWatched = false;
};
