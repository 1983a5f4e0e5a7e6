#include "plugin/ToolHarness.h"
#include "sdk/Angle.h"

// Field classes of types that the toolkit doesn't know.
class TestFields : public QObject {
    Q_OBJECT

    NxRef<Signpost> m_post = new Signpost;

private Q_SLOTS:
    void init() { m_post = new Signpost; }

    void aValueIsReadAndWrittenInItsOwnText()
    {
        QVERIFY(m_post->heading.set("12.5"));
        QCOMPARE(m_post->heading.getValue().degrees, 12.5F);
        QCOMPARE(ToolHarness::textOf(m_post->heading), QStringLiteral("12.5"));
    }

    void aTextThatIsNoneChangesNothing()
    {
        QVERIFY(!m_post->heading.set("north"));
        QVERIFY(!m_post->heading.set("12 degrees"));
        QCOMPARE(m_post->heading.getValue().degrees, 90.0F);
    }

    void aListHasTheTextOfItsValues()
    {
        QVERIFY(m_post->places.set("[inn, well]"));
        QCOMPARE(m_post->places.getNum(), 2);
        QCOMPARE(ToolHarness::textOf(m_post->places), QStringLiteral("[inn, well]"));
        QVERIFY(m_post->places.set1(1, "mill"));
        QCOMPARE(m_post->places[1].name, std::string("mill"));
    }

    void valuesOfEveryKindAreCompared()
    {
        const NxRef<Signpost> other(new Signpost);
        QVERIFY(m_post->heading.isDefault());
        QVERIFY(m_post->heading.isSame(other->heading));
        QVERIFY(m_post->places.set("[inn]"));
        QVERIFY(!m_post->places.isSame(other->places));
        QVERIFY(other->places.copyFrom(m_post->places));
        QVERIFY(m_post->places.isSame(other->places));
    }

    void theClassesAreKnownByTheirNames()
    {
        QCOMPARE(NxType::fromName("SFAngle"), SFAngle::getClassTypeId());
        QVERIFY(NxType::fromName("Signpost").canCreateInstance());
    }
};

QTEST_MAIN(TestFields)
#include "tst_Fields.moc"
