#include "FieldEditors/SFWidgets/DvSFRotationWidget.h"
#include "plugin/FieldEditors/SFWidgets/ComponentRun.h"

class TestDvSFRotationWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        auto editor = std::make_unique<DvSFRotationWidget>();
        m_editor = editor.get();
        m_run = std::make_unique<ComponentRun>(
            std::move(editor), QStringLiteral("SFRotation"), QStringLiteral("0 0 1 3.1415927"));
    }

    void cleanup()
    {
        m_run.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void halfATurnShowsRadians() { QCOMPARE(m_run->texts().constLast(), QStringLiteral("3.14159")); }

    void leavingALineLeavesTheTextUnapplied()
    {
        const QString before = m_run->text();
        for (int index = 0; index < 4; ++index) {
            m_run->type(index, QStringLiteral("2"));
            m_run->press(index, Qt::Key_Tab);
        }
        QCOMPARE(m_run->text(), before);
        QCOMPARE(m_run->pushed(), 0);
        QCOMPARE(m_run->texts(), QStringList(4, QStringLiteral("2")));
        QVERIFY(m_editor->edited());
    }

    void returnAppliesOnce()
    {
        m_run->type(3, QStringLiteral("1.5"));
        m_run->press(3, Qt::Key_Return);
        QCOMPARE(m_run->text(), QStringLiteral("0 0 1 1.5"));
        QCOMPARE(m_run->pushed(), 1);
    }

    void axisIsKeptAsTyped()
    {
        m_run->type(2, QStringLiteral("20"));
        m_run->press(2, Qt::Key_Return);
        ToolHarness::pump();
        QCOMPARE(m_run->texts().at(2), QStringLiteral("20"));
    }

    void applyIfModifiedWritesWhatWasTyped()
    {
        m_editor->applyIfModified();
        QCOMPARE(m_run->pushed(), 0);
        m_run->type(3, QStringLiteral("1.5"));
        m_editor->applyIfModified();
        QCOMPARE(m_run->text(), QStringLiteral("0 0 1 1.5"));
        QCOMPARE(m_run->pushed(), 1);
    }

private:
    std::unique_ptr<ComponentRun> m_run;
    DvSFRotationWidget* m_editor = nullptr;
};

QTEST_MAIN(TestDvSFRotationWidget)
#include "tst_DvSFRotationWidget.moc"
