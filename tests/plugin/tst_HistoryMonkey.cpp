#include "OrvDefaults.h"
#include "plugin/HostHarness.h"
#include "plugin/Monkey.h"
#include "scene/SceneText.h"

#include "orvane/extender/OrvDocument.h"

#include "meridane/base/Files.h"
#include "meridane/base/NxDelayQueue.h"

#include <random>

namespace {

constexpr int usualSteps = 3000;
constexpr int goals = 20; // of the walk through the finished history
constexpr int pokes = 84; // up to this number of a hundred it pokes

/// Everything that the editors of the gallery can do, at random, with the journal of the open document. The scene must
/// be the same, to the byte of its file, whenever the history is at the same step.
class HistoryRun {
public:
    explicit HistoryRun(unsigned seed)
        : m_monkey(seed)
        , m_random(seed)
        , m_host(m_plugin, QStringLiteral("Field Editor"), {QStringLiteral("*")})
    {
        m_host.shell.window.resize(900, 300);
        std::string text;
        [&text] { QVERIFY(!meridane::readFile(GALLERY_FILE, text)); }();
        m_scene = SceneText::read(text);
        [this] { QVERIFY(m_scene); }();
        m_host.services.document().open(OrvDocument::makeJournal(*m_scene));
        m_texts.push_back(this->text());
    }
    HistoryRun(const HistoryRun&) = delete;
    HistoryRun& operator=(const HistoryRun&) = delete;
    ~HistoryRun()
    {
        m_host.services.selectField(nullptr);
        m_host.services.document().close();
    }

    void step()
    {
        act();
        settle();
        check();
    }

    /// Back to the beginning, to some places, and to the end.
    void walk()
    {
        if (QWidget* const popup = QApplication::activePopupWidget())
            popup->close();
        m_host.services.selectField(nullptr);
        settle();
        check();
        while (m_host.services.canRedo())
            goTo(depth() + 1);
        const int end = depth();
        goTo(0);
        for (int i = 0; i < goals; ++i)
            goTo(static_cast<int>(m_random() % static_cast<unsigned>(end + 1)));
        goTo(0);
        goTo(end);
        m_steps = end;
    }
    [[nodiscard]] int steps() const { return m_steps; }

private:
    [[nodiscard]] std::string text() const { return NxSceneWriter::toText(m_scene.get()); }
    [[nodiscard]] int depth() const { return m_host.services.undoDepth(); }

    void act()
    {
        int what = m_monkey.below(100);
        // An open popup holds mouse and keyboard, so a user can do nothing else.
        if (QApplication::activePopupWidget() != nullptr)
            what = pokes;
        const auto fields = m_scene->getChild(0)->getFields();
        if (what < 20)
            m_host.services.selectField(m_monkey.chance(3)
                    ? nullptr
                    : fields[static_cast<std::size_t>(m_monkey.below(static_cast<int>(fields.size())))]);
        else if (what <= pokes)
            m_monkey.poke(m_host.dock());
        else if (what < 93)
            m_host.services.undo();
        else
            m_host.services.redo();
    }

    // Until the observers have been called and the step has ended.
    static void settle()
    {
        do {
            QCoreApplication::processEvents();
        } while (!NxDelayQueue::getDefault().isEmpty());
        QCoreApplication::processEvents();
    }

    void goTo(int goal)
    {
        while (depth() != goal && !QTest::currentTestFailed()) {
            const int before = depth();
            if (before > goal)
                m_host.services.undo();
            else
                m_host.services.redo();
            QVERIFY2(depth() != before, "it doesn't move");
            // Sometimes at once, and sometimes with observers in between that may answer.
            if (m_random() % 2 == 0)
                settle();
            check();
        }
    }

    void check()
    {
        const auto place = static_cast<std::size_t>(depth());
        if (!m_host.services.canRedo()) {
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
        QVERIFY2(!m_host.services.isClean() || present == m_texts[0], "the star is missing");
        QVERIFY2(m_host.services.isClean() || place != 0, "the star is wrong");
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

    // The last step may have grown by keys that are typed into the same line.
    void compare(std::size_t place, const std::string& present)
    {
        const bool isLast = place + 1 == m_texts.size() && !m_host.services.canRedo();
        QVERIFY2(isLast || m_texts[place] == present, qPrintable(difference(place, present)));
    }

    Monkey m_monkey;
    std::mt19937 m_random;
    OrvDefaults m_plugin;
    HostHarness m_host;
    NxRef<NxGroup> m_scene;
    std::vector<std::string> m_texts; // of the scene, at each place of the history
    std::size_t m_place = 0;
    int m_steps = 0;
};

} // namespace

class TestHistoryMonkey : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theHistoryIsExactWhateverIsDone_data()
    {
        QTest::addColumn<unsigned>("seed");
        bool isSet = false;
        const int wanted = qEnvironmentVariableIntValue("MONKEY_SEED", &isSet);
        for (unsigned seed : isSet ? std::vector{static_cast<unsigned>(wanted)} : std::vector{1U, 2U, 3U})
            QTest::addRow("seed %u", seed) << seed;
    }

    void theHistoryIsExactWhateverIsDone()
    {
        QFETCH(unsigned, seed);
        bool isSet = false;
        const int wanted = qEnvironmentVariableIntValue("MONKEY_STEPS", &isSet);
        HistoryRun run(seed);
        for (int step = 1; step <= (isSet ? wanted : usualSteps); ++step) {
            run.step();
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(QStringLiteral("That was step %1.").arg(step)));
        }
        run.walk();
        qInfo("The history has %d steps.", run.steps());
        QVERIFY(run.steps() > usualSteps / 100);
    }
};

QTEST_MAIN(TestHistoryMonkey)
#include "tst_HistoryMonkey.moc"
