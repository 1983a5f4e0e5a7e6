#include "orvane/app/instance/HandedFile.h"

#include <QRandomGenerator>
#include <QTest>
#include <QtEndian>

// The messages between running windows, as bytes.
class TestHandedFile : public QObject {
    Q_OBJECT

private:
    static HandedFile example()
    {
        return {QStringLiteral("1.2.3"), QStringLiteral("/home/käthe/robot.mrd"), QStringLiteral("/robot/arm.rotation"),
            QByteArrayLiteral("token_TIME1")};
    }

    /// The content of a message that is whole; nothing if there is none.
    static std::optional<QByteArray> contentOf(QByteArray bytes)
    {
        const auto content = orvane::takeHandedContent(bytes);
        return content ? content.value() : std::nullopt;
    }

private Q_SLOTS:
    void comesThroughAsItWas_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::newRow("umlaut") << example().fileName;
        QTest::newRow("none") << QString();
        QTest::newRow("line break") << QStringLiteral("/a\nb.mrd");
        QTest::newRow("no text") << orvane::fromStdFileName("/a\xFF\x80.mrd");
        QTest::newRow("long") << u'/' + QString(60000, u'x');
    }
    void comesThroughAsItWas()
    {
        QFETCH(const QString, fileName);
        HandedFile file = example();
        file.fileName = fileName;
        const auto content = contentOf(file.toBytes());
        QVERIFY(content);
        const auto again = HandedFile::fromContent(*content);
        QCOMPARE(again.error(), QString());
        QVERIFY(again.value() == file);
    }

    void anAnswerComesThroughToo()
    {
        const HandedAnswer answer{false, QStringLiteral("Nö.")};
        const auto content = contentOf(answer.toBytes());
        QVERIFY(content);
        QVERIFY(HandedAnswer::fromContent(*content).value() == answer);
    }

    void partsAreWaitedFor()
    {
        const QByteArray bytes = example().toBytes();
        for (qsizetype length = 0; length < bytes.size(); ++length) {
            QByteArray received = bytes.left(length);
            const auto content = orvane::takeHandedContent(received);
            QVERIFY(content);
            QVERIFY(!content.value());
        }
        QByteArray received = bytes + "more";
        QVERIFY(orvane::takeHandedContent(received).value().has_value());
        QCOMPARE(received, QByteArrayLiteral("more"));
    }

    void whatIsNoMessageIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("another program") << QByteArrayLiteral("GET / HTTP/1.1\r\n\r\n");
        QTest::newRow("first byte") << QByteArrayLiteral("X");
        QByteArray tooLong = example().toBytes().left(8);
        qToBigEndian(static_cast<quint32>(orvane::longestHandedContent + 1), tooLong.data() + 4);
        QTest::newRow("too long") << tooLong;
        tooLong.replace(4, 4, "\xff\xff\xff\xff");
        QTest::newRow("far too long") << tooLong;
    }
    void whatIsNoMessageIsRefused()
    {
        QFETCH(QByteArray, bytes);
        const auto content = orvane::takeHandedContent(bytes);
        QVERIFY(!content);
        QVERIFY(!content.error().isEmpty());
    }

    void anotherVersionSaysSo()
    {
        QByteArray content = *contentOf(example().toBytes());
        qToBigEndian<quint16>(7, content.data());
        QVERIFY(HandedFile::fromContent(content).error().contains(QStringLiteral("another version")));
    }

    void relativeNamesAreRefused()
    {
        HandedFile file = example();
        file.fileName = QStringLiteral("robot.mrd");
        QVERIFY(!HandedFile::fromContent(*contentOf(file.toBytes())));
    }

    /// Damage of any kind is refused or gives another whole message, and never more than that.
    void damageIsHarmless()
    {
        QRandomGenerator random(7);
        const QByteArray whole = *contentOf(example().toBytes());
        for (int round = 0; round < 20000; ++round) {
            QByteArray content = whole;
            for (int changes = random.bounded(1, 4); changes > 0; --changes) {
                const int place = random.bounded(static_cast<int>(content.size()));
                switch (random.bounded(3)) {
                case 0:
                    content[place] = static_cast<char>(random.bounded(256));
                    break;
                case 1:
                    content.truncate(qMax(place, 1));
                    break;
                default:
                    content.insert(place, static_cast<char>(random.bounded(256)));
                }
            }
            const auto file = HandedFile::fromContent(content);
            if (!file)
                QVERIFY(!file.error().isEmpty());
            else
                QVERIFY(file.value().fileName.isEmpty() || file.value().fileName.startsWith(u'/'));
        }
    }
};

QTEST_APPLESS_MAIN(TestHandedFile)

#include "tst_HandedFile.moc"
