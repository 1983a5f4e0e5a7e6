#include "orvane/app/files/FileWork.h"

#include "orvane/app/files/InputBlock.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/messages/MessageBar.h"

#include "meridane/base/errors/NxReadError.h"
#include "meridane/base/values/MessageText.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <utility>

namespace {

// One topic for each, so that the end of one job doesn't remove the message about the other.
const QString readingTopic = QStringLiteral("reading");
const QString warningTopic = QStringLiteral("warnings of reading");
const QString writingTopic = QStringLiteral("writing");

QString readingText(FileRequest::Kind kind)
{
    switch (kind) {
    case FileRequest::Kind::Add:
        return FileWork::tr("Adding %1");
    case FileRequest::Kind::Compare:
        return FileWork::tr("Reading %1 to compare it");
    case FileRequest::Kind::Reload:
        return FileWork::tr("Reloading %1");
    default:
        return FileWork::tr("Opening %1");
    }
}

QString shortName(const QString& fileName)
{
    return QFileInfo(fileName).fileName();
}

} // namespace

FileWork::FileWork(MessageBar& messages, JobBar& jobBar, QObject* parent)
    : QObject(parent)
    , m_messages(messages)
    , m_jobBar(jobBar)
{
}

FileWork::~FileWork() = default;

void FileWork::push(FileRequest request)
{
    m_waiting.push(std::move(request));
    goOn();
}

void FileWork::open(QDialog* dialog)
{
    hold(dialog);
    dialog->open();
}

void FileWork::hold(QObject* work)
{
    m_holders.append(work);
    work->installEventFilter(this);
    connect(work, &QObject::destroyed, this, &FileWork::release);
}

bool FileWork::eventFilter(QObject* object, QEvent* event)
{
    // Not when the window is minimized, which is spontaneous.
    if (event->type() == QEvent::Hide && !event->spontaneous())
        release(object);
    return false;
}

void FileWork::release(const QObject* dialog)
{
    if (m_holders.removeOne(dialog))
        goOnLater();
}

bool FileWork::isHeld()
{
    // An editor's dialog, which is about a field of the open scene.
    if (QWidget* modal = QApplication::activeModalWidget(); modal != nullptr && !m_holders.contains(modal))
        hold(modal);
    return m_writing || !m_holders.isEmpty();
}

bool FileWork::mayRun(const FileRequest& request) const
{
    // Models are added one after the other, a comparison is with the scene as it is with them, and a reload replaces
    // what was there before it.
    const bool waits = request.kind == Kind::Add || request.kind == Kind::Compare || request.kind == Kind::Reload;
    if (!waits || !m_reading)
        return true;
    const bool isReplaced = m_reading->kind == Kind::Compare && request.kind == Kind::Compare;
    return m_reading->kind == Kind::Open || isReplaced;
}

void FileWork::goOn()
{
    if (m_goingOn)
        return; // the loop below goes on with what has come
    const QScopedValueRollback inside(m_goingOn, true);
    while (!isHeld()) {
        if (m_reading && m_reading->job == nullptr) {
            const Reading reading = takeReading();
            reading.reader.take(reading.content);
            continue;
        }
        const auto request = m_waiting.takeFirst([this](const FileRequest& waiting) { return mayRun(waiting); });
        if (!request)
            return;
        request->run();
    }
}

// From the event loop, so that no scene is replaced while a dialog or a job is inside one of its own functions.
void FileWork::goOnLater()
{
    QMetaObject::invokeMethod(this, &FileWork::goOn, Qt::QueuedConnection);
}

void FileWork::read(Kind kind, std::unique_ptr<SceneJob> job, const Reader& reader)
{
    const QString name = shortName(job->fileName());
    stopReading((kind == Kind::Compare ? tr("%1 is compared instead.") : tr("%1 is opened instead.")).arg(name));
    SceneJob* running = job.get();
    m_reading.emplace(Reading{kind, job->fileName(), reader, std::move(job), {}});
    connect(running, &FileJob::finished, this, [this, running] {
        m_messages.clearTopic(readingTopic);
        showWarnings(m_reading->kind, *running);
        if (!running->note().isEmpty())
            Q_EMIT noted(running->note());
        m_reading->content = running->take();
        retire(std::move(m_reading->job));
        goOnLater();
    });
    connect(running, &FileJob::failed, this, [this, running](const QString& message) {
        reportFailure(*running, message);
        loseReading(message, Loss::Failed);
    });
    connect(running, &FileJob::cancelled, this,
        [this] { loseReading(tr("Opening %1 was cancelled.").arg(m_reading->fileName), Loss::Stopped); });
    m_jobBar.watch(running, readingText(kind).arg(name));
    running->start();
}

