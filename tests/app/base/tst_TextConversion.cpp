#include "orvane/app/base/TextConversion.h"

#include <QDir>
#include <QTest>
#include <QUrl>

#include <random>

// File names between the system, Qt and the toolkit.
class TestTextConversion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fileNamesOfAnyBytesComeBack_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("isText");
        QTest::newRow("empty") << QByteArray() << true;
        QTest::newRow("plain") << QByteArray("/tmp/robot.mrd") << true;
        QTest::newRow("UTF-8") << QByteArray("\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80") << true;
        QTest::newRow("byte order mark inside") << QByteArray("a\xEF\xBB\xBF") << true;
        QTest::newRow("byte order mark behind a byte") << QByteArray("\xFC\xEF\xBB\xBFz") << false;
        QTest::newRow("Latin-1") << QByteArray("gr\xFC\xDF.mrd") << false;
        QTest::newRow("cut character") << QByteArray("a\xE2\x82") << false;
        QTest::newRow("half of a pair in UTF-8") << QByteArray("a\xED\xB2\x80") << false;
        QTest::newRow("continuation behind a pair") << QByteArray("\xF0\x9F\x98\x80\x80") << false;
    }
    void fileNamesOfAnyBytesComeBack()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const bool, isText);
        const QString fileName = orvane::fromStdFileName(name.toStdString());
        QCOMPARE(QByteArray::fromStdString(orvane::toStdFileName(fileName)), name);
        QCOMPARE(fileName.isValidUtf16(), isText);
        if (isText)
            QCOMPARE(fileName, QString::fromUtf8(name));
    }

    void randomBytesComeBack()
    {
        std::mt19937 random(7);
        for (int round = 0; round < 20000; ++round) {
            std::string name;
            for (auto length = random() % 12; length > 0; --length)
                name += static_cast<char>(random() % 3 == 0 ? random() % 255 + 1 : 0x80 + random() % 0x80);
            const QString fileName = orvane::fromStdFileName(name);
            QCOMPARE(orvane::toStdFileName(fileName), name);
            const QString absolute = u'/' + fileName;
            QCOMPARE(orvane::fromFileUrl(orvane::toFileUrl(absolute)), absolute);
        }
    }

    void namesAreMadeAbsolute()
    {
        const QString folder = QDir::currentPath();
        QCOMPARE(orvane::absoluteFileName(QStringLiteral("a.mrd")), folder + QStringLiteral("/a.mrd"));
        QCOMPARE(orvane::absoluteFileName(QStringLiteral("x/.././a.mrd")), folder + QStringLiteral("/a.mrd"));
        QCOMPARE(orvane::absoluteFileName(QStringLiteral("/x/../a.mrd")), QStringLiteral("/a.mrd"));
        QCOMPARE(orvane::absoluteFileName(QString()), QString());
    }

    void urlsAreThoseOfOthers()
    {
        const QString fileName = QStringLiteral("/tmp/a b/ü%41#?.mrd");
        QCOMPARE(QUrl::fromEncoded(orvane::toFileUrl(fileName)).toLocalFile(), fileName);
        QCOMPARE(orvane::fromFileUrl(QUrl::fromLocalFile(fileName).toEncoded()), fileName);
        QCOMPARE(orvane::fromFileUrl("http://example.com/a.mrd"), QString());
        QCOMPARE(orvane::fromFileUrl("nonsense"), QString());
    }
};

QTEST_GUILESS_MAIN(TestTextConversion)
#include "tst_TextConversion.moc"
