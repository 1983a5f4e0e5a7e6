#include "orvane/app/help/HelpPages.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

// The application's library is linked into the program, which finds resources of such a library when it is told of
// them.
static void initializeHelp()
{
    Q_INIT_RESOURCE(help);
}

namespace orvane {

namespace {

QString localName(const QUrl& address)
{
    return address.scheme() == QLatin1String("qrc") ? u':' + address.path() : address.toLocalFile();
}

QString textAt(const QUrl& address)
{
    QFile file(localName(address));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

HelpPages::HelpPages()
    : HelpPages(QUrl(QStringLiteral("qrc:/orvane/help/")))
{
}

HelpPages::HelpPages(const QUrl& folder)
    : m_folder(folder)
{
    initializeHelp();
    static const QRegularExpression row(QStringLiteral(R"(^\| \[([^\]]+)\]\(([^)#]+)\) \| (.*) \|$)"));
    const QStringList lines = text(contents()).split(u'\n');
    QString group;
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1String("## ")))
            group = line.mid(3);
        else if (const auto match = row.match(line); match.hasMatch())
            m_pages.append({match.captured(2), match.captured(1), group, match.captured(3)});
    }
}

QString HelpPages::contents()
{
    return QStringLiteral("help.md");
}

const HelpPage* HelpPages::page(const QString& file) const
{
    const auto found
        = std::find_if(m_pages.begin(), m_pages.end(), [&file](const HelpPage& page) { return page.file == file; });
    return found == m_pages.end() ? nullptr : &*found;
}

const HelpPage* HelpPages::pageAt(const QUrl& address) const
{
    const QUrl whole = address.adjusted(QUrl::RemoveFragment);
    const auto found = std::find_if(m_pages.begin(), m_pages.end(),
        [this, &whole](const HelpPage& page) { return this->address(page.file) == whole; });
    return found == m_pages.end() ? nullptr : &*found;
}

QUrl HelpPages::address(const QString& file) const
{
    return m_folder.resolved(QUrl(QStringLiteral("docs/"))).resolved(QUrl(file));
}

QList<HelpHit> HelpPages::find(const QStringList& words) const
{
    QList<HelpHit> hits;
    QList<const HelpPage*> named;
    for (const HelpPage& page : m_pages) {
        const QString content = words.isEmpty() ? QString() : text(page.file);
        const auto has = [](const QString& text) {
            return [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); };
        };
        if (!std::all_of(words.begin(), words.end(), has(content)))
            continue;
        qsizetype count = 0;
        for (const QString& word : words)
            count += content.count(word, Qt::CaseInsensitive);
        hits.append({&page, count});
        if (std::all_of(words.begin(), words.end(), has(page.title)))
            named.append(&page);
    }
    if (!words.isEmpty())
        std::stable_sort(hits.begin(), hits.end(), [&named](const HelpHit& left, const HelpHit& right) {
            const bool isNamed = named.contains(left.page);
            return isNamed != named.contains(right.page) ? isNamed : left.count > right.count;
        });
    return hits;
}

QString HelpPages::text(const QString& file) const
{
    return textAt(address(file));
}

QString headingAnchor(const QString& heading)
{
    QString anchor;
    for (const QChar letter : heading.trimmed().toLower()) {
        if (letter == u' ')
            anchor += u'-';
        else if (letter.isLetterOrNumber() || letter == u'-' || letter == u'_')
            anchor += letter;
    }
    return anchor;
}

} // namespace orvane
