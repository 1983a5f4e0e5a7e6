#include "FieldEditors/SFWidgets/DvSFPlaneWidget.h"
#include "plugin/FieldEditors/SFWidgets/ComponentRun.h"

class tst_DvSFPlaneWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void normalComesBackAtUnitLength();
    void normalOfNoLengthIsKept();
    void tabAppliesTheDistance();

private:
    std::unique_ptr<ComponentRun> m_run;
};

void tst_DvSFPlaneWidget::init()
{
    m_run = std::make_unique<ComponentRun>(
        std::make_unique<DvSFPlaneWidget>(), QStringLiteral("SFPlane"), QStringLiteral("0 0 1 5"));
}

void tst_DvSFPlaneWidget::cleanup()
{
    m_run.reset();
    QVERIFY(ToolHarness::noWidgetIsLeft());
}

void tst_DvSFPlaneWidget::normalComesBackAtUnitLength()
{
    m_run->type(2, QStringLiteral("-4"));
    m_run->press(2, Qt::Key_Tab);
    QCOMPARE(m_run->text(), QStringLiteral("0 0 -1 5"));
    QCOMPARE(m_run->texts().at(2), QStringLiteral("-4"));
    ToolHarness::pump();
    QCOMPARE(m_run->texts().at(2), QStringLiteral("-1"));
    QCOMPARE(m_run->pushed(), 1);
}

void tst_DvSFPlaneWidget::normalOfNoLengthIsKept()
{
    m_run->type(2, QStringLiteral("0"));
    m_run->press(2, Qt::Key_Tab);
    QCOMPARE(m_run->text(), QStringLiteral("0 0 0 5"));
}

void tst_DvSFPlaneWidget::tabAppliesTheDistance()
{
    m_run->type(3, QStringLiteral("-2.5"));
    m_run->press(3, Qt::Key_Tab);
    QCOMPARE(m_run->text(), QStringLiteral("0 0 1 -2.5"));
    QCOMPARE(m_run->pushed(), 1);
}

QTEST_MAIN(tst_DvSFPlaneWidget)
#include "tst_DvSFPlaneWidget.moc"
