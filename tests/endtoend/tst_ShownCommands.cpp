#include "TestFiles.h"
#include "endtoend/ProgramCase.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

const QString sources = QStringLiteral(SOURCE_FOLDER);

QString textOf(const QString& name)
{
    return QString::fromUtf8(readFile(sources + u'/' + name));
}

// What a page shows to be typed: the lines of its shell blocks without their comments, and commands in the text.
QStringList commandsIn(const QString& page)
{
    static const QRegularExpression blocks(QStringLiteral("^```sh\\n(.*?)^```$"),
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression comment(QStringLiteral(" +#.*$"));
    static const QRegularExpression spans(QStringLiteral("`((?:orvane|orvane-import|cmake) [^`]+|script/[^`]+)`"));
    QStringList commands;
    for (const auto& block : blocks.globalMatch(page)) {
        for (QString line : block.captured(1).split(u'\n', Qt::SkipEmptyParts))
            commands.append(line.remove(comment));
    }
    for (const auto& span : spans.globalMatch(page))
        commands.append(span.captured(1));
    return commands;
}

bool hasPreset(const QString& kind, const QString& name)
{
    const QJsonArray presets
        = QJsonDocument::fromJson(textOf(QStringLiteral("CMakePresets.json")).toUtf8()).object().value(kind).toArray();
    return std::any_of(presets.begin(), presets.end(),
        [&](const QJsonValue& preset) { return preset.toObject().value(QStringLiteral("name")).toString() == name; });
}

} // namespace

// Each command that the documentation shows works as it is shown. The tool's own are run; building and testing would
// take too long in here, so of these it is looked up that script and preset are there, as are options of the import
// helper.
class TestShownCommands : public ProgramCase {
    Q_OBJECT

private:
    void runTool(QString command) const
    {
        static const QRegularExpression output(
            QStringLiteral("--(list|get|find|describe|diff|export|picture|screenshot|reset-settings|help|version)"));
        static const QRegularExpression window(QStringLiteral(" --(watch|reuse|new-window)\\b"));
        if (!command.contains(output)) // it opens a window, whose picture needs no watching and no other window
            command = command.remove(window) + QStringLiteral(" --screenshot shown.png");
        const Outcome outcome = runShell(
            QStringLiteral("PATH=\"$0:$PATH\" ") + command, {QFileInfo(QStringLiteral(ORVANE_PROGRAM)).path()});
        QCOMPARE(QString::fromUtf8(outcome.errors), QString());
        // The files that are compared may differ.
        QVERIFY(outcome.status == 0 || (outcome.status == 1 && command.contains(QStringLiteral("--diff"))));
    }

private Q_SLOTS:
    void init()
    {
        makeFolder();
        QVERIFY(QFile::link(sources + QStringLiteral("/examples"), path(QStringLiteral("examples"))));
        QVERIFY(QDir(folder()).mkdir(QStringLiteral("build")));
        QVERIFY(QFile::link(QStringLiteral(BUILD_FOLDER), path(QStringLiteral("build/debug"))));
        QVERIFY(QFile::copy(QStringLiteral(MODEL_FOLDER "/crate.glb"), path(QStringLiteral("model.glb"))));
        QVERIFY(QFile::copy(sources + QStringLiteral("/examples/robot.mrd"), path(QStringLiteral("robot.mrd"))));
    }

    void everyCommandWorks_data()
    {
        QTest::addColumn<QString>("command");
        QStringList pages{QStringLiteral("README.md")};
        for (const QString& name : QDir(sources + QStringLiteral("/docs")).entryList({QStringLiteral("*.md")}))
            pages.append(QStringLiteral("docs/") + name);
        pages.removeOne(QStringLiteral("docs/tutorial.md")); // has a test of its own, which does all of its steps
        for (const QString& page : pages) {
            for (const QString& command : commandsIn(textOf(page)))
                QTest::addRow("%s: %s", qPrintable(page), qPrintable(command)) << command;
        }
    }

    void everyCommandWorks()
    {
        QFETCH(const QString, command);
        const QStringList words = command.split(u' ', Qt::SkipEmptyParts);
        const QString& program = words.front();
        const auto valueOf = [&](const char* option) { return words.value(words.indexOf(QLatin1String(option)) + 1); };
        if (program.startsWith(QStringLiteral("script/"))) {
            QVERIFY(QFileInfo(sources + u'/' + program).isExecutable());
        } else if (program == QStringLiteral("cpack")
            || words.mid(0, 2).join(u' ') == QStringLiteral("cmake --install")) {
            // They take long, and have tests of their own.
            QVERIFY(words.filter(QStringLiteral("build/release")).size() >= 1);
        } else if (program == QStringLiteral("cmake")) {
            const QString kind = words.contains(QStringLiteral("--workflow")) ? QStringLiteral("workflowPresets")
                : words.contains(QStringLiteral("--build"))                   ? QStringLiteral("buildPresets")
                                                                              : QStringLiteral("configurePresets");
            QVERIFY(hasPreset(kind, valueOf("--preset")));
        } else if (program == QStringLiteral("orvane-import")) {
            // Some read what the tool sends them, so these are looked up too.
            const QByteArray help
                = runShell(QStringLiteral("\"$0-import\" --help"), {QStringLiteral(ORVANE_PROGRAM)}).output;
            for (const QString& option : words.filter(QRegularExpression(QStringLiteral("^--"))))
                QVERIFY2(help.contains(option.toLatin1()), help.constData());
        } else if (program == QStringLiteral("cp") || program.startsWith(QStringLiteral("update-"))) {
            // They change the user's desktop. The files of ours that they name are there.
            for (const QString& file : words.filter(QRegularExpression(QStringLiteral("^orvane/"))))
                QVERIFY2(QFileInfo(sources + u'/' + file).isFile(), qPrintable(file));
        } else {
            QVERIFY2(program.section(u'/', -1) == QStringLiteral("orvane"), "a command of another kind");
            runTool(command);
        }
    }

    void theReadMeShowsTheTool()
    {
        // The test above says nothing if it finds no commands.
        const QStringList commands = commandsIn(textOf(QStringLiteral("README.md")));
        for (const char* const option : {"--list", "--get", "--set", "--diff", "--export", "--screenshot"})
            QVERIFY2(!commands.filter(QLatin1String(option)).isEmpty(), option);
    }
};

QTEST_GUILESS_MAIN(TestShownCommands)
#include "tst_ShownCommands.moc"
