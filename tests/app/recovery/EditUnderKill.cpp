// Changes the values and the structure of a scene at random until it is killed, for tst_RecoveryKills: FILE
// RECOVERY_FOLDER SEED. Prints a line for each state of the scene before anything else can happen, "state TIME HASH",
// with the time in milliseconds; and "kept" when the recovery file has the last of them.

#include "app/AppScenes.h"
#include "app/structure/RandomStructure.h"
#include "scene/journal/RandomChanges.h"

#include "orvane/app/files/LoadJob.h"
#include "orvane/app/recovery/SceneRecovery.h"
#include "orvane/app/scene/SceneDisposal.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/UpdateSceneCommand.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/base/ContentHash.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <random>

namespace {

void print(const std::string& line)
{
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

/// Prints the states of a scene.
class StateLog {
public:
    explicit StateLog(NxGroup& scene)
        : m_scene(scene)
    {
    }

    void look()
    {
        const std::string hash = meridane::ContentHash::of(NxSceneWriter::toText(&m_scene)).toText();
        if (hash == m_hash)
            return;
        m_hash = hash;
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        const auto time = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
        print("state " + std::to_string(time) + ' ' + hash);
    }

private:
    NxGroup& m_scene;
    std::string m_hash;
};

/// Groups, moves, copies, pastes or removes nodes, as the actions of the tree do.
void changeStructure(RandomStructure& random, NxGroup& scene, OrvServices& services, SceneDisposal& disposal)
{
    RandomStructure::Change change = random.change(scene);
    if (!change.edit || change.edit.value().changes.isEmpty())
        return;
    NodeEdit made = std::move(change.edit).value();
    services.pushStep(new UpdateSceneCommand(std::move(made.changes), UpdateSceneCommand::Undo::ByHistory, disposal,
                          std::make_shared<bool>(true)),
        made.label);
}

ReadScene read(const QString& fileName)
{
    LoadJob job(fileName);
    QEventLoop loop;
    QObject::connect(&job, &FileJob::finished, &loop, &QEventLoop::quit);
    job.start();
    loop.exec();
    return job.take();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString& fileName = arguments.at(1);
    const unsigned seed = arguments.at(3).toUInt();
    SceneDisposal disposal;
    OrvServices services;
    SceneDocument document(services, disposal);
    const SceneRecovery recovery(services, document, RecoveryFolder(arguments.at(2)), {.longest = 100'000});
    const ReadScene scene = read(fileName);
    document.open(scene.journal, fileName, scene.content);

    StateLog states(*document.scene());
    states.look();
    QObject::connect(&recovery, &SceneRecovery::kept, &recovery, [] { print("kept"); });
    RandomChanges changes(*document.scene(), seed);
    RandomStructure structure(seed);
    std::mt19937 random(seed);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        const auto choice = random() % 10;
        if (choice == 0)
            services.undo();
        else if (choice == 1)
            services.redo();
        else if (choice < 5 && document.scene()->getNumChildren() > 0)
            changeStructure(structure, *document.scene(), services, disposal);
        else
            changes.makeSome();
        states.look();
        // Sometimes the user takes a rest, so that everything can be written.
        timer.setInterval(random() % 50 == 0 ? 600 : static_cast<int>(random() % 20));
    });
    timer.start(0);
    return QApplication::exec();
}
