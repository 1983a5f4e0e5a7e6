#include "orvane/app/command_line/BatchRun.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/command_line/FieldAccess.h"
#include "orvane/app/command_line/SceneListing.h"
#include "orvane/app/files/FileJobs.h"
#include "orvane/app/scene/ScenePaths.h"
#include "orvane/app/scene/Session.h"
#include "orvane/extender/OrvEditor.h"

#include "meridane/base/errors/NxReadError.h"
#include "meridane/base/values/VbName.h"
#include "meridane/scene/file/NxScenePath.h"

#include <QEventLoop>
#include <QTextStream>

#include <cstdlib>
#include <memory>
#include <typeinfo>

#include <cxxabi.h>

namespace {

// The class as the source names it: not every extension has a meta-object of its own.
QString className(const OrvExtension& extension)
{
    int status = 0;
    const std::unique_ptr<char, void (*)(void*)> name(
        abi::__cxa_demangle(typeid(extension).name(), nullptr, nullptr, &status), std::free);
    return status == 0 ? QString::fromUtf8(name.get()) : QString::fromUtf8(typeid(extension).name());
}

QString handledType(OrvExtension* extension)
{
    auto* const editor = qobject_cast<OrvEditor*>(extension);
    return editor == nullptr ? QStringLiteral("none")
                             : QString::fromLatin1(editor->getHandledType().getName().getString());
}

} // namespace

std::optional<QString> BatchRun::finish(FileJob& job)
{
    QEventLoop loop;
    std::optional<QString> failure;
    QObject::connect(&job, &FileJob::finished, &loop, &QEventLoop::quit);
    QObject::connect(&job, &FileJob::failed, &loop, [&](const QString& message) {
        failure = message;
        loop.quit();
    });
    job.start();
    loop.exec();
    return failure;
}

std::optional<QString> BatchRun::open(NxRef<NxGroup>& scene) const
{
    const std::unique_ptr<SceneJob> job = orvane::makeLoadJob(m_commandLine.file);
    auto failure = finish(*job);
    scene = job->takeScene();
    return failure;
}

std::optional<QString> BatchRun::startExtensions(Session& session)
{
    QStringList plugins = m_commandLine.plugins;
    if (m_commandLine.listExtensions)
        plugins = OrvPluginsManager::findPlugins(orvane::pluginFolders()) + plugins;
    QStringList failures = session.loadPlugins(plugins);
    if (!m_commandLine.profile.isEmpty()) {
        // Without a window nothing runs, so the profile has to be there and no more.
        const QStringList unreadable = session.loadProfiles(orvane::profileFolders());
        if (const auto failure = session.checkProfile(m_commandLine.profile))
            failures += unreadable + QStringList(*failure);
    }
    listExtensions(session);
    return failures.isEmpty() ? std::nullopt : std::optional(failures.join(QStringLiteral("; ")));
}

void BatchRun::listExtensions(Session& session)
{
    if (!m_commandLine.listExtensions)
        return;
    int order = 0;
    const QList<OrvExtension*> extensions = session.plugins().getExtensions();
    for (OrvExtension* const extension : extensions)
        m_output << ++order << '\t' << className(*extension) << '\t' << extension->getName().toUtf8() << '\t'
                 << handledType(extension) << '\n';
}

std::optional<QString> BatchRun::run()
{
    // A job that fails gives its message back; the same read error must not stand on standard error a second time.
    NxReadError::setHandlerCallback([](const NxError* /*error*/, void* /*data*/) {}, nullptr);
    if (!m_commandLine.needsExtensions())
        return runScene();
    // Outlives the scene, whose nodes may be of classes of the plug-ins.
    Session session(m_commandLine.noSettings ? AppSettings::Mode::None : AppSettings::Mode::File);
    const auto failure = startExtensions(session);
    return failure ? failure : runScene();
}

std::optional<QString> BatchRun::runScene()
{
    if (m_commandLine.file.isEmpty())
        return std::nullopt;
    NxRef<NxGroup> scene;
    if (auto failure = open(scene))
        return failure;
    for (const CommandLine::Assignment& assignment : m_commandLine.assignments) {
        if (auto failure = orvane::setField(scene.get(), assignment))
            return failure;
    }
    if (!m_commandLine.select.isEmpty()) {
        const auto target = NxScenePath::find(scene.get(), m_commandLine.select.toStdString());
        if (!target.error.empty())
            return QString::fromStdString(target.error);
    }
    return writeOutput(scene);
}

std::optional<QString> BatchRun::writeOutput(const NxRef<NxGroup>& scene)
{
    if (!scene)
        return std::nullopt;
    for (const QString& query : m_commandLine.queries) {
        QString text;
        if (auto failure = orvane::getField(scene.get(), query, text))
            return failure;
        m_output << text << '\n';
    }
    if (m_commandLine.list)
        SceneListing(scene.get(), m_output).print();
    for (const QString& fileName : m_commandLine.exportFiles) {
        if (auto failure = finish(*orvane::makeSaveJob(scene, fileName, orvane::folderOf(m_commandLine.file))))
            return failure;
    }
    return std::nullopt;
}
