#include "orvane/app/command_line/BatchRun.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/command_line/ClassListing.h"
#include "orvane/app/command_line/DifferenceListing.h"
#include "orvane/app/command_line/FieldAccess.h"
#include "orvane/app/command_line/FoundPlaces.h"
#include "orvane/app/command_line/PictureRun.h"
#include "orvane/app/command_line/ProblemListing.h"
#include "orvane/app/command_line/SceneListing.h"
#include "orvane/app/command_line/StandardOutput.h"
#include "orvane/app/files/FileJobs.h"
#include "orvane/app/problems/FileLook.h"
#include "orvane/app/scene/ScenePaths.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/extender/OrvEditor.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/check/NxSceneCheck.h"
#include "meridane/scene/compare/NxSceneComparison.h"
#include "meridane/scene/file/NxScenePath.h"

#include <QEventLoop>
#include <QTextStream>

#include <cstdlib>
#include <exception>
#include <memory>
#include <typeinfo>
#include <utility>

#include <cxxabi.h>

using orvane::Failure;
using orvane::Result;

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

Result<> BatchRun::finish(FileJob& job)
{
    QEventLoop loop;
    Result<> result;
    QObject::connect(&job, &FileJob::finished, &loop, &QEventLoop::quit);
    QObject::connect(&job, &FileJob::failed, &loop, [&](const QString& message) {
        result = Failure{message};
        loop.quit();
    });
    job.start();
    loop.exec();
    return result;
}

Result<NxRef<NxGroup>> BatchRun::open(const QString& fileName)
{
    const std::unique_ptr<SceneJob> job = orvane::makeLoadJob(fileName);
    if (const auto result = finish(*job); !result)
        return Failure{result.error()};
    if (!job->warnings().isEmpty())
        orvane::printError(QStringLiteral("warning: ") + job->warningText());
    if (!job->note().isEmpty())
        orvane::printError(QStringLiteral("note: %1: %2").arg(fileName, job->note()));
    return job->takeScene();
}

Result<> BatchRun::startExtensions(Session& session)
{
    QStringList found;
    if (m_commandLine.listExtensions && !m_commandLine.noPlugins)
        found = OrvPluginsManager::findPlugins(
            orvane::pluginFolders(SettingsStore::of(session.settings()).text(QStringLiteral("plugins/folder"))));
    QStringList failures = session.loadPlugins(found, m_commandLine.plugins);
    for (const PluginRecord& plugin : session.pluginLoader().records()) {
        if (plugin.state == PluginRecord::State::Suspect)
            orvane::printError(
                QStringLiteral("warning: %1: it is left out, since a program ended while it was loading it; --plugin "
                               "loads it all the same")
                    .arg(plugin.fileName));
    }
    if (!m_commandLine.profile.isEmpty()) {
        // Without a window no extension runs, so it is enough that the profile exists.
        const QStringList unreadable = session.loadProfiles(orvane::profileFolders());
        if (const auto profile = session.checkProfile(m_commandLine.profile); !profile)
            failures += unreadable + QStringList(profile.error());
    }
    listExtensions(session);
    return failures.isEmpty() ? Result<>() : Failure{failures.join(QStringLiteral("; "))};
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

Result<> BatchRun::run()
{
    if (!m_commandLine.needsExtensions())
        return runScene();
    // Outlives the scene, whose nodes may be of classes of the plug-ins.
    Session session(m_commandLine.settingsMode(), m_commandLine.settingsFileName());
    const auto started = startExtensions(session);
    return started ? runScene() : started;
}

Result<> BatchRun::runScene()
{
    if (m_commandLine.describe)
        return describeClasses();
    if (m_commandLine.file.isEmpty())
        return {};
    if (auto usable = orvane::checkPicture(m_commandLine); !usable)
        return usable;
    const auto opened = open(m_commandLine.file);
    if (!opened)
        return Failure{opened.error()};
    const NxRef<NxGroup>& scene = opened.value();
    for (const CommandLine::Assignment& assignment : m_commandLine.assignments) {
        if (auto set = orvane::setField(scene.get(), assignment); !set)
            return set;
    }
    if (!m_commandLine.select.isEmpty()) {
        const auto target = NxScenePath::find(scene.get(), m_commandLine.select.toStdString());
        if (!target.error.empty())
            return Failure{orvane::toQString(target.error)};
    }
    return writeOutput(scene);
}

Result<> BatchRun::describeClasses()
{
    const auto listing = ClassListing::of(m_commandLine.classes);
    if (!listing)
        return Failure{listing.error()};
    if (m_commandLine.json)
        listing.value().printJson(m_output);
    else
        listing.value().print(m_output);
    return {};
}

Result<> BatchRun::writeOutput(const NxRef<NxGroup>& scene)
{
    if (!scene)
        return {};
    for (const QString& query : m_commandLine.queries) {
        const auto text = orvane::fieldText(scene.get(), query);
        if (!text)
            return Failure{text.error()};
        m_output << text.value() << '\n';
    }
    for (const QString& search : m_commandLine.searches) {
        if (auto found = FoundPlaces(scene.get(), m_output, orvane::folderOf(m_commandLine.file)).print(search); !found)
            return found;
    }
    if (m_commandLine.list)
        SceneListing(scene.get(), m_output).print();
    if (m_commandLine.diff) {
        if (auto written = writeDifferences(scene); !written)
            return written;
    }
    if (m_commandLine.check) {
        if (auto written = writeProblems(scene); !written)
            return written;
    }
    for (const QString& fileName : m_commandLine.exportFiles) {
        auto written = finish(*orvane::makeSaveJob(scene, fileName, orvane::folderOf(m_commandLine.file)));
        if (!written)
            return written;
    }
    return m_commandLine.pictureFile.isEmpty() ? Result<>() : orvane::writePicture(scene.get(), m_commandLine);
}

Result<> BatchRun::writeDifferences(const NxRef<NxGroup>& scene)
{
    const auto second = open(m_commandLine.secondFile);
    if (!second)
        return Failure{second.error()};
    NxSceneDifferences differences;
    try {
        NxSceneComparison comparison(scene, second.value());
        comparison.run();
        differences = comparison.takeDifferences();
    } catch (const std::exception&) {
        return Failure{QStringLiteral("The comparison with %1 doesn't fit in memory.").arg(m_commandLine.secondFile)};
    }
    m_status = differences.list().empty() ? 0 : 1;
    const DifferenceListing listing(differences, m_output);
    if (m_commandLine.json)
        listing.printJson(m_commandLine.file, m_commandLine.secondFile);
    else
        listing.print();
    return {};
}

Result<> BatchRun::writeProblems(const NxRef<NxGroup>& scene)
{
    NxCheckOptions options;
    options.findFile = orvane::fileFinder(orvane::folderOf(m_commandLine.file));
    try {
        NxSceneCheck check(scene, std::move(options));
        check.run();
        const ProblemListing listing(check, *scene, m_output);
        if (m_commandLine.json)
            listing.printJson(m_commandLine.file);
        else
            listing.print();
        m_status = check.count(NxSeverity::Error) > 0 ? 2 : check.count(NxSeverity::Warning) > 0 ? 1 : 0;
    } catch (const std::exception&) {
        return Failure{QStringLiteral("The check of %1 doesn't fit in memory.").arg(m_commandLine.file)};
    }
    return {};
}
