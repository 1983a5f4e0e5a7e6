#include "TestFiles.h"

#include "orvane/app/help/HelpPages.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString content(const QUrl& address)
{
    return QString::fromUtf8(readFile(u':' + address.path()));
}

// The text without its code, in which brackets are no links.
QString withoutCode(QString text)
{
    static const QRegularExpression blocks(QStringLiteral("^```.*?^```$"),
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression spans(QStringLiteral("`[^`\n]+`"));
    return text.remove(blocks).remove(spans);
}

QSet<QString> anchorsOf(const QString& text)
{
    static const QRegularExpression headings(QStringLiteral("^#+ (.*)$"), QRegularExpression::MultilineOption);
    QSet<QString> anchors;
    for (const auto& heading : headings.globalMatch(text))
        anchors.insert(orvane::headingAnchor(heading.captured(1).remove(u'`')));
    return anchors;
}

} // namespace

class TestHelpPages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachPageOfTheDocumentationIsListed()
    {
        const orvane::HelpPages pages;
        const QStringList files = QDir(QStringLiteral(":/orvane/help/docs")).entryList({QStringLiteral("*.md")});
        QVERIFY(files.size() > 20);
        for (const QString& file : files)
            QVERIFY2(file == orvane::HelpPages::contents() || pages.page(file) != nullptr, qPrintable(file));
        for (const orvane::HelpPage& page : pages.pages()) {
            QVERIFY2(!content(pages.address(page.file)).isEmpty(), qPrintable(page.file));
            QVERIFY(!page.title.isEmpty());
            QVERIFY(!page.group.isEmpty());
            QVERIFY(!page.summary.isEmpty());
        }
    }

    void eachLinkLeadsSomewhere()
    {
        static const QRegularExpression links(QStringLiteral("\\]\\(([^)\\s]+)\\)"));
        const orvane::HelpPages pages;
        int count = 0;
        for (const orvane::HelpPage& page : pages.pages()) {
            const QUrl address = pages.address(page.file);
            for (const auto& link : links.globalMatch(withoutCode(content(address)))) {
                const QUrl target = address.resolved(QUrl(link.captured(1)));
                if (target.scheme() != QLatin1String("qrc"))
                    continue;
                const QByteArray where = (page.file + QStringLiteral(": ") + link.captured(1)).toUtf8();
                QVERIFY2(QFile::exists(u':' + target.path()), where.constData());
                if (target.hasFragment())
                    QVERIFY2(anchorsOf(content(target)).contains(target.fragment()), where.constData());
                ++count;
            }
        }
        QVERIFY(count > 100);
    }

    void pagesWithAllWordsAreFoundThoseWithTheTitleFirst()
    {
        const orvane::HelpPages pages;
        const QList<orvane::HelpHit> hits = pages.find({QStringLiteral("PLUG"), QStringLiteral("ins")});
        QVERIFY(hits.size() > 1);
        QCOMPARE(hits.front().page->file, QStringLiteral("plugins.md"));
        for (const orvane::HelpHit& hit : hits) {
            QVERIFY(content(pages.address(hit.page->file)).contains(QStringLiteral("plug"), Qt::CaseInsensitive));
            QVERIFY(hit.count >= 2);
        }
        QVERIFY(pages.find({QStringLiteral("plug"), QStringLiteral("qwertzuiop")}).isEmpty());
    }

    void withoutWordsAllPagesAreListedInTheirOrder()
    {
        const orvane::HelpPages pages;
        const QList<orvane::HelpHit> hits = pages.find({});
        QCOMPARE(hits.size(), pages.pages().size());
        QCOMPARE(hits.front().page->file, QStringLiteral("guide.md"));
    }

    void addressesLeadToPages()
    {
        const orvane::HelpPages pages;
        QCOMPARE(pages.pageAt(pages.address(QStringLiteral("view.md#handles")))->file, QStringLiteral("view.md"));
        QCOMPARE(pages.pageAt(QUrl(QStringLiteral("qrc:/elsewhere.md"))), nullptr);
        QCOMPARE(pages.page(QStringLiteral("elsewhere.md")), nullptr);
    }

    void aFolderWithoutAListHasNoPages()
    {
        const QTemporaryDir folder;
        const orvane::HelpPages pages(QUrl::fromLocalFile(folder.path() + u'/'));
        QVERIFY(pages.pages().isEmpty());
        QVERIFY(pages.find({}).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestHelpPages)
#include "tst_HelpPages.moc"
