#include "Patience.h"
#include "extender/Recording.h"

#include "orvane/app/log/LogBook.h"
#include "orvane/app/log/LogTap.h"
#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"

#include "meridane/base/errors/ErrorCapture.h"
#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxReadError.h"

#include <QLoggingCategory>
#include <QTest>

#include <iostream>
#include <memory>
#include <sstream>
#include <streambuf>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// Takes over a stream as a console does: it notes the blocks and single characters that arrive, and passes nothing on.
class Taker : public std::streambuf {
public:
    Taker(std::ostream& stream, QStringList& blocks)
        : m_stream(stream)
        , m_former(stream.rdbuf(this))
        , m_blocks(blocks)
    {
    }
    ~Taker() override { m_stream.rdbuf(m_former); }

protected:
    int_type overflow(int_type character) override
    {
        m_blocks.append(u"put "_s + QChar(character));
        return character;
    }
    std::streamsize xsputn(const char* text, std::streamsize count) override
    {
        m_blocks.append(QString::fromUtf8(text, static_cast<qsizetype>(count)));
        return count;
    }

private:
    std::ostream& m_stream;
    std::streambuf* m_former;
    QStringList& m_blocks;
};

void keepError(const NxError* error, void* texts)
{
    static_cast<QStringList*>(texts)->append(QString::fromUtf8(error->getDebugString().toUtf8()));
}

/// A plug-in whose console takes over streams and errors, and another extension.
struct Tool {
    Tool()
        : former(std::cerr.rdbuf(real.rdbuf()))
    {
        NxDebugError::setHandlerCallback(&keepError, &realErrors);
        console.whenLoaded = [this] { capture.begin(&keepError, &consoleErrors); };
        console.whenActivated = [this] { taker = std::make_unique<Taker>(std::cerr, blocks); };
        console.whenDeactivated = [this] { taker.reset(); };
        console.whenUnloaded = [this] { capture.end(); };
        for (const bool hasConsole : {true, false}) {
            const OrvProfile::Entry entry{hasConsole ? u"*"_s : u"Other"_s, true, {}};
            static_cast<void>(manager.addProfile(
                std::make_unique<OrvProfile>(hasConsole ? u"All"_s : u"Quiet"_s, QList<OrvProfile::Entry>{entry})));
        }
        tap = std::make_unique<LogTap>(book, manager);
    }
    ~Tool()
    {
        manager.unloadPlugins();
        tap.reset();
        NxDebugError::setHandlerCallback(nullptr, nullptr);
        std::cerr.rdbuf(former);
    }
    void load() { QCOMPARE(manager.addPlugin(&plugin), std::nullopt); }
    void run(const QString& profile) { manager.setActiveProfile(manager.findProfile(profile)); }
    [[nodiscard]] QStringList log() const
    {
        QStringList lines;
        for (std::uint64_t number = book.firstNumber(); number < book.endNumber(); ++number)
            lines.append(book.record(number)->source + u": "_s + book.record(number)->text);
        return lines;
    }

    std::ostringstream real;
    std::streambuf* former;
    QStringList realErrors;
    QStringList consoleErrors;
    QStringList blocks;
    QStringList calls;
    meridane::ErrorCapture::Callbacks callbacks{};
    meridane::ErrorCapture::UserData data{};
    meridane::ErrorCapture capture{callbacks, data};
    std::unique_ptr<Taker> taker;
    RecordingExtension console{u"Console"_s, calls};
    RecordingExtension other{u"Other"_s, calls};
    TestPlugin plugin{{&console, &other}};
    OrvPluginsManager manager;
    LogBook book;
    std::unique_ptr<LogTap> tap;
};

} // namespace

