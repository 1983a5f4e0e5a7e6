#include "Patience.h"
#include "TestFiles.h"
#include "endtoend/LiveTool.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

// One instruction of the page, such as "Press `Ctrl+F`.".
struct Instruction {
    QString section;
    QString text;
};

QString page()
{
    return QString::fromUtf8(readFile(QStringLiteral(SOURCE_FOLDER "/docs/tutorial.md")));
}

QList<Instruction> instructionsOf(const QString& page)
{
    QList<Instruction> instructions;
    QString section;
    const QStringList lines = page.split(u'\n');
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1String("## ")))
            section = line.mid(3);
        else if (line.startsWith(QLatin1String("- ")))
            instructions.append({section, line.mid(2)});
    }
    return instructions;
}

// A key as the page writes it, in the words of X.
QString keyName(const QString& written)
{
    QStringList parts = written.split(u'+');
    for (QString& part : parts) {
        if (part == QLatin1String("Ctrl") || part == QLatin1String("Shift") || part == QLatin1String("Alt")
            || part.size() == 1)
            part = part.toLower();
    }
    return parts.join(u'+');
}

} // namespace

// Carries out the tutorial in the running tool, step by step, as the page says it, and compares the file with what the
// page promises. A sentence that the test doesn't understand fails it.
class TestTutorial : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] QString fileName() const { return m_folder.filePath(QStringLiteral("robot.mrd")); }

    [[nodiscard]] QString textOfLine() { return m_tool.property(m_line, QStringLiteral("text")); }

    void press(const QString& key)
    {
        // Where the letters go that are typed next. A user goes on when the line is there.
        const QHash<QString, QString> lines{
            {QStringLiteral("Ctrl+F"), QStringLiteral("findEdit")},
            {QStringLiteral("F2"), m_view + QStringLiteral("/QLineEdit")},
            {QStringLiteral("Insert"), QStringLiteral("addNodeLine")},
        };
        m_tool.key(keyName(key));
        if (lines.contains(key)) {
            m_line = lines.value(key);
            if (key == QLatin1String("F2") && m_field.endsWith(QLatin1String("Color"))) {
                QVERIFY(!m_tool.widget(QStringLiteral("colorPopup")).isEmpty());
                return;
            }
            QVERIFY2(m_tool.becomes(m_line, QStringLiteral("focus")), qPrintable(key));
        } else if (key == QLatin1String("Ctrl+S")) {
            QTRY_VERIFY(!m_tool.property(QStringLiteral("mainWindow"), QStringLiteral("windowModified"))
                             .startsWith(QLatin1String("true")));
        } else if (key == QLatin1String("Return") && m_line == QLatin1String("addNodeLine")) {
            QVERIFY(m_tool.becomes(m_view, QStringLiteral("focus")));
        } else if (key == QLatin1String("Return") && m_line != QLatin1String("findEdit")) {
            QTRY_VERIFY(!m_tool.isShown(m_line));
        }
    }

    void type(const QString& text)
    {
        m_tool.type(text);
        QTRY_COMPARE(textOfLine(), text);
    }

    void click(const QString& text, const QString& place)
    {
        m_view = place == QLatin1String("field table") ? QStringLiteral("fieldTable") : QStringLiteral("sceneTree");
        const QRect row = m_tool.item(m_view, text);
        QVERIFY2(!row.isEmpty(), qPrintable(text));
        m_tool.click(row.center());
        m_field = text;
        QVERIFY(m_tool.becomes(m_view, QStringLiteral("focus")));
    }

    void clickIntoHexLine()
    {
        m_line = QStringLiteral("hexLine");
        m_tool.click(m_tool.widget(m_line).center());
        QVERIFY(m_tool.becomes(m_line, QStringLiteral("focus")));
    }

    void clickIntoView()
    {
        m_tool.click(m_tool.widget(QStringLiteral("sceneView")).center());
        QVERIFY(m_tool.becomes(QStringLiteral("sceneView"), QStringLiteral("focus")));
    }

    void showsHeading(const QString& name)
    {
        QTRY_VERIFY2(m_tool.property(QStringLiteral("fieldHeading"), QStringLiteral("text")).contains(name),
            qPrintable(m_tool.property(QStringLiteral("fieldHeading"), QStringLiteral("text"))));
    }

    void carryOut(const Instruction& instruction)
    {
        static const QRegularExpression key(QStringLiteral("^Press `([^`]+)`\\.$"));
        static const QRegularExpression letters(QStringLiteral("^Type `([^`]+)`\\.$"));
        static const QRegularExpression row(QStringLiteral("^Click `([^`]+)` in the (field table|scene tree)\\.$"));
        static const QRegularExpression heading(QStringLiteral("^The field table is headed `([^`]+)`\\.$"));
        const QString& text = instruction.text;
        if (const auto match = key.match(text); match.hasMatch())
            press(match.captured(1));
        else if (const auto typed = letters.match(text); typed.hasMatch())
            type(typed.captured(1));
        else if (const auto clicked = row.match(text); clicked.hasMatch())
            click(clicked.captured(1), clicked.captured(2));
        else if (const auto shown = heading.match(text); shown.hasMatch())
            showsHeading(shown.captured(1));
        else if (text == QLatin1String("Click into the line `Hex`."))
            clickIntoHexLine();
        else if (text == QLatin1String("Click into the view."))
            clickIntoView();
        else
            QFAIL(qPrintable(QStringLiteral("The test doesn't understand this: ") + text));
    }

    // What a command of the page prints, without the line's end.
    [[nodiscard]] QString printed(const QString& command) const
    {
        QProcess process;
        process.setWorkingDirectory(m_folder.path());
        QStringList arguments = QProcess::splitCommand(command);
        arguments[0] = QStringLiteral("--no-settings");
        process.start(QStringLiteral(ORVANE_PROGRAM), arguments);
        if (!process.waitForFinished(testPatience) || process.exitCode() != 0)
            return QStringLiteral("status %1").arg(process.exitCode());
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }

    QTemporaryDir m_folder;
    LiveTool m_tool;
    QString m_view; // the object name of the tree or table that was clicked last
    QString m_field; // the row that was clicked last
    QString m_line; // the object name of the line that is typed into

