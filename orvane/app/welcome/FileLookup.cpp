#include "orvane/app/welcome/FileLookup.h"

#include "orvane/app/base/TextConversion.h"

#include <utility>

#include <sys/stat.h>

FileLookup::FileLookup(Look look, std::chrono::milliseconds patience, QObject* parent)
    : QObject(parent)
    , m_look(std::move(look))
    , m_patience(patience)
    , m_jobs(mostThreads)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &FileLookup::reportLate);
}

FileLookup::~FileLookup() = default;

void FileLookup::request(const QString& fileName)
{
    if (m_asked.contains(fileName))
        return;
    m_asked[fileName].start();
    if (!m_timer.isActive())
        m_timer.start(m_patience);
    m_jobs.run([this, look = m_look, fileName]() -> BackgroundJobs::Take {
        const FileState state = look(fileName);
        // Carried out only as long as this object is there.
        return [this, fileName, state] { take(fileName, state); };
    });
}

FileState FileLookup::look(const QString& fileName)
{
    struct stat status { };
    if (::stat(orvane::toStdFileName(fileName).c_str(), &status) != 0)
        return {FileState::Kind::Missing, {}};
    return {FileState::Kind::There, QDateTime::fromSecsSinceEpoch(status.st_mtim.tv_sec)};
}

void FileLookup::take(const QString& fileName, const FileState& state)
{
    m_asked.remove(fileName);
    Q_EMIT found(fileName, state);
}

void FileLookup::reportLate()
{
    QStringList late;
    for (auto asked = m_asked.constBegin(); asked != m_asked.constEnd(); ++asked) {
        if (asked->elapsed() >= m_patience.count())
            late.append(asked.key());
    }
    for (const QString& fileName : std::as_const(late)) {
        m_asked.remove(fileName);
        Q_EMIT found(fileName, {FileState::Kind::NoAnswer, {}});
    }
    if (!m_asked.isEmpty())
        m_timer.start(m_patience);
}