QString FileWork::fileBeingOpened() const
{
    return m_reading && m_reading->kind == Kind::Open ? m_reading->fileName : QString();
}

void FileWork::stopReading(const QString& reason)
{
    if (!m_reading)
        return;
    reportGivenUp({FileRequest::name(m_reading->kind, m_reading->fileName)}, reason);
    loseReading(reason, Loss::Stopped);
}

void FileWork::stopReloading(const QString& reason)
{
    if (m_reading && m_reading->kind == Kind::Reload)
        stopReading(reason);
}

// In the window, and as an error of the toolkit for extensions that list them, such as the console.
void FileWork::reportFailure(const SceneJob& job, const QString& message)
{
    m_messages.showLogged(MessageBar::Severity::Error, message, readingTopic); // the error of the toolkit is logged
    const NxReadFailure& failure = job.failure();
    NxReadError::post(VbString(meridane::withoutMarkup(failure.file)), failure.line, failure.column,
        VbString(meridane::withoutMarkup(failure.message)));
}

// A message for each model that is added, since all of them are there.
void FileWork::showWarnings(Kind kind, const SceneJob& job)
{
    if (kind == Kind::Open)
        m_messages.clearTopic(warningTopic);
    if (!job.warnings().isEmpty())
        m_messages.showMessage(MessageBar::Severity::Warning, job.warningText(),
            kind == Kind::Add ? warningTopic + job.fileName() : warningTopic);
}

void FileWork::loseReading(const QString& reason, Loss loss)
{
    const Reading reading = takeReading();
    reading.reader.lost(reason, loss);
    goOnLater();
}

FileWork::Reading FileWork::takeReading()
{
    Reading reading = std::move(*std::exchange(m_reading, std::nullopt));
    retire(std::move(reading.job));
    return reading;
}

void FileWork::write(std::unique_ptr<FileJob> job, const QString& text, const Next& next)
{
    FileJob* running = job.get();
    m_writing.emplace(Writing{std::move(job), std::make_unique<InputBlock>(&m_jobBar), next});
    connect(m_writing->block.get(), &InputBlock::escapePressed, running, &FileJob::cancel);
    connect(running, &FileJob::finished, this, [this, running] {
        m_messages.clearTopic(writingTopic);
        m_writtenContent = running->content();
        endWriting(WritingEnd::Written);
    });
    connect(running, &FileJob::failed, this, [this](const QString& message) {
        m_messages.showMessage(MessageBar::Severity::Error, message, writingTopic);
        endWriting(WritingEnd::Failed, message);
    });
    connect(running, &FileJob::cancelled, this, [this] { endWriting(WritingEnd::Cancelled); });
    m_jobBar.watch(running, tr("%1 %2").arg(text, shortName(running->fileName())));
    running->start();
}

void FileWork::endWriting(WritingEnd end, const QString& error)
{
    const bool written = end == WritingEnd::Written;
    Writing writing = std::move(*std::exchange(m_writing, std::nullopt));
    const QString reason = tr("%1 wasn't written.").arg(shortName(writing.job->fileName()));
    retire(std::move(writing.job));
    writing.block.reset();
    // A request to leave the scene counted on it being written, and closing the window would close the message too.
    if (!written)
        reportGivenUp(m_waiting.dropLeaving(reason), reason);
    const std::function<void()>& next = written ? writing.next.proceed : writing.next.giveUp;
    next();
    Q_EMIT writingEnded(end == WritingEnd::Failed ? orvane::Result<>(orvane::Failure{error}) : orvane::Result<>());
    goOnLater();
}

void FileWork::dropOtherScenes(int openScene)
{
    const QString reason = tr("The scene was closed.");
    if (m_reading && m_reading->kind != Kind::Open)
        stopReading(reason);
    reportGivenUp(m_waiting.dropOtherScenes(openScene, reason), reason);
}

void FileWork::abandon()
{
    if (m_reading)
        static_cast<void>(takeReading());
    m_waiting = {};
}

void FileWork::reportGivenUp(const QStringList& names, const QString& reason)
{
    if (!names.isEmpty())
        m_messages.showMessage(
            MessageBar::Severity::Warning, tr("Not done: %1. %2").arg(names.join(QStringLiteral(", ")), reason));
}

void FileWork::showReadingError(const QString& text)
{
    m_messages.showMessage(MessageBar::Severity::Error, text, readingTopic);
}

void FileWork::showWritingMessage(bool isWarning, const QString& text)
{
    m_messages.showMessage(
        isWarning ? MessageBar::Severity::Warning : MessageBar::Severity::Information, text, writingTopic);
}

void FileWork::retire(std::unique_ptr<FileJob> job)
{
    if (job == nullptr)
        return;
    disconnect(job.get(), nullptr, this, nullptr);
    job.release()->deleteLater(); // it may be inside one of its signals
}
