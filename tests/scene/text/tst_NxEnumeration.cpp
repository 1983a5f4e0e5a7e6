#include "meridane/base/values/VbName.h"
#include "meridane/scene/text/NxEnumeration.h"

#include <QTest>

class TestNxEnumeration : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void valuesAndNamesKeepTheirOrder()
    {
        QCOMPARE(m_modes.count(), 4);
        QCOMPARE(m_modes.values()[2], -1);
        QVERIFY(m_modes.names()[0] == VbName("off"));
        QVERIFY(m_modes.names()[3] == VbName("quick"));
    }

    void valuesAreFoundByName()
    {
        int value = 42;
        QVERIFY(m_modes.valueByName("slow", value));
        QCOMPARE(value, -1);
        QVERIFY(!m_modes.valueByName("Slow", value));
        QVERIFY(!m_modes.valueByName("", value));
        QVERIFY(!m_modes.valueByName("slo", value));
        QCOMPARE(value, -1);
    }

    void theFirstNameOfAValueCounts()
    {
        QVERIFY(*m_modes.nameByValue(7) == VbName("fast"));
        QVERIFY(m_modes.nameByValue(8) == nullptr);
    }

    void anEnumerationMayBeEmpty()
    {
        const NxEnumeration empty{};
        int value = 42;
        QCOMPARE(empty.count(), 0);
        QVERIFY(!empty.valueByName("", value));
        QVERIFY(empty.nameByValue(0) == nullptr);
    }

private:
    const NxEnumeration m_modes{{"off", 0}, {"fast", 7}, {"slow", -1}, {"quick", 7}};
};

QTEST_APPLESS_MAIN(TestNxEnumeration)
#include "tst_NxEnumeration.moc"