/// What reaches the log, while all else goes where it went before.
class TestLogTap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutAConsoleStreamsAreLoggedAndPassedOn()
    {
        Tool tool;
        std::cerr << "number " << 5 << std::endl;
        QTRY_COMPARE(tool.log(), QStringList{u"Standard error: number 5"_s});
        QCOMPARE(tool.real.str(), std::string("number 5\n"));
    }

    void aConsoleGetsTheSameBlocks()
    {
        Tool tool;
        tool.load();
        tool.run(u"All"_s);
        tool.blocks.clear();
        std::cerr << "text";
        std::cerr.put('x');
        std::cerr << "end\n";
        QCOMPARE(tool.blocks, QStringList({u"text"_s, u"put x"_s, u"end\n"_s}));
        QTRY_COMPARE(tool.log(), QStringList{u"Standard error: textxend"_s});
        QCOMPARE(tool.real.str(), std::string());
    }

    void theStreamIsTheConsolesWhileItIsCalled()
    {
        Tool tool;
        std::streambuf* const lowest = std::cerr.rdbuf();
        std::streambuf* seen = nullptr;
        tool.console.whenDeactivated = [&] {
            seen = std::cerr.rdbuf();
            tool.taker.reset();
        };
        tool.load();
        tool.run(u"All"_s);
        QVERIFY(std::cerr.rdbuf() != tool.taker.get());
        std::streambuf* const taker = tool.taker.get();
        tool.run(u"Quiet"_s);
        QCOMPARE(seen, taker);
        QCOMPARE(std::cerr.rdbuf(), lowest);
        std::cerr << "after\n";
        QTRY_COMPARE(tool.log(), QStringList{u"Standard error: after"_s});
        QCOMPARE(tool.real.str(), std::string("after\n"));
        tool.run(u"All"_s);
        std::cerr << "again\n";
        QCOMPARE(tool.blocks.last(), u"again\n"_s);
        QTRY_COMPARE(tool.log().last(), u"Standard error: again"_s);
    }

    void everythingIsPutBack()
    {
        std::streambuf* const before = std::cerr.rdbuf();
        std::streambuf* const outputBefore = std::cout.rdbuf();
        {
            Tool tool;
            tool.load();
            tool.run(u"All"_s);
        }
        QCOMPARE(std::cerr.rdbuf(), before);
        QCOMPARE(std::cout.rdbuf(), outputBefore);
        QVERIFY(NxDebugError::getHandlerCallback() == nullptr);
        QVERIFY(NxReadError::getHandlerCallback() == nullptr);
    }

    void errorsAreLoggedWithAndWithoutAConsole()
    {
        Tool tool;
        NxDebugError::post(NxDebugError::Warning, "one");
        QCOMPARE(tool.realErrors, QStringList{u"one"_s});
        tool.load();
        NxDebugError::post(NxDebugError::Information, "two");
        tool.run(u"All"_s);
        NxReadError::post("scene.mrd", 3, 5, "three");
        tool.run(u"Quiet"_s);
        NxDebugError::post(NxDebugError::Error, "four");
        QCOMPARE(tool.realErrors, QStringList{u"one"_s});
        QCOMPARE(tool.consoleErrors, QStringList({u"two"_s, u"scene.mrd:3:5: three"_s, u"four"_s}));
        QTRY_COMPARE(tool.log(),
            QStringList(
                {u"Toolkit: one"_s, u"Toolkit: two"_s, u"Reading: scene.mrd:3:5: three"_s, u"Toolkit: four"_s}));
        QCOMPARE(tool.book.record(0)->severity, NxSeverity::Warning);
        QCOMPARE(tool.book.record(1)->severity, NxSeverity::Information);
        QCOMPARE(tool.book.record(2)->severity, NxSeverity::Error);
    }

    void theHandlersAreTheConsolesWhenItIsUnloaded()
    {
        Tool tool;
        void* seen = nullptr;
        tool.console.whenUnloaded = [&] {
            seen = NxDebugError::getHandlerData();
            tool.capture.end();
        };
        tool.load();
        tool.manager.unloadPlugins();
        QCOMPARE(seen, static_cast<void*>(&tool.consoleErrors));
        NxDebugError::post(NxDebugError::Error, "late");
        QCOMPARE(tool.realErrors, QStringList{u"late"_s});
        QTRY_COMPARE(tool.log(), QStringList{u"Toolkit: late"_s});
    }

    void whatAnExtensionWritesWhenItIsCalledHasItsName()
    {
        Tool tool;
        tool.other.whenActivated = [] {
            std::cerr << "starting\n";
            NxDebugError::post(NxDebugError::Warning, "no device");
        };
        tool.load();
        tool.run(u"Quiet"_s);
        QTRY_COMPARE(tool.log(), QStringList({u"Other: starting"_s, u"Other: no device"_s}));
    }

    /// It never gives back what it has taken.
    void anExtensionThatKeepsAStreamHurtsNobody()
    {
        Tool tool;
        tool.console.whenDeactivated = {};
        tool.load();
        tool.run(u"All"_s);
        tool.run(u"Quiet"_s);
        std::cerr << "kept\n";
        QCOMPARE(tool.blocks, QStringList{u"kept\n"_s});
        tool.taker.reset();
        std::cerr << "given back\n";
        QTRY_COMPARE(tool.log(), QStringList({u"Standard error: kept"_s, u"Standard error: given back"_s}));
        QCOMPARE(tool.real.str(), std::string("given back\n"));
    }

    void linesThatAreNotEndedAreLoggedAfterAWhile()
    {
        Tool tool;
        std::cerr << "waiting";
        QTRY_COMPARE(tool.log(), QStringList{u"Standard error: waiting"_s});
    }

    void linesOfThreadsAreNotMixed()
    {
        Tool tool;
        std::cerr << "half ";
        std::thread([] { std::cerr << "other\n"; }).join();
        std::cerr << "whole\n";
        QTRY_COMPARE(tool.log(), QStringList({u"Standard error: other"_s, u"Standard error: half whole"_s}));
    }

    void messagesOfQtAreLoggedWithTheirCategory()
    {
        Tool tool;
        const QLoggingCategory category("orvane.test");
        QTest::ignoreMessage(QtWarningMsg, "plain");
        QTest::ignoreMessage(QtCriticalMsg, "bad");
        qWarning("plain");
        qCCritical(category, "bad");
        QTRY_COMPARE(tool.log(), QStringList({u"Qt: plain"_s, u"orvane.test: bad"_s}));
        QCOMPARE(tool.book.record(0)->severity, NxSeverity::Warning);
        QCOMPARE(tool.book.record(1)->severity, NxSeverity::Error);
    }
};

QTEST_MAIN(TestLogTap)
#include "tst_LogTap.moc"
