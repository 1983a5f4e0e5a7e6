#include "app/WindowMonkey.h"

#include <QApplication>
#include <QTest>

#include <cstdlib>

// The tool's window at random, in the address sanitizer's build above all. ORVANE_TEST_STEPS sets the number of steps,
// MONKEY_SEED the seed: what a seed found is mostly found again with it, but jobs take their own time.
class TestWindowStress : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWindowWithstandsAnything()
    {
        const int steps = number("ORVANE_TEST_STEPS", 400);
        const int seed = number("MONKEY_SEED", 1);
        qInfo("The seed is %d.", seed);
        {
            WindowMonkey monkey(static_cast<unsigned>(seed));
            for (int step = 1; step <= steps; ++step) {
                monkey.step();
                if (step % 200 == 0)
                    monkey.checkItStillWorks();
                if (QTest::currentTestFailed())
                    QFAIL(qPrintable(QStringLiteral("That was step %1 of the seed %2.").arg(step).arg(seed)));
            }
            monkey.checkItStillWorks();
            monkey.checkReach();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

private:
    static int number(const char* variable, int usual)
    {
        bool given = false;
        const int wanted = qEnvironmentVariableIntValue(variable, &given);
        return given ? wanted : usual;
    }
};

QTEST_MAIN(TestWindowStress)
#include "tst_WindowStress.moc"