private Q_SLOTS:
    void eachStepWorksAsItIsWritten()
    {
        QVERIFY(QFile::copy(QStringLiteral(SOURCE_FOLDER "/examples/robot.mrd"), fileName()));
        QVERIFY(QFile::setPermissions(fileName(), QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(m_tool.start({fileName()}));
        const QList<Instruction> instructions = instructionsOf(page());
        QVERIFY(instructions.size() > 30);
        for (const Instruction& instruction : instructions) {
            carryOut(instruction);
            if (QTest::currentTestFailed()) {
                m_tool.saveScreen(QStringLiteral("tutorial-failed.png"));
                qWarning("In \"%s\": %s", qPrintable(instruction.section), qPrintable(instruction.text));
                return;
            }
        }
    }

    void theFileHasWhatThePagePromises()
    {
        static const QRegularExpression command(
            QStringLiteral("^orvane --(?:get|check).*$"), QRegularExpression::MultilineOption);
        static const QRegularExpression result(
            QStringLiteral("^\\| [0-9] \\| (?:`([^`]+)`|nothing.*) \\|$"), QRegularExpression::MultilineOption);
        const QString text = page();
        QStringList commands;
        for (const auto& match : command.globalMatch(text))
            commands.append(match.captured());
        QStringList results;
        for (const auto& match : result.globalMatch(text))
            results.append(match.captured(1));
        QVERIFY(commands.size() >= 5);
        QCOMPARE(commands.size(), results.size());
        for (qsizetype line = 0; line < commands.size(); ++line)
            QCOMPARE(printed(commands.at(line)), results.at(line));
    }
};

QTEST_GUILESS_MAIN(TestTutorial)
#include "tst_Tutorial.moc"
