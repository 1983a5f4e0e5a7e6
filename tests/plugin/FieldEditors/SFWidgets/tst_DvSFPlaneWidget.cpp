#include "FieldEditors/SFWidgets/DvSFPlaneWidget.h"
#include "plugin/FieldEditors/SFWidgets/ComponentRun.h"

class TestDvSFPlaneWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_run = std::make_unique<ComponentRun>(
            std::make_unique<DvSFPlaneWidget>(), QStringLiteral("SFPlane"), QStringLiteral("0 0 1 5"));
    }

    void cleanup()
    {
        m_run.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void normalComesBackAtUnitLength()
    {
        m_run->type(2, QStringLiteral("-4"));
        m_run->press(2, Qt::Key_Tab);
        QCOMPARE(m_run->text(), QStringLiteral("0 0 -1 5"));
        QCOMPARE(m_run->texts().at(2), QStringLiteral("-4"));
        ToolHarness::pump();
        QCOMPARE(m_run->texts().at(2), QStringLiteral("-1"));
        QCOMPARE(m_run->pushed(), 1);
    }

    void normalOfNoLengthIsKept()
    {
        m_run->type(2, QStringLiteral("0"));
        m_run->press(2, Qt::Key_Tab);
        QCOMPARE(m_run->text(), QStringLiteral("0 0 0 5"));
    }

    void tabAppliesTheDistance()
    {
        m_run->type(3, QStringLiteral("-2.5"));
        m_run->press(3, Qt::Key_Tab);
        QCOMPARE(m_run->text(), QStringLiteral("0 0 1 -2.5"));
        QCOMPARE(m_run->pushed(), 1);
    }

private:
    std::unique_ptr<ComponentRun> m_run;
};

QTEST_MAIN(TestDvSFPlaneWidget)
#include "tst_DvSFPlaneWidget.moc"
