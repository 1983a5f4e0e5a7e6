#include "orvane/app/files/FileRequests.h"

#include <QMap>
#include <QStringList>
#include <QTest>

class TestFileRequests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void requestsComeInTheOrderInWhichTheyWereMade_data()
    {
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("expected");
        QTest::newRow("different ones") << "save a, new, open b"
                                        << "save a, new, open b";
        QTest::newRow("the same one again") << "new, new, new"
                                            << "new";
        QTest::newRow("the same one again, later") << "save a, new, new, open b, open b"
                                                   << "save a, new, open b";
        QTest::newRow("others between") << "new, open b, new"
                                        << "new, open b, new";
        QTest::newRow("others between, with a file") << "open a, open b, open a"
                                                     << "open a, open b, open a";
        QTest::newRow("another file") << "open a, open b"
                                      << "open a, open b";
        QTest::newRow("models to add") << "add a, add a"
                                       << "add a, add a";
    }

    void requestsComeInTheOrderInWhichTheyWereMade()
    {
        QFETCH(const QString, asked);
        QFETCH(const QString, expected);
        FileRequests requests;
        QStringList carriedOut;
        for (const QString& text : asked.split(QStringLiteral(", ")))
            requests.push(request(text, 1, carriedOut));
        runAll(requests);
        QCOMPARE(carriedOut.join(QStringLiteral(", ")), expected);
    }

    void theSameRequestForAnotherSceneIsKept()
    {
        FileRequests requests;
        QStringList carriedOut;
        requests.push(request(QStringLiteral("save a"), 1, carriedOut));
        requests.push(request(QStringLiteral("save a"), 2, carriedOut));
        runAll(requests);
        QCOMPARE(carriedOut.size(), 2);
    }

    void eachRequestWithAnAnswerIsKept()
    {
        FileRequests requests;
        QStringList carriedOut;
        QStringList answers;
        for (int count = 0; count < 2; ++count) {
            FileRequest open = request(QStringLiteral("open a"), FileRequest::anyScene, carriedOut);
            open.lost = [&answers](const QString& reason) { answers.append(reason); };
            requests.push(open);
        }
        QCOMPARE(requests.dropLeaving(QStringLiteral("No.")).size(), 2);
        QCOMPARE(answers, QStringList(2, QStringLiteral("No.")));
    }

private:
    using Kind = FileRequest::Kind;

    static FileRequest request(const QString& text, int scene, QStringList& carriedOut)
    {
        static const QMap<QString, Kind> kinds{{QStringLiteral("new"), Kind::New}, {QStringLiteral("open"), Kind::Open},
            {QStringLiteral("add"), Kind::Add}, {QStringLiteral("save"), Kind::Save}};
        return {kinds.value(text.section(u' ', 0, 0)), text.section(u' ', 1), scene,
            [text, &carriedOut] { carriedOut.append(text); }};
    }

    static void runAll(FileRequests& requests)
    {
        while (const auto request = requests.takeFirst([](const FileRequest& /*request*/) { return true; }))
            request->run();
    }
};

QTEST_APPLESS_MAIN(TestFileRequests)
#include "tst_FileRequests.moc"
