#include "base/AccessControlList.h"
#include "base/FolderCase.h"
#include "base/OrdinaryUser.h"

#include <QTest>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using meridane::FileReplacer;

namespace {

mode_t modeOf(const std::string& path)
{
    struct stat status { };
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
}

} // namespace

/// Who may read and write a replaced file.
class TestFilePermissions : public FolderCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { makeFolder(); }

    void permissionsAreKept()
    {
        for (const mode_t mode : {0600U, 0640U, 0666U, 0755U}) {
            QVERIFY(!replace(path("file"), "old"));
            QCOMPARE(::chmod(path("file").c_str(), mode), 0);
            QVERIFY(!replace(path("file"), "new"));
            QCOMPARE(modeOf(path("file")), mode);
        }
    }

    void aNewFileGetsTheUsualPermissions()
    {
        const mode_t mask = ::umask(027);
        const auto message = replace(path("file"), "new");
        ::umask(mask);
        QVERIFY(!message);
        QCOMPARE(modeOf(path("file")), mode_t{0640});
    }

    void onlyTheUserCanReadWhatIsBeingWritten_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::newRow("private") << 0600U;
        QTest::newRow("for the group") << 0640U;
        QTest::newRow("for all") << 0644U;
    }

    void onlyTheUserCanReadWhatIsBeingWritten()
    {
        QFETCH(const uint, mode);
        QVERIFY(!replace(path("file"), "old"));
        QCOMPARE(::chmod(path("file").c_str(), mode), 0);
        const mode_t mask = ::umask(0);
        FileReplacer replacer;
        const auto message = replacer.open(path("file"));
        ::umask(mask);
        QVERIFY(!message);
        QVERIFY(!replacer.write("new", 3));
        const QStringList names = entries();
        QCOMPARE(names.size(), 2);
        QCOMPARE(modeOf(path(names.front().toLatin1().constData())), mode_t{0600});
        QVERIFY(!replacer.commit());
        QCOMPARE(modeOf(path("file")), mode_t{mode});
    }

    void ownerAndGroupAreKept()
    {
        if (::geteuid() != 0)
            QSKIP("takes the rights of the super user");
        QVERIFY(!replace(path("file"), "old"));
        QCOMPARE(::chown(path("file").c_str(), 1234, 4321), 0);
        QCOMPARE(::chmod(path("file").c_str(), 06640), 0);
        QVERIFY(!replace(path("file"), "new"));
        struct stat status { };
        QCOMPARE(::stat(path("file").c_str(), &status), 0);
        QCOMPARE(status.st_uid, uid_t{1234});
        QCOMPARE(status.st_gid, gid_t{4321});
        QCOMPARE(status.st_mode & 07777U, 06640U);
    }

    void nobodyGainsAccessWhereTheGroupCannotBeKept_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::addColumn<uint>("expected");
        QTest::newRow("the group alone could read") << 0662U << 0622U;
        QTest::newRow("all but the group could read") << 0626U << 0622U;
        QTest::newRow("all could read") << 0666U << 0666U;
        QTest::newRow("lent rights") << 06666U << 0666U;
    }

    void nobodyGainsAccessWhereTheGroupCannotBeKept()
    {
        QFETCH(const uint, mode);
        QFETCH(const uint, expected);
        if (::geteuid() != 0)
            QSKIP("takes the rights of the super user");
        QVERIFY(!replace(path("file"), "old"));
        QCOMPARE(::chown(path("file").c_str(), 1234, 4321), 0);
        QCOMPARE(::chmod(path("file").c_str(), mode), 0);
        QCOMPARE(::chmod(m_folder->path().toLocal8Bit().constData(), 0777), 0);
        {
            const OrdinaryUser user;
            QVERIFY(user.isReady());
            QCOMPARE(replace(path("file"), "new").value_or("no message"), std::string("no message"));
        }
        struct stat status { };
        QCOMPARE(::stat(path("file").c_str(), &status), 0);
        QVERIFY(status.st_gid != gid_t{4321});
        QCOMPARE(status.st_mode & 07777U, expected);
        QCOMPARE(contentOf("file"), QByteArray("new"));
    }

    void theAccessControlListIsKept()
    {
        // One user may read and write, the group nothing, although the mode shows rw- for it.
        const std::string list = accessControlList({{1, 6, -1}, {2, 6, 1234}, {4, 0, -1}, {16, 6, -1}, {32, 0, -1}});
        QVERIFY(!replace(path("file"), "old"));
        if (::setxattr(path("file").c_str(), "system.posix_acl_access", list.data(), list.size(), 0) != 0)
            QSKIP("the file system keeps no access control lists");
        QCOMPARE(modeOf(path("file")), mode_t{0660});
        QVERIFY(!replace(path("file"), "new"));
        std::string kept(1000, '\0');
        const ssize_t size = ::getxattr(path("file").c_str(), "system.posix_acl_access", kept.data(), kept.size());
        QCOMPARE(size, static_cast<ssize_t>(list.size()));
        kept.resize(list.size());
        QVERIFY(kept == list);
    }

    void aFolderWithoutWritePermissionIsReported()
    {
        QVERIFY(!replace(path("file"), "old"));
        QCOMPARE(::chmod(path("file").c_str(), 0666), 0);
        QCOMPARE(::chmod(m_folder->path().toLocal8Bit().constData(), 0555), 0);
        {
            const OrdinaryUser user;
            QVERIFY(user.isReady());
            QCOMPARE(replace(path("file"), "new").value_or("no message"), path("file") + ": Permission denied");
            QCOMPARE(replace(path("other"), "new").value_or("no message"), path("other") + ": Permission denied");
        }
        QCOMPARE(::chmod(m_folder->path().toLocal8Bit().constData(), 0755), 0);
        QCOMPARE(contentOf("file"), QByteArray("old"));
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
    }

    void aFileWithoutWritePermissionIsReported()
    {
        QVERIFY(!replace(path("file"), "old"));
        QCOMPARE(::chmod(path("file").c_str(), 0444), 0);
        QCOMPARE(::chmod(m_folder->path().toLocal8Bit().constData(), 0777), 0);
        const OrdinaryUser user;
        QVERIFY(user.isReady());
        QCOMPARE(replace(path("file"), "new").value_or("no message"), path("file") + ": Permission denied");
        QCOMPARE(contentOf("file"), QByteArray("old"));
    }
};

QTEST_APPLESS_MAIN(TestFilePermissions)
#include "tst_FilePermissions.moc"
