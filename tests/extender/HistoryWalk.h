#pragma once

#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvStepList.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTest>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <unordered_map>

/// Checks the history of the open document while something plays with it: the scene must be the same, to the byte of
/// its file, whenever the history is at the same step.
class HistoryWalk {
public:
    /// The services live longer. Begins with the scene that is open, which has no steps yet.
    HistoryWalk(OrvServices& services, unsigned seed)
        : m_services(services)
        , m_random(seed)
    {
        m_texts[0] = text();
    }

    /// Waits until the observers have been called and the step has ended.
    static void settle()
    {
        do {
            QCoreApplication::processEvents();
        } while (!NxDelayQueue::getDefault().isEmpty());
        QCoreApplication::processEvents();
    }

    /// Call it after each action, when it has settled.
    void check()
    {
        const OrvStepList& steps = m_services.steps();
        if (depth() != steps.position())
            return; // an action goes on
        const std::string present = text();
        const int step = steps.position() - 1;
        // The step of commands that changed nothing before all others leaves the first state.
        const bool isFirst = step < 0 || (step == 0 && steps.changes(0) == nullptr);
        const std::string& expected = m_texts.try_emplace(isFirst ? 0 : steps.number(step), present).first->second;
        QVERIFY2(present == expected, qPrintable(difference(expected, present)));
        QVERIFY2(!m_services.isClean() || present == m_texts[0], "the star is missing");
        QVERIFY2(m_services.isClean() || step >= 0, "the star is wrong");
    }

    /// To the end, back to the beginning, to twenty places, and to the end.
    void walk()
    {
        constexpr int goals = 20;
        settle();
        check();
        while (m_services.canRedo() && !QTest::currentTestFailed())
            goTo(depth() + 1);
        m_steps = depth();
        goTo(0);
        for (int i = 0; i < goals; ++i)
            goTo(static_cast<int>(m_random() % static_cast<unsigned>(m_steps + 1)));
        goTo(0);
        goTo(m_steps);
    }
    /// How many steps there were on the way.
    [[nodiscard]] int steps() const { return m_steps; }

private:
    [[nodiscard]] std::string text() const { return NxSceneWriter::toText(m_services.document().root()); }
    [[nodiscard]] int depth() const { return m_services.undoDepth(); }

    void goTo(int goal)
    {
        while (depth() != goal && !QTest::currentTestFailed()) {
            const int before = depth();
            if (before > goal)
                m_services.undo();
            else
                m_services.redo();
            QVERIFY2(depth() != before, "it doesn't move");
            // Sometimes at once, and sometimes with observers in between that may answer.
            if (m_random() % 2 == 0)
                settle();
            check();
        }
    }

    [[nodiscard]] QString difference(const std::string& expectedText, const std::string& present) const
    {
        const QStringList expected = QString::fromStdString(expectedText).split(u'\n');
        const QStringList found = QString::fromStdString(present).split(u'\n');
        for (qsizetype line = 0; line < std::min(expected.size(), found.size()); ++line) {
            if (expected.at(line) != found.at(line))
                return QStringLiteral("after %1 steps: '%2' instead of '%3'")
                    .arg(depth())
                    .arg(found.at(line), expected.at(line));
        }
        return QStringLiteral("after %1 steps: another number of lines").arg(depth());
    }

    OrvServices& m_services;
    std::mt19937 m_random;
    std::unordered_map<std::uint64_t, std::string> m_texts; // of the scene after each step, by the number of the step
    int m_steps = 0;
};
