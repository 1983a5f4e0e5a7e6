#include "Patience.h"
#include "TestFiles.h"
#include "app/AppScenes.h"

#include "orvane/app/files/disk/DiskWatch.h"
#include "orvane/app/files/disk/FileCheck.h"
#include "orvane/app/scene/Session.h"
#include "orvane/extender/OrvDocument.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using State = DiskWatch::State;

// What counts as a change of the open file, whoever changes it and however.
class TestDiskWatch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_session = std::make_unique<Session>(AppSettings::Mode::None);
        m_fileName = m_folder->filePath(QStringLiteral("scene.mrd"));
        writeFile(m_fileName, before);
        document().open(OrvDocument::makeJournal(*AppScenes::robot()), m_fileName, hashOf(before));
        m_watch = std::make_unique<DiskWatch>(document());
        m_changes = std::make_unique<QSignalSpy>(m_watch.get(), &DiskWatch::changed);
    }

    void cleanup()
    {
        m_changes.reset();
        m_watch.reset();
        m_session.reset();
    }

    void aChangeIsReportedHoweverItIsMade_data()
    {
        QTest::addColumn<QString>("change");
        for (const char* const change : {"written in place", "renamed over it", "deleted and made again", "appended",
                 "truncated", "ten quick changes", "the same size"})
            QTest::newRow(change) << QString::fromLatin1(change);
    }

    void aChangeIsReportedHoweverItIsMade()
    {
        QFETCH(const QString, change);
        if (change == QStringLiteral("written in place")) {
            writeFile(m_fileName, after);
        } else if (change == QStringLiteral("renamed over it")) {
            renameOver(after);
        } else if (change == QStringLiteral("deleted and made again")) {
            QVERIFY(QFile::remove(m_fileName));
            writeFile(m_fileName, after);
        } else if (change == QStringLiteral("appended")) {
            append("# more\n");
        } else if (change == QStringLiteral("truncated")) {
            QVERIFY(QFile::resize(m_fileName, 10));
        } else if (change == QStringLiteral("the same size")) {
            writeFile(m_fileName, QByteArray(before).replace("robot", "ROBOT"));
        } else {
            for (int i = 0; i < 10; ++i)
                renameOver(after + QByteArray::number(i));
        }
        QTRY_COMPARE(m_watch->state(), State::Changed);
        QCOMPARE(m_changes->size(), 1);
        QVERIFY(!document().isModified());
    }

    void equalContentIsNoChange_data()
    {
        QTest::addColumn<QString>("change");
        for (const char* const change : {"touched", "written again", "renamed over it", "another file of the folder"})
            QTest::newRow(change) << QString::fromLatin1(change);
    }

    void equalContentIsNoChange()
    {
        QFETCH(const QString, change);
        if (change == QStringLiteral("touched")) {
            QFile file(m_fileName);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(QDateTime::fromSecsSinceEpoch(1000), QFileDevice::FileModificationTime));
        } else if (change == QStringLiteral("written again")) {
            writeFile(m_fileName, before);
        } else if (change == QStringLiteral("renamed over it")) {
            renameOver(before);
        } else {
            writeFile(m_folder->filePath(QStringLiteral("other.mrd")), after);
        }
        // Another watch sees the next change; had the first one reported something, it would have done so before.
        letPass();
        QCOMPARE(m_watch->state(), State::Same);
        QVERIFY(m_changes->isEmpty());
    }

    void whatIsNoFileIsReportedUntilItComesBack_data()
    {
        QTest::addColumn<State>("state");
        QTest::newRow("deleted") << State::Missing;
        QTest::newRow("a folder in its place") << State::NoFile;
        QTest::newRow("not readable") << State::Unreadable;
    }

    void whatIsNoFileIsReportedUntilItComesBack()
    {
        QFETCH(const State, state);
        if (state == State::Unreadable && ::geteuid() == 0)
            QSKIP("The superuser reads every file.");
        if (state == State::Unreadable)
            QVERIFY(QFile::setPermissions(m_fileName, {}));
        else
            QVERIFY(QFile::remove(m_fileName));
        if (state == State::NoFile)
            QVERIFY(QDir().mkdir(m_fileName));
        QTRY_COMPARE(m_watch->state(), state);
        QVERIFY(!m_watch->reason().isEmpty());
        // What is in no file any more isn't saved.
        QCOMPARE(document().isModified(), state != State::Unreadable);

        if (state == State::NoFile)
            QVERIFY(QDir().rmdir(m_fileName));
        if (state == State::Unreadable)
            QVERIFY(QFile::setPermissions(m_fileName, QFile::ReadOwner | QFile::WriteOwner));
        else
            writeFile(m_fileName, before);
        QTRY_COMPARE(m_watch->state(), State::Same);
        QVERIFY(!document().isModified());
        QVERIFY(m_watch->reason().isEmpty());
    }

    void aFileWhoseFolderComesBackIsWatchedAgain()
    {
        const QString folder = m_folder->filePath(QStringLiteral("below"));
        const QString fileName = folder + QStringLiteral("/scene.mrd");
        QVERIFY(QDir().mkdir(folder));
        writeFile(fileName, before);
        document().setSaved(fileName, hashOf(before));
        QVERIFY(QDir(folder).removeRecursively());
        QTRY_COMPARE(m_watch->state(), State::Missing);
        QVERIFY(QDir().mkdir(folder));
        writeFile(fileName, after);
        QTRY_COMPARE(m_watch->state(), State::Changed);
    }

    void theTargetOfALinkIsWatched()
    {
        const QString folder = m_folder->filePath(QStringLiteral("elsewhere"));
        const QString target = folder + QStringLiteral("/target.mrd");
        const QString link = m_folder->filePath(QStringLiteral("link.mrd"));
        QVERIFY(QDir().mkdir(folder));
        writeFile(target, before);
        QVERIFY(QFile::link(target, link));
        document().setSaved(link, hashOf(before));
        letPass();
        writeFile(folder + QStringLiteral("/new"), after);
        QCOMPARE(::rename(qPrintable(folder + QStringLiteral("/new")), qPrintable(target)), 0);
        QTRY_COMPARE(m_watch->state(), State::Changed);
    }

    void equalContentEndsTheChange()
    {
        writeFile(m_fileName, after);
        QTRY_COMPARE(m_watch->state(), State::Changed);
        writeFile(m_fileName, before);
        QTRY_COMPARE(m_watch->state(), State::Same);
        QCOMPARE(m_changes->size(), 2);
    }

    void eachFurtherChangeIsReported()
    {
        writeFile(m_fileName, after);
        QTRY_COMPARE(m_changes->size(), 1);
        writeFile(m_fileName, after + "# more\n");
        QTRY_COMPARE(m_changes->size(), 2);
        QCOMPARE(m_watch->state(), State::Changed);
    }

    void whatTheUserKeepsIsNotReportedAgain()
    {
        writeFile(m_fileName, after);
        QTRY_COMPARE(m_watch->state(), State::Changed);
        const DiskContent changed{DiskContent::Kind::File, hashOf(after), {}};
        QVERIFY(m_watch->isUnseen(changed));
        m_watch->keep();
        QCOMPARE(m_watch->state(), State::Kept);
        QVERIFY(!m_watch->isUnseen(changed));
        QVERIFY(document().isModified());
        m_changes->clear();
        renameOver(after);
        letPass();
        QVERIFY(m_changes->isEmpty());
        writeFile(m_fileName, after + "# more\n");
        QTRY_COMPARE(m_watch->state(), State::Changed);
        writeFile(m_fileName, after);
        QTRY_COMPARE(m_watch->state(), State::Kept);
        writeFile(m_fileName, before);
        QTRY_COMPARE(m_watch->state(), State::Same);
        QVERIFY(!document().isModified());
    }

    void whatIsSavedHereIsNoChange()
    {
        writeFile(m_fileName, after);
        document().setSaved(m_fileName, hashOf(after));
        m_changes->clear();
        letPass();
        QCOMPARE(m_watch->state(), State::Same);
        QVERIFY(m_changes->isEmpty());
    }

    void aChangeFromBeforeTheWatchIsSeen()
    {
        document().setSaved(m_fileName, hashOf(after));
        QTRY_COMPARE(m_watch->state(), State::Changed);
    }

    void aSceneWithoutAFileIsNotWatched()
    {
        document().newScene();
        m_changes->clear();
        QVERIFY(QFile::remove(m_fileName));
        letPass();
        QCOMPARE(m_watch->state(), State::Same);
        QVERIFY(m_changes->isEmpty());
    }

