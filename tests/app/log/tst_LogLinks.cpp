#include "app/log/LogCase.h"

#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"

#include <QAction>
#include <QDesktopServices>
#include <QUrl>

/// Paths in the lines of the log that lead somewhere.
class TestLogLinks : public LogCase {
    Q_OBJECT

    QList<QUrl> m_opened;

public Q_SLOTS:
    void noteOpened(const QUrl& url) { m_opened.append(url); }

private Q_SLOTS:
    void init()
    {
        m_opened.clear();
        QDesktopServices::setUrlHandler(u"file"_s, this, "noteOpened");
        startBesideRobot();
    }
    void cleanup()
    {
        QDesktopServices::unsetUrlHandler(u"file"_s);
        endTool();
    }

    void aNodeOrFieldIsSelectedByAClick()
    {
        QCOMPARE(open(m_robot), QString());
        show();
        add(u"look at /robot/hand, then at /robot/arm.indices: both are empty"_s);
        QTRY_COMPARE(model()->rowCount(), 1);
        clickText(0, u"/robot/hand"_s);
        QCOMPARE(m_session->services().getSelectedNode(), static_cast<NxFieldContainer*>(robot()->getChild(1)));
        clickText(0, u"/robot/arm.indices"_s);
        QCOMPARE(m_session->services().getSelectedNode(), static_cast<NxFieldContainer*>(robot()->getChild(0)));
        QVERIFY(m_session->services().getSelectedField() != nullptr);
        QCOMPARE(m_session->services().getSelectedField()->getContainer(),
            static_cast<NxFieldContainer*>(robot()->getChild(0)));
    }

    void aPathThatIsNoNodeIsNoLink()
    {
        QCOMPARE(open(m_robot), QString());
        show();
        add(u"nothing at /nowhere/at/all"_s);
        QTRY_COMPARE(model()->rowCount(), 1);
        clickText(0, u"/nowhere"_s);
        QVERIFY(m_session->services().getSelectedNode() == nullptr);
        QVERIFY(m_opened.isEmpty());
    }

    void aFileIsOpenedByAClickAndByReturn()
    {
        show();
        add(m_robot + u":3:5: something is wrong"_s);
        QTRY_COMPARE(model()->rowCount(), 1);
        // The file is looked for in a thread.
        QTRY_VERIFY(!panel()->links().of(textOf(0)).isEmpty());
        clickText(0, m_robot);
        QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(m_robot)});
        QTest::keyClick(view(), Qt::Key_Return);
        QCOMPARE(m_opened.size(), 2);
        panel()->findChild<QAction*>(u"log.openFolder"_s)->trigger();
        QCOMPARE(m_opened.last(), QUrl::fromLocalFile(m_folder->path()));
    }

    void aProgramIsNotRun()
    {
        const QString program = filePath("run.sh");
        writeFile(program, "#!/bin/sh\n");
        QFile::setPermissions(program, QFile::permissions(program) | QFile::ExeUser | QFile::ExeOwner);
        show();
        add(u"see "_s + program);
        QTRY_COMPARE(model()->rowCount(), 1);
        QTRY_VERIFY(!panel()->links().of(textOf(0)).isEmpty());
        clickText(0, program);
        QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(m_folder->path())});
    }
};

QTEST_MAIN(TestLogLinks)
#include "tst_LogLinks.moc"
