#include "OrvDefaults.h"
#include "extender/HistoryWalk.h"
#include "plugin/HostHarness.h"
#include "plugin/Monkey.h"
#include "scene/SceneText.h"

#include "meridane/base/Files.h"

#include <optional>

namespace {

constexpr int usualSteps = 3000;
constexpr int pokes = 84; // up to this number of a hundred it pokes

/// Everything that the editors of the gallery can do, at random, with the journal of the open document.
class HistoryRun {
public:
    explicit HistoryRun(unsigned seed)
        : m_monkey(seed)
        , m_host(m_plugin, QStringLiteral("Field Editor"), {QStringLiteral("*")})
    {
        m_host.shell.window.resize(900, 300);
        std::string text;
        [&text] { QVERIFY(!meridane::readFile(GALLERY_FILE, text)); }();
        m_scene = SceneText::read(text);
        [this] { QVERIFY(m_scene); }();
        m_host.services.document().open(OrvDocument::makeJournal(*m_scene));
        m_walk.emplace(m_host.services, seed);
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
        HistoryWalk::settle();
        m_walk->check();
    }

    void walk()
    {
        if (QWidget* const popup = QApplication::activePopupWidget())
            popup->close();
        m_host.services.selectField(nullptr);
        m_walk->walk();
    }
    [[nodiscard]] int steps() const { return m_walk->steps(); }

private:
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

    Monkey m_monkey;
    OrvDefaults m_plugin;
    HostHarness m_host;
    NxRef<NxGroup> m_scene;
    std::optional<HistoryWalk> m_walk;
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
