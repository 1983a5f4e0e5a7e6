#include "Patience.h"
#include "TestFiles.h"

#include "orvane/app/instance/InstanceClient.h"
#include "orvane/app/instance/InstanceServer.h"
#include "orvane/app/instance/SocketFolder.h"

#include <QFileInfo>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

// Windows that take files from other processes. The sender works in a thread of its own here, since it blocks.
class TestInstanceServer : public QObject {
    Q_OBJECT

private:
    using Outcome = InstanceClient::Outcome;

    [[nodiscard]] SocketFolder sockets() const
    {
        return SocketFolder::open(m_folder->filePath(QStringLiteral("run")), QStringLiteral(":7")).value();
    }

    /// A window of that number.
    std::unique_ptr<InstanceServer> listen(qint64 process, const QString& version = QStringLiteral("1"))
    {
        auto server = std::make_unique<InstanceServer>(version);
        const auto listening = server->listen(sockets().nameFor(process));
        if (!listening)
            qFatal("%s", qPrintable(listening.error()));
        return server;
    }

    /// Hands a file while the event loop runs.
    [[nodiscard]] InstanceClient::Result hand(
        std::chrono::milliseconds patience = std::chrono::milliseconds(testPatience))
    {
        InstanceClient::Result result;
        const std::unique_ptr<QThread> thread(QThread::create([this, patience, &result] {
            result = InstanceClient(sockets(), patience)
                         .hand({QStringLiteral("1"), QStringLiteral("/robot.mrd"), QStringLiteral("/arm"),
                             QByteArrayLiteral("token")});
        }));
        QSignalSpy finished(thread.get(), &QThread::finished);
        thread->start();
        if (finished.isEmpty())
            finished.wait(testPatience);
        thread->wait();
        return result;
    }

    /// A connection of somebody who sends anything.
    [[nodiscard]] std::unique_ptr<QLocalSocket> connectTo(qint64 process)
    {
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(sockets().nameFor(process));
        if (!socket->waitForConnected(testPatience))
            qFatal("not connected");
        return socket;
    }

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<HandedFile>(); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    void aFileIsHandedOver()
    {
        const auto server = listen(1);
        QSignalSpy handed(server.get(), &InstanceServer::handed);
        QCOMPARE(hand().outcome, Outcome::Taken);
        QCOMPARE(handed.size(), 1);
        const auto file = handed.front().front().value<HandedFile>();
        QCOMPARE(file.fileName, QStringLiteral("/robot.mrd"));
        QCOMPARE(file.select, QStringLiteral("/arm"));
        QCOMPARE(file.activationToken, QByteArrayLiteral("token"));
        // And another one.
        QCOMPARE(hand().outcome, Outcome::Taken);
        QCOMPARE(handed.size(), 2);
    }

    void onlyTheUserCanOpenTheSocket()
    {
        const auto server = listen(1);
        struct stat status { };
        QCOMPARE(::stat(qPrintable(sockets().nameFor(1)), &status), 0);
        QCOMPARE(status.st_mode & 0077, mode_t{0});
        QCOMPARE(::stat(qPrintable(sockets().path()), &status), 0);
        QCOMPARE(status.st_mode & 0777, mode_t{0700});
    }

    void theWindowThatWasUsedLastGetsIt()
    {
        const auto first = listen(1);
        const auto second = listen(2);
        // File times are of the clock of the kernel, which ticks slowly.
        QTRY_VERIFY((first->noteUse(), sockets().sockets().front() == sockets().nameFor(1)));
        QSignalSpy ofFirst(first.get(), &InstanceServer::handed);
        QCOMPARE(hand().outcome, Outcome::Taken);
        QCOMPARE(ofFirst.size(), 1);
        QTRY_VERIFY((second->noteUse(), sockets().sockets().front() == sockets().nameFor(2)));
        QCOMPARE(hand().outcome, Outcome::Taken);
        QCOMPARE(ofFirst.size(), 1);
    }

    void withoutAWindowNobodyIsThere()
    {
        QCOMPARE(hand().outcome, Outcome::Nobody);
        const auto other = SocketFolder::open(sockets().path(), QStringLiteral(":8"));
        InstanceServer elsewhere(QStringLiteral("1"));
        QVERIFY(elsewhere.listen(other.value().nameFor(1)));
        QCOMPARE(hand().outcome, Outcome::Nobody);
    }

