#include "base/AccessControlList.h"
#include "base/FailingCalls.h"
#include "base/FolderCase.h"
#include "base/OrdinaryUser.h"

#include <QTest>

#include <sys/wait.h>

using FailingCalls::Scope;
using meridane::FileReader;
using meridane::FileReplacer;

/// Files on a disk that fails, and beside other processes.
class TestFileFaults : public FolderCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        makeFolder();
        QVERIFY(!replace(path("file"), "old"));
    }

    void aFailedReplacementIsReportedAndKeepsTheOldFile_data()
    {
        QTest::addColumn<QString>("function");
        for (const char* function : {"fsync", "fstat", "write"}) {
            // The status is first asked for the new file, by the lock, and then for its rights.
            QTest::newRow(function) << QString::fromLatin1(function);
        }
    }

    void aFailedReplacementIsReportedAndKeepsTheOldFile()
    {
        QFETCH(const QString, function);
        {
            const Scope scope({function.toStdString(), EIO, 1, function == QStringLiteral("fstat") ? 1 : 0});
            QCOMPARE(replace(path("file"), "new").value_or("no message"), path("file") + ": Input/output error");
        }
        QCOMPARE(contentOf("file"), QByteArray("old"));
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
    }

    void aNewFileThatMayNotBeOnTheDiskIsReported_data()
    {
        QTest::addColumn<QString>("function");
        QTest::addColumn<int>("after");
        QTest::newRow("the file is closed") << QStringLiteral("close") << 0;
        QTest::newRow("its folder is synced") << QStringLiteral("fsync") << 1;
    }

    void aNewFileThatMayNotBeOnTheDiskIsReported()
    {
        QFETCH(const QString, function);
        QFETCH(const int, after);
        {
            const Scope scope({function.toStdString(), EIO, 1, after});
            QCOMPARE(replace(path("file"), "new").value_or("no message"), path("file") + ": Input/output error");
        }
        QCOMPARE(contentOf("file"), QByteArray("new"));
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
    }

    void whatTheFileSystemNeedNotSupportIsNoFailure_data()
    {
        QTest::addColumn<QString>("function");
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("after");
        QTest::newRow("locks") << QStringLiteral("flock") << ENOLCK << 0;
        QTest::newRow("synced folders") << QStringLiteral("fsync") << EINVAL << 1;
        QTest::newRow("writes without interruption") << QStringLiteral("write") << EINTR << 0;
    }

    void whatTheFileSystemNeedNotSupportIsNoFailure()
    {
        QFETCH(const QString, function);
        QFETCH(const int, error);
        QFETCH(const int, after);
        const Scope scope({function.toStdString(), error, 1, after});
        QCOMPARE(replace(path("file"), "new").value_or("no message"), std::string("no message"));
        QCOMPARE(FailingCalls::fault.times, 0);
        QCOMPARE(contentOf("file"), QByteArray("new"));
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
    }

    void aFolderThatCannotBeReadIsNoFailure()
    {
        const QByteArray folder = m_folder->path().toLocal8Bit();
        QCOMPARE(::chmod(path("file").c_str(), 0666), 0);
        QCOMPARE(::chmod(folder.constData(), 0733), 0);
        {
            const OrdinaryUser user;
            QVERIFY(user.isReady());
            if (::geteuid() == ::getuid())
                QCOMPARE(::chmod(folder.constData(), 0333), 0);
            QCOMPARE(replace(path("file"), "new").value_or("no message"), std::string("no message"));
        }
        QCOMPARE(::chmod(folder.constData(), 0755), 0);
        QCOMPARE(contentOf("file"), QByteArray("new"));
    }

    void aReadThatFailsIsReportedAndAddsNothing()
    {
        FileReader reader;
        QVERIFY(!reader.open(path("file")));
        std::string bytes = "before";
        bool atEnd = true;
        {
            const Scope scope({"read", EIO});
            QCOMPARE(reader.read(bytes, 10, atEnd).value_or("no message"), path("file") + ": Input/output error");
        }
        QCOMPARE(bytes, std::string("before"));
        QVERIFY(!atEnd);
        const Scope scope({"read", EIO});
        QCOMPARE(meridane::readFile(path("file"), bytes).value_or("no message"), path("file") + ": Input/output error");
    }

    void anInterruptedReadGoesOn()
    {
        const Scope scope({"read", EINTR, 2});
        std::string bytes;
        QCOMPARE(meridane::readFile(path("file"), bytes).value_or("no message"), std::string("no message"));
        QCOMPARE(bytes, std::string("old"));
    }

    void aFileWithoutStatusIsReported()
    {
        const Scope scope({"fstat", EIO});
        FileReader reader;
        QCOMPARE(reader.open(path("file")).value_or("no message"), path("file") + ": Input/output error");
    }

    void aListOfRightsThatCannotBeSetLeavesTheUserAlone()
    {
        const std::string list = accessControlList({{1, 6, -1}, {2, 6, 1234}, {4, 4, -1}, {16, 6, -1}, {32, 4, -1}});
        if (::setxattr(path("file").c_str(), "system.posix_acl_access", list.data(), list.size(), 0) != 0)
            QSKIP("the file system keeps no access control lists");
        {
            const Scope scope({"fsetxattr", EPERM});
            QVERIFY(!replace(path("file"), "new"));
        }
        struct stat status { };
        QCOMPARE(::stat(path("file").c_str(), &status), 0);
        QCOMPARE(status.st_mode & 07777U, 0600U);
    }

    void aGroupThatCannotBeSetLosesWhatOthersLack()
    {
        if (::geteuid() != 0)
            QSKIP("takes the rights of the super user");
        constexpr uid_t nobody = 65534;
        QCOMPARE(::chown(path("file").c_str(), nobody, 4321), 0);
        QCOMPARE(::chmod(path("file").c_str(), 06664), 0);
        QCOMPARE(::chmod(m_folder->path().toLocal8Bit().constData(), 0777), 0);
        {
            const OrdinaryUser user;
            QVERIFY(user.isReady());
            QCOMPARE(replace(path("file"), "new").value_or("no message"), std::string("no message"));
        }
        struct stat status { };
        QCOMPARE(::stat(path("file").c_str(), &status), 0);
        QCOMPARE(status.st_uid, nobody);
        QCOMPARE(status.st_mode & 07777U, 0644U);
    }

    void aListOfRightsOfAGroupThatCannotBeSetLeavesTheUserAlone()
    {
        if (::geteuid() != 0)
            QSKIP("takes the rights of the super user");
        constexpr uid_t nobody = 65534;
        const std::string list = accessControlList({{1, 6, -1}, {2, 6, 1234}, {4, 4, -1}, {16, 6, -1}, {32, 4, -1}});
        if (::setxattr(path("file").c_str(), "system.posix_acl_access", list.data(), list.size(), 0) != 0)
            QSKIP("the file system keeps no access control lists");
        QCOMPARE(::chown(path("file").c_str(), nobody, 4321), 0);
        QCOMPARE(::chmod(m_folder->path().toLocal8Bit().constData(), 0777), 0);
        {
            const OrdinaryUser user;
            QVERIFY(user.isReady());
            QCOMPARE(replace(path("file"), "new").value_or("no message"), std::string("no message"));
        }
        struct stat status { };
        QCOMPARE(::stat(path("file").c_str(), &status), 0);
        QCOMPARE(status.st_mode & 07777U, 0600U);
    }

    void aNewFileWhoseStatusCannotBeReadGetsTheNextName()
    {
        const Scope scope({"fstat", EIO});
        QCOMPARE(replace(path("file"), "new").value_or("no message"), std::string("no message"));
        QCOMPARE(contentOf("file"), QByteArray("new"));
    }

    void theFileOfAKilledProcessIsRemoved()
    {
        leaveAHiddenFile();
        QCOMPARE(contentOf("file"), QByteArray("old"));
        QVERIFY(!replace(path("file"), "new"));
        QCOMPARE(contentOf("file"), QByteArray("new"));
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
    }

    void twoProcessesReplaceAFileOneAfterTheOther()
    {
        FileReplacer first;
        FileReplacer second;
        QVERIFY(!first.open(path("file")));
        QVERIFY(!second.open(path("file"))); // its lock keeps the first one's file
        QCOMPARE(hidden().size(), 2);
        QVERIFY(!first.write("first", 5));
        QVERIFY(!second.write("second", 6));
        QVERIFY(!second.commit());
        QCOMPARE(contentOf("file"), QByteArray("second"));
        QVERIFY(!first.commit());
        QCOMPARE(contentOf("file"), QByteArray("first"));
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
    }

    void aFileThatAnotherProcessRemovesIsMadeAgain()
    {
        // Between the making of the file and its lock, so that the other process takes it for abandoned.
        FailingCalls::beforeLock = [this] { QVERIFY(QFile::remove(m_folder->filePath(hidden().value(0)))); };
        QVERIFY(!replace(path("file"), "new"));
        QVERIFY(!FailingCalls::beforeLock);
        QCOMPARE(contentOf("file"), QByteArray("new"));
        // The other process holds the lock for a moment, to remove the file.
        const Scope scope({"flock", EWOULDBLOCK});
        QVERIFY(!replace(path("file"), "newer"));
        QCOMPARE(contentOf("file"), QByteArray("newer"));
    }

    void aHiddenNameThatCannotBeFreedIsLeftAlone_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char* kind :
            {"folder", "pipe", "pipe with a reader", "of another user", "can't be removed", "no status"})
            QTest::newRow(kind) << QString::fromLatin1(kind);
    }

    void aHiddenNameThatCannotBeFreedIsLeftAlone()
    {
        QFETCH(const QString, kind);
        leaveAHiddenFile();
        const QString name = hidden().value(0);
        const std::string taken = m_folder->filePath(name).toStdString();
        int reader = -1;
        FailingCalls::Fault fault;
        if (kind == QStringLiteral("of another user")) {
            if (::chown(taken.c_str(), 1234, 1234) != 0)
                QSKIP("only the super user can give files away");
        } else if (kind == QStringLiteral("can't be removed")) {
            fault = {"unlink", EPERM};
        } else if (kind == QStringLiteral("no status")) {
            fault = {"fstat", EIO};
        } else {
            QCOMPARE(::unlink(taken.c_str()), 0);
            const bool isFolder = kind == QStringLiteral("folder");
            QCOMPARE(isFolder ? ::mkdir(taken.c_str(), 0700) : ::mkfifo(taken.c_str(), 0600), 0);
            if (kind == QStringLiteral("pipe with a reader"))
                reader = ::open(taken.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        }
        const Scope scope(fault);
        QCOMPARE(replace(path("file"), "new").value_or("no message"), std::string("no message"));
        if (reader >= 0)
            ::close(reader);
        QCOMPARE(contentOf("file"), QByteArray("new"));
        QCOMPARE(hidden(), QStringList{name});
    }

    void aHiddenFileThatChangesIsLeftAlone_data()
    {
        QTest::addColumn<bool>("replaced");
        QTest::newRow("renamed into place") << false;
        QTest::newRow("made by another process") << true;
    }

    // The process that made it wasn't killed, and goes on while this one asks for the lock.
    void aHiddenFileThatChangesIsLeftAlone()
    {
        QFETCH(const bool, replaced);
        leaveAHiddenFile();
        const QString name = hidden().value(0);
        FailingCalls::beforeLock = [&] {
            QVERIFY(QFile::rename(m_folder->filePath(name), m_folder->filePath(QStringLiteral("finished"))));
            if (replaced)
                QVERIFY(!replace(m_folder->filePath(name).toStdString(), "of another process"));
        };
        QVERIFY(!replace(path("file"), "new"));
        QCOMPARE(contentOf("file"), QByteArray("new"));
        QCOMPARE(contentOf("finished"), QByteArray("half"));
        QCOMPARE(hidden(), replaced ? QStringList{name} : QStringList());
    }

    void withoutAFreeNameTheReplacementIsReported()
    {
        const Scope scope({"flock", EWOULDBLOCK, 1000});
        QCOMPARE(replace(path("file"), "new").value_or("no message"), path("file") + ": File exists");
        QCOMPARE(contentOf("file"), QByteArray("old"));
    }

private:
    [[nodiscard]] QStringList hidden() const { return entries().filter(QStringLiteral(".mrd-")); }

    /// Like a process that is killed while it replaces the file.
    void leaveAHiddenFile()
    {
        const pid_t child = ::fork();
        if (child == 0) {
            FileReplacer replacer;
            const bool done = !replacer.open(path("file")) && !replacer.write("half", 4);
            _exit(done ? 0 : 1);
        }
        int status = -1;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
        QCOMPARE(hidden().size(), 1);
    }
};

QTEST_APPLESS_MAIN(TestFileFaults)
#include "tst_FileFaults.moc"
