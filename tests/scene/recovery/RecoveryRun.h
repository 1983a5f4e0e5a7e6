#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/recovery/RecoveryCapture.h"
#include "meridane/scene/recovery/RecoveryFileReader.h"

#include <memory>
#include <string>

namespace meridane {
class Journal;
}

/// A capture of a scene, with the bytes of its recovery file.
class RecoveryRun {
public:
    /// The base is the scene as it is now: as a file, or nothing.
    RecoveryRun(meridane::Journal& journal, meridane::RecoveryDescription::Base base);

    [[nodiscard]] meridane::RecoveryCapture& capture() { return *m_capture; }
    [[nodiscard]] const std::string& bytes() const { return m_bytes; }
    /// One slice, as short as possible. Returns whether there is more to capture.
    bool runSlice();
    /// Captures all that is dirty, and returns the number of slices.
    int runAll();

    /// The scene that the file gives; the text of it, and the failure in brackets if there is none.
    [[nodiscard]] NxRef<NxGroup> recover() const { return recover(m_bytes); }
    [[nodiscard]] NxRef<NxGroup> recover(const std::string& bytes) const;
    [[nodiscard]] std::string recoverText() const { return recoverText(m_bytes); }
    [[nodiscard]] std::string recoverText(const std::string& bytes) const;

    /// What tests give as the clock.
    static std::chrono::system_clock::time_point now();

private:
    std::string m_base; // the scene as a file
    std::unique_ptr<meridane::RecoveryCapture> m_capture;
    std::string m_bytes;
};
