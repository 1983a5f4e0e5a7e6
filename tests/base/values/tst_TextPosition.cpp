#include "meridane/base/values/TextPosition.h"

#include <QTest>

using meridane::positionOf;
using meridane::TextPosition;

class TestTextPosition : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void linesAndColumnsCountFromOne_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::newRow("empty text") << QByteArray() << 0 << 1 << 1;
        QTest::newRow("first line") << QByteArray("abc") << 2 << 1 << 3;
        QTest::newRow("line end") << QByteArray("ab\ncd") << 2 << 1 << 3;
        QTest::newRow("after a line end") << QByteArray("ab\ncd") << 3 << 2 << 1;
        QTest::newRow("beyond the end") << QByteArray("ab\ncd") << 100 << 2 << 3;
        QTest::newRow("characters of several bytes") << QByteArray("\n\xC3\xA4\xE2\x82\xAC!") << 6 << 2 << 3;
        QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFx!") << 4 << 1 << 2;
        QTest::newRow("byte order mark in the second line") << QByteArray("\n\xEF\xBB\xBFx") << 4 << 2 << 2;
    }

    void linesAndColumnsCountFromOne()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const int, offset);
        const TextPosition position
            = positionOf({text.data(), static_cast<std::size_t>(text.size())}, static_cast<std::size_t>(offset));
        QTEST(position.line, "line");
        QTEST(position.column, "column");
    }

    void onlyTheFirstByteOrderMarkIsRemoved()
    {
        using meridane::withoutByteOrderMark;
        QVERIFY(withoutByteOrderMark("a") == "a");
        QVERIFY(withoutByteOrderMark("\xEF\xBB\xBFz") == "z");
        QVERIFY(withoutByteOrderMark("\xEF\xBB\xBF\xEF\xBB\xBFz") == "\xEF\xBB\xBFz");
        QVERIFY(withoutByteOrderMark("\xEF\xBB").size() == 2);
    }
};

QTEST_GUILESS_MAIN(TestTextPosition)
#include "tst_TextPosition.moc"
