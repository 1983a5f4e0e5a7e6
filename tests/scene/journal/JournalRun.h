#pragma once

#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/journal/Journal.h"

#include <chrono>
#include <memory>
#include <string>
#include <vector>

/// A scene with a journal that records, and the steps that were finished.
class JournalRun {
public:
    explicit JournalRun(NxGroup& scene)
        : m_journal(scene)
    {
        while (m_journal.run(std::chrono::hours(1))) { }
        m_journal.record();
    }

    [[nodiscard]] meridane::Journal& journal() { return m_journal; }
    /// The bytes of the scene as a file has them.
    [[nodiscard]] std::string text() const { return NxSceneWriter::toText(&m_journal.scene()); }

    /// Finishes the open step. Returns it, or null if it changed nothing.
    meridane::JournalStep* finish()
    {
        auto step = m_journal.finishStep();
        if (!step)
            return nullptr;
        m_steps.push_back(std::make_unique<meridane::JournalStep>(std::move(*step)));
        return m_steps.back().get();
    }
    [[nodiscard]] std::vector<std::unique_ptr<meridane::JournalStep>>& steps() { return m_steps; }

private:
    meridane::Journal m_journal;
    std::vector<std::unique_ptr<meridane::JournalStep>> m_steps;
};
