#include "app/window/WindowMonkey.h"

#include <QApplication>
#include <QTest>

#include <algorithm>

// The tool's window at random, in the address sanitizer's build above all. ORVANE_TEST_STEPS sets the number of steps,
// MONKEY_SEED the first seed; each row has the next one. What a seed found is mostly found again with it, but jobs take
// their own time.
class TestWindowStress : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWindowWithstandsAnything_data()
    {
        QTest::addColumn<unsigned>("seed");
        QTest::addColumn<int>("steps");
        int seed = number("MONKEY_SEED", 1);
        for (int left = number("ORVANE_TEST_STEPS", 400); left > 0; left -= stepsPerSeed, ++seed)
            QTest::addRow("seed %d", seed) << static_cast<unsigned>(seed) << std::min(left, stepsPerSeed);
    }

    void theWindowWithstandsAnything()
    {
        QFETCH(const unsigned, seed);
        QFETCH(const int, steps);
        {
            WindowMonkey monkey(seed, m_done);
            for (int step = 1; step <= steps; ++step) {
                monkey.step();
                if (step % 100 == 0)
                    monkey.checkItStillWorks();
                if (QTest::currentTestFailed())
                    QFAIL(qPrintable(QStringLiteral("That was step %1 of the seed %2.").arg(step).arg(seed)));
            }
            monkey.checkItStillWorks();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    // Without which the rest would say little.
    void everyKindOfThingHasHappened()
    {
        qInfo() << m_done;
        for (const char* what : {"scene", "saved", "added", "quit", "dialog"})
            QVERIFY2(m_done.value(QLatin1String(what)) > 0, what);
    }

private:
    // So that a row ends in time on a slow machine too.
    static constexpr int stepsPerSeed = 200;

    static int number(const char* variable, int usual)
    {
        bool given = false;
        const int wanted = qEnvironmentVariableIntValue(variable, &given);
        return given ? wanted : usual;
    }

    QHash<QString, int> m_done;
};

QTEST_MAIN(TestWindowStress)
#include "tst_WindowStress.moc"