private:
    const QByteArray before = AppScenes::robotText;
    const QByteArray after = QByteArray(AppScenes::robotText) + "Mesh \"new\" {}\n";

    static meridane::ContentHash hashOf(const QByteArray& content)
    {
        return meridane::ContentHash::of({content.constData(), static_cast<std::size_t>(content.size())});
    }

    SceneDocument& document() { return m_session->document(); }

    void renameOver(const QByteArray& bytes)
    {
        const QString name = m_folder->filePath(QStringLiteral("written"));
        writeFile(name, bytes);
        QCOMPARE(::rename(qPrintable(name), qPrintable(m_fileName)), 0);
    }

    void append(const QByteArray& bytes)
    {
        QFile file(m_fileName);
        QVERIFY(file.open(QIODevice::Append) && file.write(bytes) == bytes.size());
    }

    /// Waits until the watch has judged what has happened so far.
    void letPass()
    {
        FileWatch other;
        QSignalSpy settled(&other, &FileWatch::settled);
        other.watch(document().fileName().isEmpty() ? m_fileName : document().fileName());
        QTRY_COMPARE(settled.size(), 1);
        FileCheck check(m_fileName, nullptr);
        QSignalSpy checked(&check, &FileCheck::finished);
        check.start();
        QTRY_COMPARE(checked.size(), 1);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<DiskWatch> m_watch;
    std::unique_ptr<QSignalSpy> m_changes;
    QString m_fileName;
};

QTEST_MAIN(TestDiskWatch)
#include "tst_DiskWatch.moc"
