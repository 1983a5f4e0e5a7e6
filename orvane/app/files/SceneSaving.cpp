#include "orvane/app/files/SceneSaving.h"

#include "orvane/app/base/PendingEdits.h"
#include "orvane/app/files/FileDialogs.h"
#include "orvane/app/files/OverwriteQuestion.h"
#include "orvane/app/files/RecentFiles.h"
#include "orvane/app/files/disk/DiskWatch.h"
#include "orvane/app/files/disk/FileCheck.h"
#include "orvane/app/scene/Session.h"

#include <QFileDialog>
#include <QGuiApplication>

#include <utility>

SceneSaving::SceneSaving(
    Session& session, RecentFiles& recent, FileWork& work, const DiskWatch& disk, Write write, QWidget* window)
    : m_session(session)
    , m_recent(recent)
    , m_work(work)
    , m_disk(disk)
    , m_write(std::move(write))
    , m_window(window)
{
}

void SceneSaving::save(const Next& next)
{
    const QString fileName = m_session.document().saveFileName();
    if (fileName.isEmpty())
        saveAs(next);
    else if (m_session.document().fileContent())
        check(fileName, next);
    else
        saveTo(fileName, next);
}

// Changes that the watch hasn't reported yet count, too.
void SceneSaving::check(const QString& fileName, const Next& next)
{
    auto* check = new FileCheck(fileName, this);
    connect(check, &FileCheck::finished, this, [this, check, fileName, next](const DiskContent& found) {
        check->deleteLater();
        if (m_disk.isUnseen(found))
            askToOverwrite(fileName, next);
        else
            saveTo(fileName, next);
    });
    m_work.hold(check);
    check->start();
}

void SceneSaving::askToOverwrite(const QString& fileName, const Next& next)
{
    auto* question = new OverwriteQuestion(fileName, m_window);
    connect(question, &OverwriteQuestion::overwriteChosen, this, [this, fileName, next] { saveTo(fileName, next); });
    connect(question, &OverwriteQuestion::saveAsChosen, this, [this, next] { saveAs(next); });
    connect(question, &OverwriteQuestion::compareChosen, this, [this, fileName, next] {
        next.giveUp();
        Q_EMIT compareRequested(fileName);
    });
    connect(question, &OverwriteQuestion::cancelChosen, this, next.giveUp);
    m_work.open(question);
}

void SceneSaving::saveAs(const Next& next)
{
    if (!m_session.document().isOpen()) {
        next.giveUp();
        return;
    }
    QFileDialog* dialog = orvane::makeSaveDialog(m_window, m_session.document());
    connect(dialog, &QFileDialog::fileSelected, this, [this, next](const QString& fileName) {
        saveTo(SceneDocument::isSceneFileName(fileName) ? fileName : fileName + SceneDocument::fileExtension(), next);
    });
    connect(dialog, &QDialog::rejected, this, next.giveUp);
    m_work.open(dialog);
}

void SceneSaving::saveTo(const QString& fileName, const Next& next)
{
    write(fileName, tr("Saving"),
        {[this, fileName, next] {
             m_work.stopReloading(tr("The scene was saved."));
             m_session.document().setSaved(fileName, m_work.writtenContent());
             m_recent.add(fileName);
             next.proceed();
         },
            next.giveUp});
}

void SceneSaving::chooseExport()
{
    if (!m_session.document().isOpen())
        return;
    QFileDialog* dialog = orvane::makeExportDialog(m_window, m_session.document());
    connect(dialog, &QFileDialog::fileSelected, this, &SceneSaving::exportTo);
    m_work.open(dialog);
}

void SceneSaving::exportTo(const QString& fileName)
{
    write(fileName, tr("Exporting"),
        {[this, fileName] { m_work.showWritingMessage(false, tr("Exported to %1.").arg(fileName)); }});
}

void SceneSaving::write(const QString& fileName, const QString& text, const Next& next)
{
    if (!mayWrite()) {
        next.giveUp();
        return;
    }
    const SceneDocument& document = m_session.document();
    m_work.write(m_write(NxRef<NxGroup>(document.scene()), fileName, document.pathFolder()), text, next);
}

bool SceneSaving::mayWrite()
{
    if (!m_session.document().isOpen())
        return false;
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
        // A drag in progress goes on changing the scene.
        m_work.showWritingMessage(true, tr("Nothing was saved: a mouse button is held down."));
        return false;
    }
    orvane::commitPendingEdit();
    return true;
}
