#pragma once

#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTest>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

/// Checks the history of the open document while something plays with it: the scene must be the same, to the byte of
/// its file, whenever the history is at the same step.
class HistoryWalk {
public:
    /// The services live longer. Begins with the scene that is open, which has no steps yet.
    HistoryWalk(OrvServices& services, unsigned seed)
        : m_services(services)
        , m_random(seed)
    {
        m_texts.push_back(text());
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
        const auto place = static_cast<std::size_t>(depth());
        if (!m_services.canRedo()) {
            // Steps that were redone before are others now, and keys may have joined the last one.
            if (place > m_place)
                m_texts.resize(std::min(m_texts.size(), m_place));
            m_texts.resize(place + 1);
        }
        m_place = place;
        QVERIFY(place < m_texts.size());
        const std::string present = text();
        if (!m_texts[place].empty())
            compare(place, present);
        m_texts[place] = present;
        QVERIFY2(!m_services.isClean() || present == m_texts[0], "the star is missing");
        QVERIFY2(m_services.isClean() || place != 0, "the star is wrong");
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

    // The last step may have grown by keys that are typed into the same line.
    void compare(std::size_t place, const std::string& present)
    {
        const bool isLast = place + 1 == m_texts.size() && !m_services.canRedo();
        QVERIFY2(isLast || m_texts[place] == present, qPrintable(difference(place, present)));
    }

    [[nodiscard]] QString difference(std::size_t place, const std::string& present) const
    {
        const QStringList expected = QString::fromStdString(m_texts[place]).split(u'\n');
        const QStringList found = QString::fromStdString(present).split(u'\n');
        for (qsizetype line = 0; line < std::min(expected.size(), found.size()); ++line) {
            if (expected.at(line) != found.at(line))
                return QStringLiteral("at step %1: '%2' instead of '%3'")
                    .arg(place)
                    .arg(found.at(line), expected.at(line));
        }
        return QStringLiteral("at step %1: another number of lines").arg(place);
    }

    OrvServices& m_services;
    std::mt19937 m_random;
    std::vector<std::string> m_texts; // of the scene, at each place of the history
    std::size_t m_place = 0;
    int m_steps = 0;
};
