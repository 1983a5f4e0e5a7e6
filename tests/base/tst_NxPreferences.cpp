#include "TestFiles.h"
#include "base/HandlerGuard.h"

#include "meridane/base/NxPreferences.h"
#include "meridane/base/errors/NxReadError.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cctype>
#include <thread>

namespace {

bool load(const QByteArray& path)
{
    return NxPreferences::setFile(path.constData()) != 0;
}

} // namespace

class TestNxPreferences : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    /// Writes the settings file. The result is its name.
    QByteArray settingsOf(const QByteArray& content) const
    {
        const QString fileName = m_folder.filePath(QStringLiteral("settings"));
        writeFile(fileName, content);
        return QFile::encodeName(fileName);
    }

private Q_SLOTS:
    void cleanup()
    {
        qunsetenv("KAL_TEST");
        NxPreferences::unset("KAL_TEST");
        NxPreferences::setFile(nullptr);
    }

    void whatIsNotSetHasItsDefault()
    {
        QCOMPARE(NxPreferences::getBool("KAL_TEST", 1), 1);
        QCOMPARE(NxPreferences::getBool("KAL_TEST", 0), 0);
        QCOMPARE(NxPreferences::getString("KAL_TEST", "default").toUtf8(), "default");
        QVERIFY(NxPreferences::getString("KAL_TEST", VbString(nullptr)).isNull());
    }

    void booleanWords_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("value"); // -1: the default
        for (const char* word : {"1", "true", "yes", "on", "TRUE", "True", "YES", "On"})
            QTest::newRow(word) << QByteArray(word) << 1;
        for (const char* word : {"0", "false", "no", "off", "FALSE", "False", "NO", "oFF"})
            QTest::newRow(word) << QByteArray(word) << 0;
        for (const char* word : {"2", "-1", "00", "01", "t", "y", "truely", "tru", "o", "enabled", " true", "true "})
            QTest::newRow(word) << QByteArray(word) << -1;
        QTest::newRow("empty") << QByteArray("") << -1;
    }
    void booleanWords()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const int, value);
        qputenv("KAL_TEST", text);
        QCOMPARE(NxPreferences::getBool("KAL_TEST", 0), value < 0 ? 0 : value);
        QCOMPARE(NxPreferences::getBool("KAL_TEST", 1), value < 0 ? 1 : value);
    }

    void theEnvironmentComesBeforeTheProcessAndThatBeforeTheFile()
    {
        QVERIFY(load(settingsOf("KAL_TEST = file\n")));
        QCOMPARE(NxPreferences::getString("KAL_TEST", "").toUtf8(), "file");
        NxPreferences::set("KAL_TEST", "process");
        QCOMPARE(NxPreferences::getString("KAL_TEST", "").toUtf8(), "process");
        qputenv("KAL_TEST", "environment");
        QCOMPARE(NxPreferences::getString("KAL_TEST", "").toUtf8(), "environment");
        qunsetenv("KAL_TEST");
        NxPreferences::unset("KAL_TEST");
        QCOMPARE(NxPreferences::getString("KAL_TEST", "").toUtf8(), "file");
        NxPreferences::setFile(nullptr);
        QCOMPARE(NxPreferences::getString("KAL_TEST", "default").toUtf8(), "default");
    }

    void aBadValueHidesLaterPlaces()
    {
        NxPreferences::set("KAL_TEST", "1");
        qputenv("KAL_TEST", "maybe");
        QCOMPARE(NxPreferences::getBool("KAL_TEST", 0), 0);
    }

    void goodLines_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("plain") << QByteArray("KAL_TEST=a") << QByteArray("a");
        QTest::newRow("blanks around") << QByteArray(" \tKAL_TEST \t=\t a b \t\n") << QByteArray("a b");
        QTest::newRow("Windows line ends") << QByteArray("# x\r\nKAL_TEST = a\r\n") << QByteArray("a");
        QTest::newRow("comments and empty lines")
            << QByteArray("\n# KAL_TEST = b\n  # x\n\nKAL_TEST = a") << QByteArray("a");
        QTest::newRow("hash in the value") << QByteArray("KAL_TEST = #ff0000") << QByteArray("#ff0000");
        QTest::newRow("equals sign in the value") << QByteArray("KAL_TEST = a=b") << QByteArray("a=b");
        QTest::newRow("empty value") << QByteArray("KAL_TEST =") << QByteArray("");
        QTest::newRow("the last counts") << QByteArray("KAL_TEST = a\nKAL_TEST = b") << QByteArray("b");
        QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFKAL_TEST = a") << QByteArray("a");
        QTest::newRow("UTF-8") << QByteArray("KAL_TEST = \xE2\x82\xAC") << QByteArray("\xE2\x82\xAC");
    }
    void goodLines()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QByteArray, value);
        TextRecorder recorder;
        const HandlerGuard<NxReadError> guard(TextRecorder::record, &recorder);
        QVERIFY(load(settingsOf(content)));
        QVERIFY(recorder.texts().empty());
        QCOMPARE(QByteArray(NxPreferences::getString("KAL_TEST", "default").toUtf8()), value);
    }

    void namesAreOfLettersDigitsAndThreeMarks()
    {
        const HandlerGuard<NxReadError> guard([](const NxError*, void*) {}, nullptr);
        for (char character = '!'; character <= '~'; ++character) {
            if (character == '=') // ends the name
                continue;
            const QByteArray name = QByteArray("KAL") + character + 'X';
            const bool good = QByteArray("_.-").contains(character) || isalnum(character) != 0;
            QCOMPARE(load(settingsOf(name + " = 1")), good);
            QCOMPARE(NxPreferences::getBool(name.constData(), 0), good ? 1 : 0);
        }
    }

    void anEmptyFileNameEndsTheSettings()
    {
        QVERIFY(load(settingsOf("KAL_TEST = 1")));
        QVERIFY(load(""));
        QCOMPARE(NxPreferences::getBool("KAL_TEST", 0), 0);
    }

    void aBrokenLineIsPostedAndTheOthersHold_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("message");
        const QByteArray noEquals("2:9: expected \"=\" after the name");
        QTest::newRow("no equals sign") << QByteArray("KAL_NAME") << noEquals;
        QTest::newRow("a second name") << QByteArray("KAL_NAM other = 1") << noEquals;
        QTest::newRow("no name") << QByteArray("  = 1")
                                 << QByteArray("2:3: expected a name of letters, digits and \"_.-\"");
        QTest::newRow("a quoted name") << QByteArray("\"a\" = 1")
                                       << QByteArray("2:1: expected a name of letters, digits and \"_.-\"");
        QTest::newRow("columns count characters")
            << QByteArray("N = \xE2\x82\xAC\xFF") << QByteArray("2:6: expected valid UTF-8");
        QTest::newRow("a NUL byte in the name") << QByteArray("KAL_TEST\0 = 1", 13) << noEquals;
    }
    void aBrokenLineIsPostedAndTheOthersHold()
    {
        QFETCH(const QByteArray, line);
        QFETCH(const QByteArray, message);
        TextRecorder recorder;
        const HandlerGuard<NxReadError> guard(TextRecorder::record, &recorder);
        const QByteArray path = settingsOf("KAL_TEST = before\n" + line + "\nKAL_AFTER = after\n");
        QVERIFY(!load(path));
        QCOMPARE(recorder.texts(), std::vector<std::string>{(path + ':' + message).toStdString()});
        QCOMPARE(NxPreferences::getString("KAL_TEST", "").toUtf8(), "before");
        QCOMPARE(NxPreferences::getString("KAL_AFTER", "").toUtf8(), "after");
    }

    void everyBrokenLineIsPosted()
    {
        TextRecorder recorder;
        const HandlerGuard<NxReadError> guard(TextRecorder::record, &recorder);
        load(settingsOf("one\ntwo\nthree"));
        QCOMPARE(recorder.texts().size(), std::size_t(3));
    }

    void theFileIsNeverWritten()
    {
        const QByteArray path = settingsOf("broken\n");
        const HandlerGuard<NxReadError> guard([](const NxError*, void*) {}, nullptr);
        load(path);
        NxPreferences::set("KAL_TEST", "1");
        QCOMPARE(readFile(QFile::decodeName(path)), QByteArray("broken\n"));
    }

    void aMissingFileIsNoErrorAndHoldsNothing()
    {
        TextRecorder recorder;
        const HandlerGuard<NxReadError> guard(TextRecorder::record, &recorder);
        load(settingsOf("KAL_TEST = 1"));
        QVERIFY(load(QFile::encodeName(m_folder.filePath(QStringLiteral("missing")))));
        QVERIFY(recorder.texts().empty());
        QCOMPARE(NxPreferences::getBool("KAL_TEST", 0), 0);
    }

    void whatCannotBeReadIsPostedAndLeavesTheSettings_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("message");
        QFile large(m_folder.filePath(QStringLiteral("large")));
        QVERIFY(large.open(QIODevice::WriteOnly));
        QVERIFY(large.resize(1024 * 1024 + 1));
        QTest::newRow("directory") << QFile::encodeName(m_folder.path())
                                   << QByteArray("cannot read the settings file: Is a directory");
        QTest::newRow("below a file") << QFile::encodeName(large.fileName() + QStringLiteral("/settings"))
                                      << QByteArray("cannot read the settings file: Not a directory");
        QTest::newRow("too large") << QFile::encodeName(large.fileName())
                                   << QByteArray("the settings file is larger than 1 MiB");
        QTest::newRow("endless") << QByteArray("/dev/zero") << QByteArray("the settings file is larger than 1 MiB");
    }
    void whatCannotBeReadIsPostedAndLeavesTheSettings()
    {
        QFETCH(const QByteArray, path);
        QFETCH(const QByteArray, message);
        load(settingsOf("KAL_TEST = kept"));
        TextRecorder recorder;
        const HandlerGuard<NxReadError> guard(TextRecorder::record, &recorder);
        QVERIFY(!load(path));
        QCOMPARE(recorder.texts(), std::vector<std::string>{(path + ": " + message).toStdString()});
        QCOMPARE(NxPreferences::getString("KAL_TEST", "").toUtf8(), "kept");
    }

    void aHandlerMayAskForAPreference()
    {
        int asked = 0;
        const HandlerGuard<NxReadError> guard(
            [](const NxError*, void* data) { *static_cast<int*>(data) = NxPreferences::getBool("KAL_TEST", 0); },
            &asked);
        load(settingsOf("KAL_TEST = on\nbroken"));
        QCOMPARE(asked, 1);
    }

    void threadsMayReadAndSetTogether()
    {
        const QByteArray path = settingsOf("KAL_TEST = file");
        std::vector<std::jthread> threads;
        for (int i = 0; i < 8; ++i) {
            threads.emplace_back([i, &path] {
                for (int n = 0; n < 200; ++n) {
                    if (i == 0)
                        load(path);
                    else if (i == 1)
                        NxPreferences::set("KAL_TEST", "process");
                    else if (const VbString value = NxPreferences::getString("KAL_TEST", "file");
                             value != VbString("file") && value != VbString("process"))
                        qFatal("torn value %s", value.toUtf8());
                }
            });
        }
        threads.clear();
        QCOMPARE(NxPreferences::getString("KAL_TEST", "").toUtf8(), "process");
    }
};

QTEST_APPLESS_MAIN(TestNxPreferences)
#include "tst_NxPreferences.moc"
