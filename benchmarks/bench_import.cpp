// Importing models through the helper process, beside what the import library takes in this process.

#include "Timing.h"

#include "orvane/app/files/ImportJob.h"

#include <QApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QTemporaryDir>

#include <assimp/Importer.hpp>
#include <cmath>
#include <vector>

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
constexpr unsigned int steps = aiProcess_Triangulate | aiProcess_SortByPType | aiProcess_JoinIdenticalVertices;

void readInProcess(const QString& fileName, unsigned int stepsOfLibrary)
{
    Assimp::Importer importer;
    if (importer.ReadFile(fileName.toStdString(), stepsOfLibrary) == nullptr)
        qFatal("%s", importer.GetErrorString());
}

/// Writes a cloud of coloured points, all of them different.
void writeCloud(const QString& fileName, int points)
{
    struct [[gnu::packed]] Point {
        float place[3];
        unsigned char color[3];
    };
    std::vector<Point> rows(static_cast<std::size_t>(points));
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const auto turn = static_cast<float>(index) * 0.001F;
        const auto shade = static_cast<unsigned char>(index);
        rows[index] = {{std::cos(turn), std::sin(turn), turn}, {shade, static_cast<unsigned char>(index >> 8U), 0}};
    }
    QFile file(fileName);
    const QByteArray head = "ply\nformat binary_little_endian 1.0\nelement vertex " + QByteArray::number(points)
        + "\nproperty float x\nproperty float y\nproperty float z\nproperty uchar red\nproperty uchar green\n"
          "property uchar blue\nend_header\n";
    const auto size = static_cast<qint64>(rows.size() * sizeof(Point));
    if (!file.open(QIODevice::WriteOnly) || file.write(head) != head.size()
        || file.write(reinterpret_cast<const char*>(rows.data()), size) != size || !file.flush())
        qFatal("the cloud can't be written");
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
            [&file] { return bench::seconds([&file] { readInProcess(file, steps); }); });
    }
    const QTemporaryDir folder;
    const QString cloud = folder.filePath(QStringLiteral("cloud.ply"));
    writeCloud(cloud, 10'000'000);
    bench::compare(
        "import a cloud of 10,000,000 points", 2, 3, [&cloud] { return bench::seconds([&cloud] { import(cloud); }); },
        [&cloud] { return bench::seconds([&cloud] { readInProcess(cloud, 0); }); });
    return 0;
}
