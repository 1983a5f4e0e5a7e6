#include "orvane/app/compare/SceneComparer.h"

#include "orvane/app/compare/ComparisonJob.h"
#include "orvane/app/compare/DifferencePanel.h"
#include "orvane/app/files/FileRequests.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/scene/SceneDisposal.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"

#include <QFileInfo>

#include <utility>

SceneComparer::SceneComparer(
    Session& session, MessageBar& messages, JobBar& jobBar, DifferencePanel* panel, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_messages(messages)
    , m_jobBar(jobBar)
    , m_panel(panel)
{
    connect(&session.document(), &SceneDocument::sceneAboutToChange, this, &SceneComparer::leaveScene);
    connect(panel, &DifferencePanel::againRequested, this, &SceneComparer::compareAgain);
}

SceneComparer::~SceneComparer() = default;

void SceneComparer::compare(const NxRef<NxGroup>& other, const QString& fileName)
{
    if (!m_session.document().isOpen())
        return;
    clear();
    m_other = other;
    m_otherFile = fileName;
    compareAgain();
}

void SceneComparer::compareAgain()
{
    if (!m_other)
        return;
    retireJob();
    m_panel->showWorking(otherName());
    m_job = std::make_unique<ComparisonJob>(NxRef<NxGroup>(m_session.document().scene()), m_other, m_otherFile);
    connect(m_job.get(), &FileJob::finished, this, &SceneComparer::takeResult);
    connect(m_job.get(), &FileJob::cancelled, this, &SceneComparer::giveUp);
    connect(m_job.get(), &FileJob::failed, this, [this](const QString& message) {
        m_messages.showMessage(MessageBar::Severity::Error, message);
        giveUp();
    });
    m_jobBar.watch(m_job.get(), tr("Comparing with %1").arg(otherName()));
    m_job->start();
    Q_EMIT started();
}

void SceneComparer::clear()
{
    retireJob();
    m_panel->clear();
    m_session.disposal().dispose(std::exchange(m_other, NxRef<NxGroup>()));
    m_otherFile.clear();
}

void SceneComparer::leaveScene()
{
    if (isWorking())
        m_messages.showMessage(MessageBar::Severity::Warning,
            tr("Not done: %1. The scene was closed.").arg(FileRequest::name(FileRequest::Kind::Compare, m_otherFile)));
    clear();
}

void SceneComparer::takeResult()
{
    m_panel->showDifferences(m_job->takeDifferences(), otherName());
    retireJob();
    Q_EMIT ended();
}

void SceneComparer::giveUp()
{
    clear();
    Q_EMIT ended();
}

void SceneComparer::retireJob()
{
    if (m_job == nullptr)
        return;
    disconnect(m_job.get(), nullptr, this, nullptr);
    m_job.release()->deleteLater(); // it may be inside one of its signals
}

QString SceneComparer::otherName() const
{
    return QFileInfo(m_otherFile).fileName();
}
