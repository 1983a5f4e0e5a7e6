#include "orvane/transfer/Picture.h"
#include "orvane/transfer/PictureFrames.h"

#include <QTest>

using orvane::PictureReply;
using State = PictureReply::State;

class TestPictureFrames : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aRequestTellsTheSizeOfItsFile()
    {
        QCOMPARE(orvane::pictureRequest(12), std::string("picture 12\n"));
        QCOMPARE(orvane::pictureRequestSize("picture 12"), std::size_t{12});
        QCOMPARE(orvane::pictureRequestSize("picture " + std::to_string(orvane::maxPictureFileSize)),
            orvane::maxPictureFileSize);
    }

    void whatIsNoRequestHasNoSize()
    {
        for (const char* line : {"", "picture", "picture ", "picture 0", "picture -1", "picture 1 ", "picture 1x",
                 "image 1", "picture 268435457", "picture 99999999999999999999999"})
            QVERIFY2(orvane::pictureRequestSize(line) == 0, line);
    }

    void aPictureIsCompleteWithItsLastByte()
    {
        const std::string bytes = orvane::pictureReply(2, 1, 3) + "123456";
        for (std::size_t count = 1; count < bytes.size(); ++count) {
            PictureReply reply;
            QVERIFY(reply.take(std::string_view(bytes).substr(0, count)) == State::Incomplete);
            QVERIFY(reply.take(std::string_view(bytes).substr(count)) == State::Complete);
            const orvane::Picture picture = reply.takePicture();
            QCOMPARE(picture.width, 2);
            QCOMPARE(picture.height, 1);
            QCOMPARE(picture.components, 3);
            QCOMPARE(picture.bytes, (std::vector<unsigned char>{'1', '2', '3', '4', '5', '6'}));
        }
    }

    void aRefusalHasItsReason()
    {
        PictureReply reply;
        QVERIFY(reply.take(orvane::pictureRefusal("it is\nno picture")) == State::Refused);
        QCOMPARE(reply.reason(), std::string("it is no picture"));
        QVERIFY(PictureReply().take(orvane::pictureRefusal(std::string(5000, 'x'))) == State::Refused);
    }

    void whatIsNoReplyIsBroken_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("another word") << QByteArray("image 1 1 1\n1");
        QTest::newRow("no numbers") << QByteArray("picture\n");
        QTest::newRow("two numbers") << QByteArray("picture 1 1\n1");
        QTest::newRow("four numbers") << QByteArray("picture 1 1 1 1\n1");
        QTest::newRow("no width") << QByteArray("picture 0 1 1\n");
        QTest::newRow("no height") << QByteArray("picture 1 0 1\n");
        QTest::newRow("no component") << QByteArray("picture 1 1 0\n");
        QTest::newRow("five components") << QByteArray("picture 1 1 5\n12345");
        QTest::newRow("negative") << QByteArray("picture -1 -1 1\n1");
        QTest::newRow("too wide") << QByteArray("picture 32768 1 1\n");
        QTest::newRow("too many pixels") << QByteArray("picture 8193 8192 1\n");
        QTest::newRow("beyond all numbers") << QByteArray("picture 99999999999999999999999 1 1\n");
        QTest::newRow("more bytes than pixels") << QByteArray("picture 1 1 1\n12");
        QTest::newRow("more after a refusal") << QByteArray("refused no\nx");
        QTest::newRow("a line without end") << QByteArray(1000, 'p');
    }
    void whatIsNoReplyIsBroken()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(PictureReply().take(bytes.toStdString()) == State::Broken);
        PictureReply slowly;
        for (const char byte : bytes)
            slowly.take({&byte, 1});
        QVERIFY(slowly.state() == State::Broken);
    }
};

QTEST_GUILESS_MAIN(TestPictureFrames)
#include "tst_PictureFrames.moc"
