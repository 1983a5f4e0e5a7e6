#pragma once

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/problems/FileSearch.h"

#include "meridane/scene/check/NxSceneCheck.h"
#include "meridane/scene/journal/JournalListener.h"

#include <QBasicTimer>
#include <QObject>

#include <cstdint>
#include <memory>
#include <vector>

class ImageFolderQuestion;
class Session;

namespace meridane {
class Journal;
}

/// Checks the open scene in slices and follows its changes, while it is switched on.
class LiveCheck : public QObject, private meridane::JournalListener {
    Q_OBJECT

public:
    /// Both live longer; `clock` measures the slices.
    LiveCheck(
        Session& session, ImageFolderQuestion& folders, SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~LiveCheck() override;

    /// Begins to check the open scene, or forgets everything.
    void setOn(bool isOn);
    /// Checks everything again, and looks at the files again.
    void restart();

    /// The check; null while nothing is checked.
    [[nodiscard]] const NxSceneCheck* check() const noexcept { return m_check.get(); }
    /// Whether everything is checked as it is now.
    [[nodiscard]] bool isSettled() const noexcept { return m_check != nullptr && m_isSettled; }

Q_SIGNALS:
    /// `check` is another one, or null. Forget all lists.
    void replaced();
    /// These lists have changed, each once.
    void changed(const std::vector<std::uint32_t>& lists);
    /// The result of `isSettled` has changed.
    void settledChanged();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void aboutToChange(const meridane::PlaceChange& change) noexcept override;
    void begin();
    void end();
    void goOn() noexcept;
    void runSlice();
    void setSettled(bool isSettled);

    Session& m_session;
    ImageFolderQuestion& m_folders;
    SliceClock::Clock m_clock;
    FileSearch m_files;
    std::unique_ptr<NxSceneCheck> m_check;
    meridane::Journal* m_journal = nullptr; // that is listened to
    QBasicTimer m_slices;
    QBasicTimer m_openStep; // looks at the places of a step while it goes on
    bool m_isOn = false;
    bool m_isSettled = false;
};
