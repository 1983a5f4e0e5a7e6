#include "orvane/app/log/LogLinks.h"

#include "orvane/app/scene/SceneDocument.h"

#include "meridane/scene/file/NxScenePath.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr qsizetype mostTexts = 2'000;
constexpr qsizetype mostLinks = 8; // in one text
constexpr qsizetype longestPath = 4096;
const QString marksAtEnd = QStringLiteral(".,;:!?)]}'\"");

/// The length of a path without the marks of the sentence that it ends.
qsizetype withoutMarks(const QString& text, qsizetype start, qsizetype length)
{
    while (length > 0 && marksAtEnd.contains(text[start + length - 1]))
        --length;
    return length;
}

/// Where a path may end: at a blank, a quote, or a line number.
qsizetype endOfWord(const QString& text, qsizetype start)
{
    qsizetype end = start;
    while (end < text.size() && !text[end].isSpace() && text[end] != u'"' && text[end] != u'<' && text[end] != u'>')
        ++end;
    return end;
}

/// The file in front of line numbers such as `:12` or `:12:5`.
qsizetype lengthOfFile(const QString& text, qsizetype start, qsizetype length)
{
    static const QRegularExpression numbers(QStringLiteral(":\\d+(:\\d+)?:?$"));
    const QRegularExpressionMatch match = numbers.match(text.mid(start, length));
    return match.hasMatch() ? match.capturedStart() : length;
}

/// Automatic mounts wait for other machines, and two slashes are no local file everywhere.
bool isLocal(const QString& path)
{
    return !path.startsWith(QStringLiteral("//")) && !path.startsWith(QStringLiteral("/net/"));
}

} // namespace

LogLinks::LogLinks(SceneDocument& document, QObject* parent)
    : QObject(parent)
    , m_document(document)
{
    connect(&document, &SceneDocument::sceneChanged, this, &LogLinks::forget);
    connect(&m_files, &FileProbe::answered, this, &LogLinks::forget);
}

void LogLinks::forget()
{
    m_known.clear();
    Q_EMIT changed();
}

const LogLinks::Links& LogLinks::of(const QString& text)
{
    const auto known = m_known.constFind(text);
    if (known != m_known.constEnd())
        return *known;
    if (m_known.size() >= mostTexts)
        m_known.clear();
    return *m_known.insert(text, find(text));
}

bool LogLinks::isNode(const QString& path) const
{
    if (!m_document.isOpen())
        return false;
    const NxScenePath::Target target = NxScenePath::find(m_document.scene(), path.toStdString());
    return target.error.empty() && !target.nodes.empty();
}

/// Names may have blanks, so the longest path of some words that leads somewhere is meant.
bool LogLinks::addNode(Links& links, const QString& text, qsizetype start)
{
    constexpr int mostWords = 4;
    qsizetype found = 0;
    qsizetype end = start;
    for (int word = 0; word < mostWords && end < text.size(); ++word) {
        end = endOfWord(text, word == 0 ? start : end + 1);
        const qsizetype length = withoutMarks(text, start, end - start);
        if (length > 1 && isNode(text.mid(start, length)))
            found = length;
        if (end < text.size() && !text[end].isSpace())
            break;
    }
    if (found > 0)
        links.append({LogLink::Kind::Node, static_cast<int>(start), static_cast<int>(found), text.mid(start, found)});
    return found > 0;
}

bool LogLinks::addFile(Links& links, const QString& text, qsizetype start, qsizetype length)
{
    const qsizetype shown = withoutMarks(text, start, length);
    const QString name = text.mid(start, lengthOfFile(text, start, shown));
    if (name.size() < 2 || name.size() > longestPath || !isLocal(name))
        return false;
    const QString path = QDir::cleanPath(QDir::current().absoluteFilePath(name));
    const FileProbe::State state = m_files.look(path);
    if (state != FileProbe::State::File && state != FileProbe::State::Folder)
        return false;
    const auto kind = state == FileProbe::State::File ? LogLink::Kind::File : LogLink::Kind::Folder;
    links.append({kind, static_cast<int>(start), static_cast<int>(shown), path});
    return true;
}

LogLinks::Links LogLinks::find(const QString& text)
{
    // Messages about files begin with the name and the line, and names may have blanks.
    static const QRegularExpression place(QStringLiteral("^([^:\"]+:\\d+(?::\\d+)?):"));
    static const QRegularExpression slash(QStringLiteral("(?<![\\w./~:-])/(?=[^\\s/])"));
    Links links;
    qsizetype next = 0;
    if (const QRegularExpressionMatch match = place.match(text);
        match.hasMatch() && addFile(links, text, 0, match.capturedLength(1)))
        next = match.capturedEnd(1);
    while (links.size() < mostLinks) {
        const QRegularExpressionMatch match = slash.match(text, next);
        if (!match.hasMatch())
            break;
        const qsizetype start = match.capturedStart();
        // In quotes it goes to the next quote.
        const qsizetype quote = start > 0 && text[start - 1] == u'"' ? text.indexOf(u'"', start) : -1;
        const qsizetype end = quote > 0 ? quote : endOfWord(text, start);
        const bool isFound = addNode(links, text, start) || addFile(links, text, start, end - start);
        next = isFound ? links.back().start + links.back().length : end;
    }
    return links;
}
