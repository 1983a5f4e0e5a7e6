#include "TestFiles.h"

#include <QRegularExpression>
#include <QTest>

// The page about plug-ins walks through every line of the sample, which is short.
class TestSamplePage : public QObject {
    Q_OBJECT

    static QString textOf(const QString& name)
    {
        return QString::fromUtf8(readFile(QStringLiteral(SOURCE_FOLDER "/") + name));
    }

    /// The lines that aren't empty.
    static QStringList linesOf(const QString& text) { return text.split(u'\n', Qt::SkipEmptyParts); }

    /// What the page shows of the sample in that language.
    static QStringList shownLines(const QString& language)
    {
        const QString page = textOf(QStringLiteral("docs/plugins.md")).section(QStringLiteral("\n## "), 1, 1);
        const QRegularExpression blocks(QStringLiteral("^```%1\\n(.*?)^```$").arg(language),
            QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
        QStringList lines;
        for (const auto& block : blocks.globalMatch(page))
            lines += linesOf(block.captured(1));
        return lines;
    }

private Q_SLOTS:
    void thePageShowsEveryLine()
    {
        QCOMPARE(
            shownLines(QStringLiteral("cmake")), linesOf(textOf(QStringLiteral("examples/plugin/CMakeLists.txt"))));
        QCOMPARE(
            shownLines(QStringLiteral("cpp")), linesOf(textOf(QStringLiteral("examples/plugin/CompassPlugin.cpp"))));
    }

    void theSampleHasSixtyLinesAtMost()
    {
        const auto lines = textOf(QStringLiteral("examples/plugin/CMakeLists.txt")).count(u'\n')
            + textOf(QStringLiteral("examples/plugin/CompassPlugin.cpp")).count(u'\n');
        QVERIFY2(lines <= 60, qPrintable(QString::number(lines)));
    }
};

QTEST_GUILESS_MAIN(TestSamplePage)
#include "tst_SamplePage.moc"
