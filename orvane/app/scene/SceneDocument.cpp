#include "orvane/app/scene/SceneDocument.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/scene/SceneDisposal.h"
#include "orvane/app/scene/ScenePaths.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/transfer/FileFormats.h"

#include "meridane/scene/journal/Journal.h"

#include <QFileInfo>
#include <QScopedValueRollback>

SceneDocument::SceneDocument(OrvServices& services, SceneDisposal& disposal)
    : m_services(services)
    , m_disposal(disposal)
{
    connect(&services, &OrvServices::historyChanged, this, &SceneDocument::reportModified);
}

SceneDocument::~SceneDocument()
{
    close();
}

QString SceneDocument::saveFileName() const
{
    return isSceneFileName(m_fileName) ? m_fileName : QString();
}

QString SceneDocument::displayName() const
{
    if (!isOpen())
        return {};
    return m_fileName.isEmpty() ? tr("Untitled") : QFileInfo(m_fileName).fileName();
}

bool SceneDocument::isModified() const
{
    return isOpen() && (m_isFileLost || !m_services.isClean());
}

void SceneDocument::newScene()
{
    replace(OrvDocument::makeJournal(*new NxGroup), QString(), std::nullopt, State::Saved);
}

void SceneDocument::open(const NxRef<NxGroup>& scene, const QString& fileName)
{
    open(OrvDocument::makeJournal(*scene), fileName);
}

void SceneDocument::open(
    const std::shared_ptr<meridane::Journal>& journal, const QString& fileName, const FileContent& content)
{
    replace(journal, orvane::absoluteFileName(fileName), content, State::Saved);
}

void SceneDocument::openUnsaved(
    const std::shared_ptr<meridane::Journal>& journal, const QString& fileName, const FileContent& content)
{
    replace(journal, orvane::absoluteFileName(fileName), content, State::Unsaved);
}

void SceneDocument::close()
{
    if (isOpen())
        replace(nullptr, QString(), std::nullopt, State::Saved);
}

void SceneDocument::setSaved(const QString& fileName, const FileContent& content)
{
    m_fileContent = content;
    m_isFileLost = false;
    m_services.setClean();
    if (m_pathFolder.isEmpty())
        m_pathFolder = orvane::folderOf(fileName);
    setFileName(orvane::absoluteFileName(fileName));
    reportModified();
    Q_EMIT saved();
}

void SceneDocument::setFileLost(bool lost)
{
    m_isFileLost = lost;
    reportModified();
}

QString SceneDocument::fileExtension()
{
    return u'.' + orvane::toQString(orvane::SceneFormat::extension);
}

bool SceneDocument::isSceneFileName(const QString& fileName)
{
    return fileName.endsWith(fileExtension(), Qt::CaseInsensitive);
}

void SceneDocument::replace(
    const std::shared_ptr<meridane::Journal>& journal, const QString& fileName, const FileContent& content, State state)
{
    const QScopedValueRollback replacing(m_isReplacing, true);
    // Before the scene is deleted, editors release its fields, then views its nodes, then commands both.
    m_services.selectField(nullptr);
    m_services.selectNode(nullptr);
    Q_EMIT sceneAboutToChange();
    m_services.document().close();
    m_services.clearHistory();
    m_disposal.dispose(std::exchange(m_scene, NxRef<NxGroup>(journal != nullptr ? &journal->scene() : nullptr)));
    if (journal != nullptr)
        m_services.document().open(journal);
    if (state == State::Unsaved)
        m_services.forgetClean();
    ++m_sceneNumber;
    m_pathFolder = orvane::folderOf(fileName);
    m_fileContent = content;
    m_isFileLost = false;
    m_fileName = fileName; // slots of sceneChanged ask for its folder
    Q_EMIT sceneChanged();
    setFileName(fileName);
    m_isReplacing = false;
    reportModified();
}

void SceneDocument::setFileName(const QString& fileName)
{
    m_fileName = fileName;
    Q_EMIT fileNameChanged();
}

void SceneDocument::reportModified()
{
    if (m_isReplacing || isModified() == m_reportedModified)
        return;
    m_reportedModified = isModified();
    Q_EMIT modifiedChanged(m_reportedModified);
}
