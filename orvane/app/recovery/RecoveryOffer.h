#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/recovery/RecoveryScan.h"

#include <QObject>
#include <QString>

#include <deque>
#include <functional>
#include <memory>

class FileFlow;
class MessageBar;
class SceneRecovery;

/// Offers the user the scenes that programs have left which didn't end properly, one after the other, in the message
/// bar. What the user doesn't answer is offered again by the next program.
class RecoveryOffer : public QObject {
    Q_OBJECT

public:
    /// All of these live longer.
    RecoveryOffer(FileFlow& files, SceneRecovery& recovery, MessageBar& messages, QObject* parent);

    /// Looks for scenes and offers them as they are found.
    void start(const RecoveryFolder& folder);

private:
    using Scene = std::shared_ptr<AbandonedScene>;

    void add(const Scene& scene);
    void showNext();
    void answer();
    void recover(const Scene& scene);
    void discard(const Scene& scene);
    [[nodiscard]] static QString textFor(const AbandonedScene& scene);

    FileFlow& m_files;
    SceneRecovery& m_recovery;
    MessageBar& m_messages;
    RecoveryScan m_scan;
    std::deque<Scene> m_waiting; // the first one is shown
};
