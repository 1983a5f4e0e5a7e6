#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/text/TextReader.h"

#include <QTest>

namespace {

// What is longer than a slice of the reader, and shorter than two.
constexpr int longerThanASlice = 12000;

QByteArray repeated(const char* text, int bytes)
{
    return QByteArray(text).repeated(bytes / static_cast<int>(qstrlen(text)));
}

NxRef<NxGroup> read(const QByteArray& text, std::string& failure)
{
    NxSceneReader reader(text.toStdString(), "test.mrd");
    reader.run();
    failure = reader.failure().text();
    return reader.takeScene();
}

// With names, labels, references, unknown fields, and values of all kinds.
const char* const scene = "#mrd 1.0\n"
                          "Transform \"base\" as \"b\" {\n"
                          " translation = 1 2 3\n"
                          " ignored rotation = 0 1 0 0.5\n"
                          " unknownField = [ \"a]\" , { ] ; other = \"x\" ;\n"
                          " Mesh { positions = [ 0 0 0 , 1 0 0 , 0 1 0 ] ; indices = [ 0 , 1 , 2 ]\n"
                          " primitive = POINTS }\n"
                          " Strange \"s\" { Texture { filePath = \"a b\" ; image = 2 1 1 0x10 0xff } }\n"
                          "}\n"
                          "FieldGallery { sfBitMask = 1 | 2 | 4\n"
                          " mfString = [ \"one\" , \"t\\\\w\\\"o\" , three ] ; mfColor = 1 0 0.5 }\n"
                          "Group { use \"b\" ; use \"s\" }\n";

} // namespace

