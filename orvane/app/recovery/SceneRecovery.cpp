#include "orvane/app/recovery/SceneRecovery.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/recovery/RecoveryLog.h"
#include "orvane/app/recovery/RecoveryWriter.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/ScenePaths.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include <QTimerEvent>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <utility>

using namespace std::chrono_literals;

namespace {

/// From a change to its capture. Much less than the second that may be lost, and long enough that a drag is captured a
/// few times only.
constexpr int captureDelay = 250; // milliseconds
constexpr std::chrono::microseconds slice = 4ms;

} // namespace

SceneRecovery::SceneRecovery(
    OrvServices& services, SceneDocument& document, const RecoveryFolder& folder, const Limits& limits, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_document(document)
    , m_folder(folder)
    , m_limits(limits)
{
    connect(&document, &SceneDocument::sceneAboutToChange, this, &SceneRecovery::end);
    connect(&document, &SceneDocument::sceneChanged, this, &SceneRecovery::begin);
    connect(&document, &SceneDocument::saved, this, [this] {
        end();
        begin();
    });
    for (const auto signal : {&OrvServices::documentEdited, &OrvServices::stepFinished, &OrvServices::historyChanged})
        connect(&services, signal, this, &SceneRecovery::schedule);
    begin();
}

SceneRecovery::~SceneRecovery() = default;

void SceneRecovery::replaceFile(std::unique_ptr<LockedFile> recovered)
{
    m_recovered = std::move(recovered);
    if (m_log != nullptr)
        m_log->setReplaced(m_recovered->fileName());
}

void SceneRecovery::leaveFile()
{
    if (m_log != nullptr && m_log->needsSceneFile() && m_replacement == nullptr)
        beginReplacement();
}

void SceneRecovery::begin()
{
    if (!m_document.isOpen())
        return;
    m_cleanDepth = m_services.undoDepth();
    m_log = makeLog(!m_document.isModified());
    m_firstSize = 0;
    schedule();
}

// The scene is saved, or its changes aren't wanted.
void SceneRecovery::end()
{
    m_workTimer.stop();
    m_retryTimer.stop();
    for (auto* log : {&m_log, &m_replacement}) {
        if (*log != nullptr)
            (*log)->setSteps(0);
        log->reset();
    }
    discardRecovered();
}

// In the thread of the disk, after what was asked of it before.
void SceneRecovery::discardRecovered()
{
    if (m_recovered != nullptr)
        RecoveryWriter(std::move(m_recovered), m_thread).discard();
}

std::unique_ptr<RecoveryLog> SceneRecovery::makeLog(bool mayUseFile)
{
    using Base = meridane::RecoveryDescription::Base;
    const QString& fileName = m_document.fileName();
    // Where the saved file has other paths than the scene, it isn't the same scene.
    const bool usesFile = mayUseFile && m_document.fileContent() && SceneDocument::isSceneFileName(fileName)
        && m_document.pathFolder() == orvane::folderOf(fileName);
    meridane::RecoveryDescription description;
    description.base = usesFile ? Base::File : Base::Nothing;
    description.displayName = m_document.displayName().toStdString();
    description.fileName = orvane::toStdFileName(fileName);
    description.fileHash = m_document.fileContent().value_or(meridane::ContentHash());
    description.begun = std::chrono::system_clock::now();
    auto log = std::make_unique<RecoveryLog>(*m_services.document().journal(), description, m_folder, m_thread);
    // Queued, since the log is inside one of its functions, and may be deleted.
    connect(log.get(), &RecoveryLog::failed, this, &SceneRecovery::handleFailure, Qt::QueuedConnection);
    connect(log.get(), &RecoveryLog::written, this, &SceneRecovery::checkLogs, Qt::QueuedConnection);
    return log;
}

void SceneRecovery::beginReplacement()
{
    m_replacement = makeLog(false);
    if (!m_log->finalName().isEmpty())
        m_replacement->setReplaced(m_log->finalName());
    schedule();
}

void SceneRecovery::finishReplacement()
{
    m_log->setSteps(0); // so that it deletes its file, unless that has been replaced
    m_log = std::move(m_replacement);
    m_firstSize = 0;
}

void SceneRecovery::schedule()
{
    if (!m_workTimer.isActive())
        m_workTimer.start(captureDelay, this);
}

void SceneRecovery::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_workTimer.timerId()) {
        m_workTimer.stop();
        work();
    } else if (event->timerId() == m_retryTimer.timerId()) {
        m_retryTimer.stop();
        beginReplacement();
    }
}

void SceneRecovery::work()
{
    bool hasMore = false;
    for (RecoveryLog* log : {m_log.get(), m_replacement.get()}) {
        if (log == nullptr)
            continue;
        log->setSteps(steps());
        hasMore = log->run(slice) || hasMore;
    }
    if (hasMore)
        m_workTimer.start(0, this);
    else
        checkLogs();
}

// After a slice, and after something was written.
void SceneRecovery::checkLogs()
{
    if (m_replacement != nullptr && m_replacement->isSafe())
        finishReplacement();
    for (const RecoveryLog* log : {m_log.get(), m_replacement.get()}) {
        if (log != nullptr && log->hasWork())
            schedule();
    }
    if (m_log == nullptr || !m_log->isSafe())
        return;
    discardRecovered(); // which only unlocks a file that has been replaced
    if (m_firstSize == 0)
        m_firstSize = m_log->byteCount();
    const bool isLong = m_log->byteCount() > std::max(m_limits.longest, 2 * m_firstSize);
    if (isLong && m_replacement == nullptr && !m_retryTimer.isActive())
        beginReplacement();
    if (!m_log->hasFile())
        return;
    if (std::exchange(m_isReported, false))
        Q_EMIT works();
    Q_EMIT kept();
}

// The file that there is keeps the last state that it has, until another one has the scene.
void SceneRecovery::handleFailure(const QString& message)
{
    if (m_log == nullptr)
        return; // the scene has been closed meanwhile
    if (m_replacement != nullptr)
        m_replacement->setSteps(0);
    m_replacement.reset();
    m_retryTimer.start(static_cast<int>(m_limits.retry.count()), this);
    if (!std::exchange(m_isReported, true))
        Q_EMIT failed(message);
}

std::size_t SceneRecovery::steps() const
{
    if (!m_document.isModified())
        return 0;
    return static_cast<std::size_t>(std::max(1, std::abs(m_services.undoDepth() - m_cleanDepth)));
}
