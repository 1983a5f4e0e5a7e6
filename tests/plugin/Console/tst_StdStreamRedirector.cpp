#include "Console/StdStreamRedirector.h"

#include <QTest>

#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace {

using Redirector = StdStreamRedirector<char, std::char_traits<char>>;

struct Piece {
    std::string text;
    std::streamsize count = 0;
    bool operator==(const Piece&) const = default;
};

using Pieces = std::vector<Piece>;

// Texts end in a NUL in these tests, so that what is read of them doesn't depend on the count.
void receive(const char* text, std::streamsize count, void* userData)
{
    static_cast<Pieces*>(userData)->push_back({text, count});
}

} // namespace

class TestStdStreamRedirector : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void formerBufferComesBack()
    {
        std::ostringstream stream;
        std::streambuf* const buffer = static_cast<std::ostream&>(stream).rdbuf();
        Pieces pieces;
        {
            Redirector redirector(stream, &receive, &pieces);
            QCOMPARE(static_cast<std::ostream&>(stream).rdbuf(), static_cast<std::streambuf*>(&redirector));
        }
        QCOMPARE(static_cast<std::ostream&>(stream).rdbuf(), buffer);
        stream << "after";
        QCOMPARE(stream.str(), std::string("after"));
        QVERIFY(pieces.empty());
    }

    void formerBufferGetsNothingMeanwhile()
    {
        std::ostringstream stream;
        Pieces pieces;
        {
            const Redirector redirector(stream, &receive, &pieces);
            stream << "text";
            stream.put('c').put('\n');
        }
        QVERIFY(stream.good());
        QVERIFY(stream.str().empty());
    }

    void characterWaitsForTheEndOfItsLine()
    {
        std::ostringstream stream;
        Pieces pieces;
        const Redirector redirector(stream, &receive, &pieces);
        stream.put('a');
        QVERIFY(pieces.empty());
        stream.put('\n');
        QVERIFY((pieces == Pieces{{"a", 1}}));
        stream.put('\n');
        QVERIFY((pieces == Pieces{{"a", 1}, {"", 1}})); // the letter came once
    }

    void lineEndAloneGivesAnEmptyText()
    {
        std::ostringstream stream;
        Pieces pieces;
        const Redirector redirector(stream, &receive, &pieces);
        stream.put('\n');
        QVERIFY((pieces == Pieces{{"", 1}}));
    }

    void countOfALineIsOne()
    {
        std::ostringstream stream;
        Pieces pieces;
        const Redirector redirector(stream, &receive, &pieces);
        for (const char character : std::string("a long line\n"))
            stream.put(character);
        QVERIFY((pieces == Pieces{{"a long line", 1}}));
    }

    void lineWithoutAnEndIsLost()
    {
        std::ostringstream stream;
        Pieces pieces;
        {
            const Redirector redirector(stream, &receive, &pieces);
            stream.put('a').put('b');
        }
        QVERIFY(pieces.empty());
        QVERIFY(stream.str().empty());
    }

    void blockGoesOutAtOnce()
    {
        std::ostringstream stream;
        Pieces pieces;
        const Redirector redirector(stream, &receive, &pieces);
        stream.write("block", 5);
        QVERIFY((pieces == Pieces{{"block", 5}}));
        QCOMPARE(static_cast<std::ostream&>(stream).rdbuf()->sputn("more", 4), std::streamsize(4));
    }

    void blockKeepsItsLineEnds()
    {
        std::ostringstream stream;
        Pieces pieces;
        const Redirector redirector(stream, &receive, &pieces);
        stream << "one\ntwo\n";
        QVERIFY((pieces == Pieces{{"one\ntwo\n", 8}}));
    }

    void blockOvertakesAWaitingLine()
    {
        std::ostringstream stream;
        Pieces pieces;
        const Redirector redirector(stream, &receive, &pieces);
        stream.put('a');
        stream.write("block", 5);
        stream.put('b').put('\n');
        QVERIFY((pieces == Pieces{{"block", 5}, {"ab", 1}}));
    }

    void flushSendsNothingOn()
    {
        std::ostringstream stream;
        Pieces pieces;
        const Redirector redirector(stream, &receive, &pieces);
        stream.put('a').flush();
        QVERIFY(stream.good());
        QVERIFY(pieces.empty());
        stream << "text" << std::endl;
        QVERIFY((pieces == Pieces{{"text", 4}, {"a", 1}}));
    }

    void overflowNeverFails()
    {
        std::ostringstream stream;
        Pieces pieces;
        const Redirector redirector(stream, &receive, &pieces);
        std::streambuf* const buffer = static_cast<std::ostream&>(stream).rdbuf();
        QCOMPARE(buffer->sputc('a'), int('a'));
        QCOMPARE(buffer->sputc('\n'), int('\n'));
        QCOMPARE(buffer->sputc('\xFF'), 0xFF);
    }

    void endOfFileAddsAByte()
    {
        class Open final : public Redirector {
        public:
            using Redirector::overflow;
            using Redirector::Redirector;
        };
        std::ostringstream stream;
        Pieces pieces;
        Open redirector(stream, &receive, &pieces);
        QCOMPARE(redirector.overflow(std::char_traits<char>::eof()), 0);
        QCOMPARE(redirector.overflow('\n'), int('\n'));
        QVERIFY((pieces == Pieces{{"\xFF", 1}}));
    }

    void nestedRedirectorsGiveBackInTurn()
    {
        std::ostringstream stream;
        std::streambuf* const buffer = static_cast<std::ostream&>(stream).rdbuf();
        Pieces outer;
        Pieces inner;
        {
            const Redirector first(stream, &receive, &outer);
            {
                const Redirector second(stream, &receive, &inner);
                stream << "inner";
            }
            stream << "outer";
        }
        QVERIFY((inner == Pieces{{"inner", 5}}));
        QVERIFY((outer == Pieces{{"outer", 5}}));
        QCOMPARE(static_cast<std::ostream&>(stream).rdbuf(), buffer);
    }

    void callbackRunsOnTheWritingThread()
    {
        std::ostringstream stream;
        std::thread::id called;
        const Redirector redirector(
            stream,
            [](const char*, std::streamsize, void* userData) {
                *static_cast<std::thread::id*>(userData) = std::this_thread::get_id();
            },
            &called);
        std::thread writer([&stream] { stream << "text"; });
        const std::thread::id writerId = writer.get_id();
        writer.join();
        QCOMPARE(called, writerId);
    }
};

QTEST_APPLESS_MAIN(TestStdStreamRedirector)
#include "tst_StdStreamRedirector.moc"
