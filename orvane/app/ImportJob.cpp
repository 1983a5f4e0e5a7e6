#include "orvane/app/ImportJob.h"

#include "orvane/app/SliceClock.h"
#include "orvane/app/TextConversion.h"

#include "meridane/base/NxReadError.h"

#include <QFileInfo>

ImportJob::ImportJob(const QString& fileName, const HelperOptions& options)
    : SceneJob(fileName)
    , m_helper(options, {QStringLiteral("--read"), QFileInfo(fileName).absoluteFilePath()})
{
    connect(&m_helper, &HelperProcess::ended, this, &ImportJob::readScene);
    connect(&m_helper, &HelperProcess::failed, this, [this](const QString& reason, bool byHelper) {
        fail(byHelper ? reason : QStringLiteral("%1: %2").arg(this->fileName(), reason));
    });
    connect(&m_slices, &QTimer::timeout, this, &ImportJob::readSlice);
}

ImportJob::~ImportJob() = default;

void ImportJob::start()
{
    Q_EMIT progressed(-1);
    m_helper.start();
}

void ImportJob::cancel()
{
    if (m_ended)
        return;
    end();
    QMetaObject::invokeMethod(this, &FileJob::cancelled, Qt::QueuedConnection);
}

void ImportJob::readScene()
{
    m_reader = std::make_unique<NxSceneReader>(m_helper.takeOutput(), std::string());
    m_slices.start(0);
}

void ImportJob::readSlice()
{
    switch (m_reader->step(SliceClock::length)) {
    case NxSceneReader::State::Working:
        Q_EMIT progressed(m_reader->progress());
        break;
    case NxSceneReader::State::Done:
        setScene(m_reader->takeScene());
        end();
        Q_EMIT progressed(1);
        Q_EMIT finished();
        break;
    case NxSceneReader::State::Failed:
        fail(QStringLiteral("%1: the import helper gave something that is no scene: %2")
                 .arg(fileName(), orvane::toQString(m_reader->failure().text())));
        break;
    }
}

void ImportJob::fail(const QString& message)
{
    end();
    NxReadError::post(VbString(), 0, 0, orvane::toVbString(message));
    Q_EMIT failed(message);
}

void ImportJob::end()
{
    m_ended = true;
    m_helper.kill();
    m_slices.stop();
    m_reader.reset();
}