    void theSocketOfACrashedWindowIsRemoved()
    {
        const QByteArray name = sockets().nameFor(3).toLocal8Bit();
        const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::copy(name.begin(), name.end(), address.sun_path);
        QCOMPARE(::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        ::close(listener);
        QCOMPARE(sockets().sockets().size(), 1);
        QCOMPARE(hand().outcome, Outcome::Nobody);
        QVERIFY(sockets().sockets().isEmpty());
        // A window that gets the number of the crashed one takes its place.
        const auto server = listen(3);
        QCOMPARE(hand().outcome, Outcome::Taken);
    }

    void aWindowThatHangsIsGivenUp()
    {
        const QByteArray name = sockets().nameFor(4).toLocal8Bit();
        const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::copy(name.begin(), name.end(), address.sun_path);
        QCOMPARE(::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        QCOMPARE(::listen(listener, 4), 0);
        const InstanceClient::Result result = hand(std::chrono::milliseconds(200));
        QCOMPARE(result.outcome, Outcome::Refused);
        QVERIFY(result.reason.contains(QStringLiteral("doesn't answer")));
        ::close(listener);
    }

    /// A window that comes round later must not open what the sender has opened itself.
    void whatIsGivenUpIsntOpenedLater()
    {
        const auto server = listen(1);
        QSignalSpy handed(server.get(), &InstanceServer::handed);
        const InstanceClient::Result result = InstanceClient(sockets(), std::chrono::milliseconds(50))
                                                  .hand({QStringLiteral("1"), QStringLiteral("/robot.mrd"), {},
                                                      {}}); // in this thread, so that the window hangs
        QCOMPARE(result.outcome, Outcome::Refused);
        QCOMPARE(hand().outcome, Outcome::Taken);
        QCOMPARE(handed.size(), 1);
    }

    void anotherVersionIsRefused()
    {
        const auto server = listen(1, QStringLiteral("2"));
        QSignalSpy handed(server.get(), &InstanceServer::handed);
        const InstanceClient::Result result = hand();
        QCOMPARE(result.outcome, Outcome::Refused);
        QVERIFY2(result.reason.contains(QStringLiteral("version 2")), qPrintable(result.reason));
        QVERIFY(handed.isEmpty());
    }

    void aWindowCanRefuse()
    {
        const auto server = listen(1);
        server->setRefusal([] { return QStringLiteral("Not now."); });
        const InstanceClient::Result result = hand();
        QCOMPARE(result.outcome, Outcome::Refused);
        QCOMPARE(result.reason, QStringLiteral("Not now."));
    }

    void nonsenseIsDisconnected_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("another program") << QByteArrayLiteral("GET / HTTP/1.1\r\n\r\n");
        QTest::newRow("much") << QByteArray(1 << 20, 'x');
        QTest::newRow("damaged") << QByteArrayLiteral("OrvH\0\0\0\4abcd");
    }
    void nonsenseIsDisconnected()
    {
        QFETCH(const QByteArray, bytes);
        const auto server = listen(1);
        QSignalSpy handed(server.get(), &InstanceServer::handed);
        const auto socket = connectTo(1);
        socket->write(bytes);
        QTRY_COMPARE(socket->state(), QLocalSocket::UnconnectedState);
        QCOMPARE(hand().outcome, Outcome::Taken);
        QCOMPARE(handed.size(), 1);
    }

    void whoSaysNothingIsDisconnected()
    {
        const auto server = listen(1);
        server->setPatience(std::chrono::milliseconds(10));
        std::vector<std::unique_ptr<QLocalSocket>> silent;
        for (int i = 0; i < 2 * InstanceServer::mostConnections; ++i)
            silent.push_back(connectTo(1));
        for (const auto& socket : silent)
            QTRY_COMPARE(socket->state(), QLocalSocket::UnconnectedState);
        server->setPatience(std::chrono::milliseconds(testPatience));
        QCOMPARE(hand().outcome, Outcome::Taken);
    }

    void aFolderOfOthersIsntUsed()
    {
        const QString path = m_folder->filePath(QStringLiteral("open"));
        QVERIFY(QDir().mkdir(path));
        QCOMPARE(::chmod(qPrintable(path), 0755), 0);
        QVERIFY(!SocketFolder::open(path, {}));
        const QString link = m_folder->filePath(QStringLiteral("link"));
        QVERIFY(QFile::link(sockets().path(), link));
        QVERIFY(!SocketFolder::open(link, {}));
        writeFile(m_folder->filePath(QStringLiteral("file")), "x");
        QVERIFY(!SocketFolder::open(m_folder->filePath(QStringLiteral("file")), {}));
    }

    /// Without the session's folder it is one beside those of other users.
    void thereIsAFolderWithoutASession()
    {
        const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
        const QByteArray temporary = qgetenv("TMPDIR");
        qputenv("TMPDIR", m_folder->path().toLocal8Bit());
        for (const char* const path : {"", "relative", "/nowhere/at/all", "/"}) {
            qputenv("XDG_RUNTIME_DIR", path);
            const auto folder = SocketFolder::open();
            QVERIFY(folder);
            QCOMPARE(folder.value().path(), m_folder->filePath(QStringLiteral("orvane-%1").arg(::geteuid())));
        }
        qputenv("XDG_RUNTIME_DIR", m_folder->path().toLocal8Bit());
        QCOMPARE(SocketFolder::open().value().path(), m_folder->filePath(QStringLiteral("orvane")));
        qputenv("XDG_RUNTIME_DIR", before);
        qputenv("TMPDIR", temporary);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestInstanceServer)

#include "tst_InstanceServer.moc"
