#include "meridane/scene/check/NxProblemKind.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

QString textOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

// What users and scripts read about the checks.
class TestCheckTable : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void identifiersAreStableWords()
    {
        QSet<QString> known;
        static const QRegularExpression pattern(QStringLiteral("^[a-z]+(-[a-z]+)*$"));
        for (std::size_t kind = 0; kind < meridane::problemKindCount; ++kind) {
            const QString identifier = textOf(meridane::problemClass(static_cast<NxProblemKind>(kind)).identifier);
            QVERIFY2(pattern.match(identifier).hasMatch(), qPrintable(identifier));
            QVERIFY2(!known.contains(identifier), qPrintable(identifier));
            known += identifier;
        }
        QCOMPARE(known.size(), qsizetype{meridane::problemKindCount});
        QVERIFY(!meridane::problemKind("no-such-problem"));
    }

    void thePageHasTheSameTable()
    {
        QFile page(QStringLiteral(DOCS_FOLDER "/checking.md"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromUtf8(page.readAll()).split(u'\n');
        QStringList expected{
            QStringLiteral("| identifier | severity | finds | mend |"), QStringLiteral("|---|---|---|---|")};
        for (std::size_t kind = 0; kind < meridane::problemKindCount; ++kind) {
            const meridane::ProblemClass& about = meridane::problemClass(static_cast<NxProblemKind>(kind));
            expected += QStringLiteral("| `%1` | %2 | %3 | %4 |")
                            .arg(textOf(about.identifier), textOf(meridane::severityText(about.severity)),
                                textOf(about.description), textOf(about.mend));
        }
        const qsizetype first = lines.indexOf(expected.front());
        QVERIFY(first >= 0);
        QCOMPARE(lines.mid(first, expected.size()), expected);
        QCOMPARE(lines.value(first + expected.size()), QString());
    }
};

QTEST_APPLESS_MAIN(TestCheckTable)
#include "tst_CheckTable.moc"
