// Importing models through the helper process, beside what the import library takes in this process.

#include "Timing.h"

#include "orvane/app/files/ImportJob.h"

#include <QApplication>
#include <QEventLoop>
#include <QFileInfo>

#include <assimp/Importer.hpp>

#include <assimp/postprocess.h>
#include <assimp/scene.h>

namespace {

// The folder that the environment names, or one beside the project, or the models of the tests.
QStringList modelFiles()
{
    const QStringList names{QStringLiteral("stanford-bunny.obj"), QStringLiteral("2CylinderEngine.glb")};
    for (const QString& folder : {qEnvironmentVariable("ORVANE_BENCH_MODELS"), QStringLiteral(SHARED_MODELS)}) {
        QStringList files;
        for (const QString& name : names) {
            if (!folder.isEmpty() && QFileInfo::exists(folder + u'/' + name))
                files += folder + u'/' + name;
        }
        if (files.size() == names.size())
            return files;
    }
    return {QStringLiteral(OWN_MODELS "/crate.obj"), QStringLiteral(OWN_MODELS "/crate.glb")};
}

void import(const QString& fileName)
{
    HelperOptions options;
    options.program = QStringLiteral(HELPER);
    ImportJob job(fileName, options);
    QEventLoop loop;
    QObject::connect(&job, &FileJob::finished, &loop, &QEventLoop::quit);
    QObject::connect(&job, &FileJob::failed, &loop, [](const QString& error) { qFatal("%s", qUtf8Printable(error)); });
    job.start();
    loop.exec();
}

// As the helper has it read: with the same steps behind the parsing.
void readInProcess(const QString& fileName)
{
    constexpr unsigned int steps = aiProcess_ValidateDataStructure | aiProcess_Triangulate | aiProcess_SortByPType
        | aiProcess_JoinIdenticalVertices;
    Assimp::Importer importer;
    if (importer.ReadFile(fileName.toStdString(), steps) == nullptr)
        qFatal("%s", importer.GetErrorString());
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    constexpr int rounds = 11;
    for (const QString& file : modelFiles()) {
        bench::compare(
            "import " + QFileInfo(file).fileName().toStdString(), 1.5, rounds,
            [&file] { return bench::seconds([&file] { import(file); }); },
            [&file] { return bench::seconds([&file] { readInProcess(file); }); });
    }
    return 0;
}
