#include "base/FolderCase.h"

#include "orvane/app/recovery/RecoveryFolder.h"

#include <QFileInfo>

#include <sys/stat.h>

/// Files of recovery, and who may lock them. A lock belongs to the open file, so that one process can try all.
class TestRecoveryFolder : public FolderCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { makeFolder(); }
    void cleanup() { qunsetenv("XDG_STATE_HOME"); }

    void isInTheFolderForTheStateOfPrograms()
    {
        qputenv("XDG_STATE_HOME", "/state");
        QCOMPARE(RecoveryFolder::defaultPath(), QStringLiteral("/state/orvane/recovery"));
        qputenv("XDG_STATE_HOME", "not/absolute");
        const QString usual = QDir::homePath() + QStringLiteral("/.local/state/orvane/recovery");
        QCOMPARE(RecoveryFolder::defaultPath(), usual);
        qunsetenv("XDG_STATE_HOME");
        QCOMPARE(RecoveryFolder::defaultPath(), usual);
    }

    void makesFoldersAndFilesForTheUserAlone()
    {
        const RecoveryFolder folder(recoveryPath());
        const auto file = folder.createFile();
        QVERIFY2(file, qPrintable(file.error()));
        QCOMPARE(permissions(recoveryPath()), 0700U);
        QCOMPARE(permissions(file.value()->fileName()), 0600U);
    }

    void eachFileHasANameOfItsOwn()
    {
        const RecoveryFolder folder(recoveryPath());
        const auto one = folder.createFile();
        const auto other = folder.createFile();
        QVERIFY(one && other);
        QVERIFY(one.value()->fileName() != other.value()->fileName());
    }

    void onlyFilesThatNobodyUsesAreAbandoned()
    {
        const RecoveryFolder folder(recoveryPath());
        QVERIFY(folder.lockAbandoned().empty()); // not even the folder is there
        auto used = folder.createFile();
        QVERIFY(used);
        const QString name = RecoveryFolder::finalName(used.value()->fileName());
        QVERIFY(name.endsWith(QStringLiteral(".recovery")));
        QVERIFY(used.value()->rename(name));
        QCOMPARE(used.value()->fileName(), name);
        QVERIFY(folder.lockAbandoned().empty());
        used = orvane::Failure{};
        {
            const auto abandoned = folder.lockAbandoned();
            QCOMPARE(abandoned.size(), std::size_t{1});
            QCOMPARE(abandoned.front()->fileName(), name);
            QVERIFY(folder.lockAbandoned().empty()); // another program looks at it already
        }
        folder.lockAbandoned().front()->remove();
        QVERIFY(!QFileInfo::exists(name));
    }

    void aFileWithoutAFinalNameIsDeletedOnceNobodyUsesIt()
    {
        const RecoveryFolder folder(recoveryPath());
        auto used = folder.createFile();
        QVERIFY(used);
        const QString name = used.value()->fileName();
        QVERIFY(folder.lockAbandoned().empty());
        QVERIFY(QFileInfo::exists(name));
        used = orvane::Failure{};
        QVERIFY(folder.lockAbandoned().empty());
        QVERIFY(!QFileInfo::exists(name));
    }

    void aFileTakesThePlaceOfAnother()
    {
        const RecoveryFolder folder(recoveryPath());
        const auto old = folder.createFile();
        const auto next = folder.createFile();
        QVERIFY(old && next);
        const QString name = RecoveryFolder::finalName(old.value()->fileName());
        QVERIFY(old.value()->rename(name));
        QVERIFY(next.value()->append("next"));
        QVERIFY(next.value()->rename(name));
        old.value()->remove(); // which isn't there any more
        QCOMPARE(QDir(recoveryPath()).entryList(QDir::Files), QStringList(QFileInfo(name).fileName()));
        QVERIFY(!next.value()->rename(recoveryPath() + QStringLiteral("/no/such/folder")));
        QCOMPARE(next.value()->fileName(), name);
    }

    void leavesWhatIsNoFileOfItsOwnAlone()
    {
        const RecoveryFolder folder(m_folder->path());
        makeOddities();
        QCOMPARE(::mkfifo(path("pipe.recovery").c_str(), 0644), 0);
        QCOMPARE(::mkdir(path("folder.recovery").c_str(), 0755), 0);
        QCOMPARE(::symlink("file", path("link.recovery").c_str()), 0);
        QVERIFY(folder.lockAbandoned().empty());
    }

    void saysWhyThereIsNoFolder()
    {
        QVERIFY(!replace(path("file"), "old"));
        const QString name = QString::fromStdString(path("file"));
        const auto inFile = RecoveryFolder(name + QStringLiteral("/recovery")).createFile();
        QVERIFY(!inFile);
        QVERIFY2(inFile.error().startsWith(name + QStringLiteral("/recovery: ")), qPrintable(inFile.error()));
        const auto asFile = RecoveryFolder(name).createFile();
        QVERIFY(!asFile);
        QVERIFY2(asFile.error().endsWith(QStringLiteral(": Not a directory")), qPrintable(asFile.error()));
    }

    void appendsAndDeletes()
    {
        const RecoveryFolder folder(recoveryPath());
        const auto file = folder.createFile();
        QVERIFY(file);
        QVERIFY(file.value()->append("one "));
        QVERIFY(file.value()->append("two"));
        QVERIFY(file.value()->sync());
        QFile content(file.value()->fileName());
        QVERIFY(content.open(QIODevice::ReadOnly));
        QCOMPARE(content.readAll(), QByteArray("one two"));
        file.value()->remove();
        QVERIFY(!content.exists());
    }

    void aFileThatWasReplacedIsNotDeleted()
    {
        const RecoveryFolder folder(recoveryPath());
        const auto file = folder.createFile();
        QVERIFY(file);
        const QString name = file.value()->fileName();
        QVERIFY(QFile::remove(name));
        QVERIFY(!replace(name.toStdString(), "of somebody else"));
        file.value()->remove();
        QVERIFY(QFileInfo::exists(name));
    }

private:
    [[nodiscard]] QString recoveryPath() const { return m_folder->filePath(QStringLiteral("state/orvane/recovery")); }

    static unsigned permissions(const QString& name)
    {
        struct stat status = {};
        return ::stat(name.toStdString().c_str(), &status) == 0 ? status.st_mode & 0777U : 0U;
    }
};

QTEST_APPLESS_MAIN(TestRecoveryFolder)
#include "tst_RecoveryFolder.moc"