/// Scenes with parts of any length: they are read the same, and in slices.
class TestNxSceneReaderSlices : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whateverIsLongIsReadInManySteps_data()
    {
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char* name, const char* before, const char* part, const char* behind) {
            QTest::newRow(name) << QByteArray(before) + repeated(part, size) + QByteArray(behind);
        };
        row("blanks between nodes", "#mrd 1.0\n", " ", "Group {}\n");
        row("lines between nodes", "#mrd 1.0\n", "\n", "Group {}\n");
        row("a comment", "#mrd 1.0\n#", "x", "\nGroup {}\n");
        row("comments", "#mrd 1.0\n", "#x\n", "\nGroup {}\n");
        row("semicolons", "#mrd 1.0\n", ";", "Group {}\n");
        row("blanks in a value", "#mrd 1.0\nTransform { translation = 1 ", " ", " 2 3 }\n");
        row("blanks ahead of a value", "#mrd 1.0\nTransform { translation = ", "\t", "1 2 3 }\n");
        row("blanks behind a value", "#mrd 1.0\nTransform { translation = 1 2 3", " ", "}\n");
        row("blanks behind a mask", "#mrd 1.0\nFieldGallery { sfBitMask = 1", " ", "| 2 }\n");
        row("blanks in a list", "#mrd 1.0\nMesh { indices = [1", " ", ", 2] }\n");
        row("comments in a list", "#mrd 1.0\nMesh { indices = [1\n", "# 1 2 3\n", ", 2] }\n");
        row("blanks in an image", "#mrd 1.0\nTexture { image = 1 2 1", " ", "0x1 0x2 }\n");
        row("blanks in a head", "#mrd 1.0\nGroup \"a\"", " ", "as \"b\" { }\n");
        row("blanks ahead of an equals sign", "#mrd 1.0\nMesh { indices", " ", "= 1 }\n");
        row("blanks behind an unknown value", "#mrd 1.0\nMesh { strange = 1", " ", "\n}\n");
        row("a text", "#mrd 1.0\nTexture { filePath = \"", "x", "\" }\n");
        row("a text of escapes", "#mrd 1.0\nTexture { filePath = \"", "\\\"", "\" }\n");
        row("texts", "#mrd 1.0\nFieldGallery { mfString = [", "\"\" ", "] }\n");
        row("an unknown value", "#mrd 1.0\nMesh { strange = ", "x", " }\n");
        row("quotes in an unknown value", "#mrd 1.0\nMesh { strange = ", "\"\"", " }\n");
        row("a text without an end", "#mrd 1.0\nTexture { filePath = \"", "\\\"", "");
        row("a name", "#mrd 1.0\nGroup \"", "x", "\" {}\n");
    }

    void whateverIsLongIsReadInManySteps()
    {
        QFETCH(QByteArray, text);
        NxSceneReader reader(text.toStdString(), "test.mrd");
        // The encoding of all is checked first, in larger slices.
        while (
            reader.progress() < 0.049 && reader.step(std::chrono::microseconds(0)) == NxSceneReader::State::Working) { }
        int steps = 1;
        while (reader.step(std::chrono::microseconds(0)) == NxSceneReader::State::Working)
            ++steps;
        QVERIFY2(steps > size / mostBytesAStep, qPrintable(QString::number(steps)));
    }

    void whateverIsLongIsWrittenInManySteps_data()
    {
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char* name, const char* before, const char* part, const char* behind) {
            QTest::newRow(name) << QByteArray(before) + repeated(part, size) + QByteArray(behind);
        };
        row("a text", "#mrd 1.0\nTexture { filePath = \"", "x", "\" }\n");
        row("a text of escapes", "#mrd 1.0\nTexture { filePath = \"", "\\\"", "\" }\n");
        row("texts", "#mrd 1.0\nFieldGallery { mfString = [", "\"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx\" ", "] }\n");
        row("a text in a list", "#mrd 1.0\nFieldGallery { mfString = [\"a\", \"", "\\n", "\", \"\", \"b\"] }\n");
        row("an unknown value", "#mrd 1.0\nMesh { strange = ", "x", " }\n");
    }

    void whateverIsLongIsWrittenInManySteps()
    {
        QFETCH(QByteArray, text);
        std::string failure;
        const NxRef<NxGroup> opened = read(text, failure);
        QVERIFY2(opened, failure.c_str());
        NxSceneWriter writer(opened.get());
        std::string whole;
        bool more = true;
        while (more) {
            std::string slice;
            more = writer.step(slice, std::chrono::microseconds(0));
            QVERIFY2(slice.size() < std::size_t{2} * mostBytesAStep, qPrintable(QString::number(slice.size())));
            whole += slice;
        }
        const NxRef<NxGroup> again = read(QByteArray::fromStdString(whole), failure);
        QVERIFY2(again, failure.c_str());
        QVERIFY(NxSceneWriter::toText(again.get()) == whole);
        QVERIFY(whole.size() > static_cast<std::size_t>(size));
    }

    void blanksOfAnyLengthMayBeBetweenTokens()
    {
        std::string failure;
        const NxRef<NxGroup> plain = read(scene, failure);
        QVERIFY2(plain, failure.c_str());
        const std::string expected = NxSceneWriter::toText(plain.get());
        const QByteArray text(scene);
        int places = 0;
        bool quoted = false;
        for (qsizetype place = text.indexOf('\n'); place < text.size(); ++place) {
            quoted = quoted != (text[place] == '"' && text[place - 1] != '\\');
            if (quoted || (text[place] != ' ' && text[place] != '\n'))
                continue;
            // An unknown value keeps its blanks.
            if (text.mid(0, place).endsWith("[ \"a]\"") || text.mid(0, place).endsWith("[")
                || text.mid(0, place).endsWith("{") || text.mid(0, place).endsWith(","))
                continue;
            QByteArray longer = text;
            longer.insert(place, QByteArray(longerThanASlice + places, text[place]));
            const NxRef<NxGroup> result = read(longer, failure);
            QVERIFY2(result, failure.c_str());
            QCOMPARE(NxSceneWriter::toText(result.get()), expected);
            ++places;
        }
        QVERIFY2(places > 90, qPrintable(QString::number(places)));
    }

    void commentsOfAnyLengthMayBeBetweenStatements()
    {
        std::string failure;
        const std::string expected = NxSceneWriter::toText(read(scene, failure).get());
        const QByteArray text(scene);
        for (qsizetype place = text.indexOf('\n', text.indexOf('{')); place >= 0;
             place = text.indexOf('\n', place + 1)) {
            QByteArray longer = text;
            longer.insert(
                place, '#' + QByteArray(longerThanASlice, '"') + "\n #" + QByteArray(3 * longerThanASlice, 'x'));
            const NxRef<NxGroup> result = read(longer, failure);
            QVERIFY2(result, failure.c_str());
            QCOMPARE(NxSceneWriter::toText(result.get()), expected);
        }
    }

    void failuresBehindLongPartsHaveTheirPlace_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("message");
        const QByteArray start = "#mrd 1.0\nTransform {\n";
        const QByteArray blanks(300000, ' ');
        QTest::newRow("a number") << start + " translation = 1" + blanks + "x 3 }\n"
                                  << QByteArray("test.mrd:3:300017: expected a number, found \"x\"");
        QTest::newRow("what follows") << start + " translation = 1 2 3" + blanks + "4 }\n"
                                      << QByteArray("test.mrd:3:300021: expected the end of the line");
        QTest::newRow("an escape") << start + " x {}\n Texture { filePath = \"" + QByteArray(300000, 'x')
                + "\\q\" } }\n" << QByteArray("test.mrd:4:300024: expected one of the escapes");
        QTest::newRow("a closing quote") << start + " Texture { filePath = \"" + QByteArray(300000, 'x') + "\\\" }\n"
                                         << QByteArray("test.mrd:3:23: expected a text with a closing quote");
        QTest::newRow("the end") << start + blanks << QByteArray("test.mrd:3:300001: unexpected end of file");
        QTest::newRow("an end in a comment")
            << start + '#' + blanks << QByteArray("test.mrd:3:300002: unexpected end of file");
        QTest::newRow("a word") << start + blanks + "? }\n"
                                << QByteArray("test.mrd:3:300001: expected a field, a node or \"}\"");
    }

    void failuresBehindLongPartsHaveTheirPlace()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, message);
        std::string failure;
        QVERIFY(!read(text, failure));
        QVERIFY2(failure.starts_with(message.toStdString()), failure.substr(0, 200).c_str());
    }

    void numbersAndWordsHaveALimit_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<int>("bytes");
        QTest::addColumn<bool>("isRead");
        const int most = meridane::TextReader::longestWord;
        QTest::newRow("longest number") << QByteArray("Complexity { value = 0.") << most - 2 << true;
        QTest::newRow("number too long") << QByteArray("Complexity { value = 0.") << most - 1 << false;
        QTest::newRow("longest word") << QByteArray("Texture { filePath = ") << most << true;
        QTest::newRow("word too long") << QByteArray("Texture { filePath = ") << most + 1 << false;
    }

    void numbersAndWordsHaveALimit()
    {
        QFETCH(QByteArray, value);
        QFETCH(int, bytes);
        QFETCH(bool, isRead);
        std::string failure;
        const NxRef<NxGroup> result = read("#mrd 1.0\n" + value + QByteArray(bytes, '1') + " }\n", failure);
        QVERIFY2((result.get() != nullptr) == isRead, failure.substr(0, 200).c_str());
    }

private:
    static constexpr int size = 1 << 20;
    /// The most bytes that one step may take.
    static constexpr int mostBytesAStep = 1 << 18;
};

QTEST_GUILESS_MAIN(TestNxSceneReaderSlices)
#include "tst_NxSceneReaderSlices.moc"
