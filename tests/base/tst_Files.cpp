#include "meridane/base/Files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <csignal>
#include <initializer_list>
#include <memory>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using meridane::FileReader;
using meridane::FileReplacer;

namespace {

/// Takes the rights of the super user away as long as it lives, so that permissions count.
class OrdinaryUser {
public:
    OrdinaryUser()
        : m_privileged(::geteuid() == 0)
    {
        constexpr uid_t nobody = 65534;
        if (m_privileged)
            m_ready = ::seteuid(nobody) == 0;
    }
    ~OrdinaryUser()
    {
        if (m_privileged && ::seteuid(0) != 0)
            qFatal("the rights can't be taken back");
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    [[nodiscard]] bool isReady() const { return m_ready; }

private:
    bool m_privileged;
    bool m_ready = true;
};

std::optional<std::string> replace(const std::string& path, const std::string& bytes)
{
    FileReplacer replacer;
    if (auto message = replacer.open(path))
        return message;
    if (auto message = replacer.write(bytes.data(), bytes.size()))
        return message;
    return replacer.commit();
}

struct AclEntry {
    quint16 tag; // 1 owner, 2 a user, 4 group, 16 mask, 32 others
    quint16 permissions;
    qint32 id; // of the user, or -1
};

/// The bytes of an access control list, as the kernel takes them.
std::string accessControlList(std::initializer_list<AclEntry> entries)
{
    const quint32 version = qToLittleEndian(quint32{2});
    std::string bytes(reinterpret_cast<const char*>(&version), sizeof version);
    for (AclEntry entry : entries) {
        entry = {qToLittleEndian(entry.tag), qToLittleEndian(entry.permissions), qToLittleEndian(entry.id)};
        bytes.append(reinterpret_cast<const char*>(&entry), sizeof entry);
    }
    return bytes;
}

mode_t modeOf(const std::string& path)
{
    struct stat status { };
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
}

} // namespace

class tst_Files : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        // For the tests that give their rights away.
        QCOMPARE(::chmod(m_folder->path().toLocal8Bit().constData(), 0755), 0);
    }

    void readsAWholeFile()
    {
        const std::string bytes = std::string("one\0two\n", 8) + std::string(5000000, 'x');
        QVERIFY(!replace(path("file"), bytes));
        std::string read = "what was there before";
        QVERIFY(!meridane::readFile(path("file"), read));
        QVERIFY(read == bytes);
    }

    void readsAnEmptyFile()
    {
        QVERIFY(!replace(path("file"), {}));
        std::string read = "x";
        QVERIFY(!meridane::readFile(path("file"), read));
        QVERIFY(read.empty());
    }

    void readsInSlices()
    {
        QVERIFY(!replace(path("file"), "abcdefg"));
        FileReader reader;
        QVERIFY(!reader.open(path("file")));
        QCOMPARE(reader.size(), std::size_t{7});
        std::string bytes = ">";
        bool atEnd = true;
        QVERIFY(!reader.read(bytes, 4, atEnd));
        QCOMPARE(bytes, std::string(">abcd"));
        QVERIFY(!atEnd);
        QVERIFY(!reader.read(bytes, 4, atEnd));
        QCOMPARE(bytes, std::string(">abcdefg"));
        QVERIFY(atEnd);
    }

    void aReaderCanOpenOneFileAfterTheOther()
    {
        QVERIFY(!replace(path("one"), "1"));
        QVERIFY(!replace(path("two"), "22"));
        FileReader reader;
        QVERIFY(!reader.open(path("one")));
        QVERIFY(!reader.open(path("two")));
        QCOMPARE(reader.size(), std::size_t{2});
    }

    void whatCannotBeReadIsReportedWithItsPath_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("missing") << QByteArray("missing.mrd") << QByteArray("No such file or directory");
        QTest::newRow("in a missing folder") << QByteArray("missing/x.mrd") << QByteArray("No such file or directory");
        QTest::newRow("folder") << QByteArray("folder") << QByteArray("is a directory");
        QTest::newRow("below a file") << QByteArray("file/x.mrd") << QByteArray("Not a directory");
        QTest::newRow("link to nothing") << QByteArray("dangling") << QByteArray("No such file or directory");
        QTest::newRow("pipe") << QByteArray("pipe") << QByteArray("is no regular file");
        QTest::newRow("circle of links") << QByteArray("circle") << QByteArray("Too many levels of symbolic links");
        QTest::newRow("long name") << QByteArray(300, 'n') << QByteArray("File name too long");
    }

    void whatCannotBeReadIsReportedWithItsPath()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, reason);
        makeOddities();
        const std::string file = path(name.constData());
        std::string bytes;
        QCOMPARE(meridane::readFile(file, bytes).value_or("no message"), file + ": " + reason.toStdString());
    }

    void anEmptyNameIsReported()
    {
        std::string bytes;
        QCOMPARE(meridane::readFile({}, bytes).value_or("no message"),
            std::string("no file name: No such file or directory"));
        QVERIFY(replace({}, "x").has_value());
    }

    void aFileWithoutReadPermissionIsReported()
    {
        QVERIFY(!replace(path("secret"), "x"));
        QCOMPARE(::chmod(path("secret").c_str(), 0), 0);
        const OrdinaryUser user;
        QVERIFY(user.isReady());
        std::string bytes;
        QCOMPARE(
            meridane::readFile(path("secret"), bytes).value_or("no message"), path("secret") + ": Permission denied");
    }

    void replacesAFileWholeAndLeavesNothingElse()
    {
        QVERIFY(!replace(path("file"), "the old and longer content"));
        QVERIFY(!replace(path("file"), "new"));
        QCOMPARE(contentOf("file"), QByteArray("new"));
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
    }

    void writesInManyPartsAndOfAnySize()
    {
        FileReplacer replacer;
        QVERIFY(!replacer.open(path("file")));
        const std::string part(3000000, 'y');
        for (int i = 0; i < 3; ++i)
            QVERIFY(!replacer.write(part.data(), part.size()));
        QVERIFY(!replacer.write(nullptr, 0));
        QVERIFY(!replacer.commit());
        QCOMPARE(contentOf("file").size(), 9000000);
    }

    void theOldFileStaysUntilTheNewOneIsCommitted()
    {
        QVERIFY(!replace(path("file"), "old"));
        {
            FileReplacer replacer;
            QVERIFY(!replacer.open(path("file")));
            QVERIFY(!replacer.write("new", 3));
            QCOMPARE(contentOf("file"), QByteArray("old"));
        }
        QCOMPARE(contentOf("file"), QByteArray("old"));
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
    }

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

    void otherHardLinksKeepTheOldContent()
    {
        QVERIFY(!replace(path("file"), "old"));
        QCOMPARE(::link(path("file").c_str(), path("link").c_str()), 0);
        QVERIFY(!replace(path("file"), "new"));
        QCOMPARE(contentOf("file"), QByteArray("new"));
        QCOMPARE(contentOf("link"), QByteArray("old"));
    }

    void symbolicLinksAreFollowed_data()
    {
        QTest::addColumn<QByteArray>("target");
        QTest::newRow("beside") << QByteArray("file");
        QTest::newRow("in another folder") << QByteArray("folder/file");
        QTest::newRow("to a file that isn't there yet") << QByteArray("folder/new");
    }

    void symbolicLinksAreFollowed()
    {
        QFETCH(QByteArray, target);
        makeOddities();
        QVERIFY(!replace(path("folder/file"), "old"));
        QCOMPARE(::symlink(target.constData(), path("second").c_str()), 0);
        QCOMPARE(::symlink(path("second").c_str(), path("first").c_str()), 0);
        QVERIFY(!replace(path("first"), "new"));
        QVERIFY(QFileInfo(QString::fromStdString(path("first"))).isSymLink());
        QVERIFY(QFileInfo(QString::fromStdString(path("second"))).isSymLink());
        QCOMPARE(contentOf(target.constData()), QByteArray("new"));
        QVERIFY(!QFileInfo(QString::fromStdString(path(target.constData()))).isSymLink());
    }

    void whatCannotBeWrittenIsReportedAndLeftAlone_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("folder") << QByteArray("folder") << QByteArray("is a directory");
        QTest::newRow("in a missing folder") << QByteArray("missing/x.mrd") << QByteArray("No such file or directory");
        QTest::newRow("below a file") << QByteArray("file/x.mrd") << QByteArray("Not a directory");
        QTest::newRow("pipe") << QByteArray("pipe") << QByteArray("is no regular file");
        QTest::newRow("circle of links") << QByteArray("circle") << QByteArray("Too many levels of symbolic links");
        QTest::newRow("long name") << QByteArray(300, 'n') << QByteArray("File name too long");
    }

    void whatCannotBeWrittenIsReportedAndLeftAlone()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, reason);
        makeOddities();
        const QStringList before = entries();
        const std::string file = path(name.constData());
        QCOMPARE(replace(file, "x").value_or("no message"), file + ": " + reason.toStdString());
        QCOMPARE(entries(), before);
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

    void aFullDiskIsReported()
    {
        FileReplacer replacer;
        QVERIFY(!replacer.open(path("file")));
        struct rlimit old { };
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &old), 0);
        const rlimit small{100000, old.rlim_max};
        const auto handler = ::signal(SIGXFSZ, SIG_IGN);
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
        const std::string bytes(200000, 'x');
        const auto message = replacer.write(bytes.data(), bytes.size());
        ::setrlimit(RLIMIT_FSIZE, &old);
        ::signal(SIGXFSZ, handler);
        QCOMPARE(message.value_or("no message"), path("file") + ": File too large");
    }

private:
    [[nodiscard]] std::string path(const char* name) const
    {
        return m_folder->filePath(QString::fromLatin1(name)).toStdString();
    }
    [[nodiscard]] QByteArray contentOf(const char* name) const
    {
        QFile file(QString::fromStdString(path(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    [[nodiscard]] QStringList entries() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    void makeOddities()
    {
        QVERIFY(!replace(path("file"), "old"));
        QCOMPARE(::mkdir(path("folder").c_str(), 0755), 0);
        QCOMPARE(::mkfifo(path("pipe").c_str(), 0644), 0);
        QCOMPARE(::symlink("nothing", path("dangling").c_str()), 0);
        QCOMPARE(::symlink("circle", path("circle").c_str()), 0);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_APPLESS_MAIN(tst_Files)
#include "tst_Files.moc"
