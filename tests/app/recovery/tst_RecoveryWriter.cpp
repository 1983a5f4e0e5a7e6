#include "base/FileSizeLimit.h"
#include "base/FolderCase.h"

#include "orvane/app/recovery/RecoveryFolder.h"
#include "orvane/app/recovery/RecoveryThread.h"
#include "orvane/app/recovery/RecoveryWriter.h"

#include <QFileInfo>
#include <QSignalSpy>

class TestRecoveryWriter : public FolderCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        makeFolder();
        m_thread = std::make_unique<RecoveryThread>();
    }

    void writesInOrder()
    {
        const auto writer = makeWriter();
        QByteArray expected;
        for (int i = 0; i < 1000; ++i) {
            const QByteArray part = QByteArray::number(i);
            writer->append(part.toStdString());
            expected += part;
        }
        QCOMPARE(writer->bytes(), static_cast<std::size_t>(expected.size()));
        QVERIFY(writer->waitingBytes() <= writer->bytes());
        QTRY_COMPARE(writer->waitingBytes(), std::size_t{0});
        QCOMPARE(content(), expected);
    }

    void writesEverythingBeforeTheThreadEnds()
    {
        auto writer = makeWriter();
        const QByteArray part(100'000, 'x');
        for (int i = 0; i < 100; ++i)
            writer->append(part.toStdString());
        writer.reset();
        m_thread.reset();
        QCOMPARE(content().size(), 100 * part.size());
        // It isn't locked any more.
        QVERIFY(LockedFile::lock(m_fileName) != nullptr);
    }

    void renamesTheFile()
    {
        auto writer = makeWriter();
        writer->append("one");
        const QString name = RecoveryFolder::finalName(m_fileName);
        writer->rename(name);
        QCOMPARE(writer->fileName(), name);
        writer->append(" two");
        QVERIFY(!writer->isDone());
        QTRY_VERIFY(writer->isDone());
        QVERIFY(!QFileInfo::exists(std::exchange(m_fileName, name)));
        QCOMPARE(content(), QByteArray("one two"));
        const QSignalSpy failed(writer.get(), &RecoveryWriter::failed);
        writer->rename(name + QStringLiteral("/no/such/folder"));
        QTRY_COMPARE(failed.size(), 1);
    }

    void deletesTheFile()
    {
        auto writer = makeWriter();
        writer->append("something");
        writer->discard();
        writer.reset();
        m_thread.reset();
        QVERIFY(!QFileInfo::exists(m_fileName));
    }

    void reportsAFullDiskOnce()
    {
        const auto writer = makeWriter();
        const QSignalSpy failed(writer.get(), &RecoveryWriter::failed);
        const FileSizeLimit limit(10);
        writer->append("1234");
        writer->append("5678");
        writer->append("1234");
        writer->append("5678");
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(failed.front().front().toString(), m_fileName + QStringLiteral(": File too large"));
        QTRY_COMPARE(writer->waitingBytes(), std::size_t{0});
        QCOMPARE(failed.size(), 1);
        QCOMPARE(content(), QByteArray("1234567812"));
        writer->discard();
        QTRY_VERIFY(!QFileInfo::exists(m_fileName));
    }

private:
    std::unique_ptr<RecoveryWriter> makeWriter()
    {
        auto file = RecoveryFolder(m_folder->path()).createFile();
        m_fileName = file.value()->fileName();
        return std::make_unique<RecoveryWriter>(std::move(file).value(), *m_thread);
    }

    [[nodiscard]] QByteArray content() const
    {
        QFile file(m_fileName);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    std::unique_ptr<RecoveryThread> m_thread;
    QString m_fileName;
};

QTEST_GUILESS_MAIN(TestRecoveryWriter)
#include "tst_RecoveryWriter.moc"
