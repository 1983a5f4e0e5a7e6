#include "orvane/app/log/FileProbe.h"

#include <QFileInfo>

#include <mutex>
#include <thread>
#include <utility>

namespace {

constexpr qsizetype mostKnown = 10'000;

FileProbe::State stateOf(const QString& path)
{
    const QFileInfo file(path);
    if (file.isDir())
        return FileProbe::State::Folder;
    return file.exists() ? FileProbe::State::File : FileProbe::State::Missing;
}

} // namespace

struct FileProbe::Receiver {
    std::mutex mutex;
    FileProbe* probe = nullptr; // null when it is destroyed
};

FileProbe::FileProbe(QObject* parent)
    : QObject(parent)
    , m_receiver(std::make_shared<Receiver>())
{
    m_receiver->probe = this;
}

FileProbe::~FileProbe()
{
    const std::lock_guard lock(m_receiver->mutex);
    m_receiver->probe = nullptr;
}

FileProbe::State FileProbe::look(const QString& path)
{
    const auto known = m_known.constFind(path);
    if (known != m_known.constEnd())
        return *known;
    if (m_known.size() >= mostKnown)
        m_known.clear();
    m_known.insert(path, State::Unknown);
    m_waiting.append(path);
    start();
    return State::Unknown;
}

void FileProbe::start()
{
    if (m_waiting.isEmpty() || std::exchange(m_isLooking, true))
        return;
    // Not to be joined: a network drive may never answer.
    std::thread([receiver = m_receiver, paths = std::exchange(m_waiting, {})] {
        QHash<QString, State> answers;
        for (const QString& path : paths)
            answers.insert(path, stateOf(path));
        const std::lock_guard lock(receiver->mutex);
        if (FileProbe* const probe = receiver->probe; probe != nullptr)
            QMetaObject::invokeMethod(
                probe, [probe, answers] { probe->take(answers); }, Qt::QueuedConnection);
    }).detach();
}

void FileProbe::take(const QHash<QString, State>& answers)
{
    m_isLooking = false;
    m_known.insert(answers);
    start();
    Q_EMIT answered();
}
