#include "meridane/base/errors/NxErrorStack.h"

#include <QTest>

class TestNxErrorStack : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTextJoinsTheMessagesFromTheOutermostOn_data()
    {
        QTest::addColumn<QList<QByteArray>>("messages");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("none") << QList<QByteArray>{} << QByteArray();
        QTest::newRow("one") << QList<QByteArray>{"alone"} << QByteArray("alone");
        QTest::newRow("three") << QList<QByteArray>{"a", "b", "c"} << QByteArray("a: b: c");
        QTest::newRow("an empty one") << QList<QByteArray>{"a", "", "c"} << QByteArray("a: : c");
    }
    void theTextJoinsTheMessagesFromTheOutermostOn()
    {
        QFETCH(const QList<QByteArray>, messages);
        QFETCH(const QByteArray, text);
        std::vector<VbString> given;
        for (const QByteArray& message : messages)
            given.emplace_back(message.constData());
        const NxErrorStack error(given);
        QCOMPARE(QByteArray(error.getDebugString().toUtf8()), text);
        QVERIFY(error.getMessages() == given);
    }
};

QTEST_APPLESS_MAIN(TestNxErrorStack)
#include "tst_NxErrorStack.moc"
