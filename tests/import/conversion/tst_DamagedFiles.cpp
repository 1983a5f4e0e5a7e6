#include "TestFiles.h"
#include "import/GeneratedModels.h"
#include "import/HelperRun.h"
#include "import/JobRecord.h"

#include "orvane/app/files/ImportJob.h"
#include "orvane/app/files/LoadJob.h"

#include "meridane/base/errors/NxReadError.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <random>

namespace {

/// Copies of a file that are cut, or have one byte changed, or two hundred of them: the same at each run.
class Damages {
public:
    Damages(const QByteArray& bytes, int rounds)
        : m_bytes(bytes)
        , m_rounds(rounds)
        , m_random(static_cast<std::mt19937::result_type>(bytes.size()))
    {
    }

    [[nodiscard]] int count() const { return 2 * m_rounds + (m_rounds + 9) / 10; }
    [[nodiscard]] QByteArray copy(int index)
    {
        if (index < m_rounds)
            return m_bytes.left(place());
        QByteArray damaged = m_bytes;
        const int changes = index < 2 * m_rounds ? 1 : 200;
        for (int change = 0; change < changes; ++change)
            damaged[place()] = static_cast<char>(static_cast<unsigned char>(damaged.at(place())) ^ byte());
        return damaged;
    }

private:
    qsizetype place() { return std::uniform_int_distribution<qsizetype>(0, m_bytes.size() - 1)(m_random); }
    // Never 0, which would change nothing.
    unsigned byte() { return std::uniform_int_distribution<unsigned>(1, 255)(m_random); }

    QByteArray m_bytes;
    int m_rounds;
    std::mt19937 m_random;
};

int postedErrors = 0;

// Each file with its content.
QMap<QString, QByteArray> filesBelow(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator iterator(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        const QString fileName = iterator.next();
        files.insert(fileName, readFile(fileName));
    }
    return files;
}

std::unique_ptr<SceneJob> jobFor(const QString& fileName)
{
    if (fileName.endsWith(QStringLiteral(".mrd")))
        return std::make_unique<LoadJob>(fileName);
    HelperOptions options;
    options.program = helperProgram();
    return std::make_unique<ImportJob>(fileName, options);
}

} // namespace

/// Damaged files, opened as the tool opens them. ORVANE_TEST_DAMAGES gives the number of copies of each file and kind
/// of damage; `script/faults` tries 200.
class TestDamagedFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_oldHandler = NxReadError::getHandlerCallback();
        m_oldData = NxReadError::getHandlerData();
        NxReadError::setHandlerCallback([](const NxError*, void*) { ++postedErrors; }, nullptr);
    }

    void cleanupTestCase() { NxReadError::setHandlerCallback(m_oldHandler, m_oldData); }

    void aDamagedFileIsOpenedOrRefusedWithOneMessage_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("damaged"); // one file of it
        QTest::addColumn<QString>("opened"); // the scene or model that it is, or is a part of
        const auto add = [](const QString& folder, const char* damaged, const char* opened) {
            if (QFile::exists(folder + QLatin1String(damaged)))
                QTest::newRow(damaged) << folder << QString::fromUtf8(damaged) << QString::fromUtf8(opened);
        };
        const QString examples = QStringLiteral(ORVANE_SOURCES "/examples/");
        add(examples, "gallery.mrd", "gallery.mrd");
        add(examples, "robot.mrd", "robot.mrd");
        const QString own = QStringLiteral(ORVANE_TEST_MODELS "/");
        add(own, "crate.glb", "crate.glb");
        add(own, "crate.obj", "crate.obj");
        add(own, "crate.mtl", "crate.obj");
        add(own, "crate.png", "crate.obj");
        const QString shared = QStringLiteral(ORVANE_SOURCES "/../shared/models/");
        add(shared, "2CylinderEngine.glb", "2CylinderEngine.glb");
        add(shared, "stanford-bunny.obj", "stanford-bunny.obj");
        add(shared, "teapot.obj", "teapot.obj");
        add(shared + QStringLiteral("BoxTextured/"), "BoxTextured.gltf", "BoxTextured.gltf");
        add(shared + QStringLiteral("BoxTextured/"), "BoxTextured0.bin", "BoxTextured.gltf");
        add(shared + QStringLiteral("BoxTextured/"), "CesiumLogoFlat.png", "BoxTextured.gltf");
        add(shared + QStringLiteral("cameras/"), "Cameras.gltf", "Cameras.gltf");
        add(shared + QStringLiteral("cameras/"), "simpleSquare.bin", "Cameras.gltf");
        int number = 0;
        for (const generated::Model& model : generated::models()) {
            const QString name = QStringLiteral("model%1%2")
                                     .arg(++number, 2, 10, QLatin1Char('0'))
                                     .arg(QString::fromUtf8(model.fileName.mid(1)));
            writeFile(m_generated.filePath(name), model.bytes);
            QTest::newRow(model.about.constData()) << m_generated.path() + u'/' << name << name;
        }
    }

    void aDamagedFileIsOpenedOrRefusedWithOneMessage()
    {
        QFETCH(QString, folder);
        QFETCH(QString, damaged);
        QFETCH(QString, opened);
        const QTemporaryDir copy;
        // A model alone or with its parts, but not with the other models beside it.
        for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files)) {
            if (damaged != opened || file.fileName() == opened
                || file.baseName().startsWith(opened.section(u'.', 0, 0)))
                QVERIFY(QFile::copy(file.filePath(), copy.filePath(file.fileName())));
        }
        const QString damagedFile = copy.filePath(damaged);
        QVERIFY(QFile::setPermissions(damagedFile, QFile::ReadOwner | QFile::WriteOwner));
        bool given = false;
        const int rounds = qEnvironmentVariableIntValue("ORVANE_TEST_DAMAGES", &given);
        Damages damages(readFile(damagedFile), given ? rounds : folder.startsWith(m_generated.path()) ? 1 : 4);
        int scenes = 0;
        int helpersLost = 0; // that crashed or were stopped
        qint64 longest = 0;
        for (int index = 0; index < damages.count(); ++index) {
            const QByteArray where = "copy " + QByteArray::number(index);
            writeFile(damagedFile, damages.copy(index));
            const auto filesBefore = filesBelow(copy.path());
            postedErrors = 0;
            QElapsedTimer timer;
            timer.start();
            const std::unique_ptr<SceneJob> job = jobFor(copy.filePath(opened));
            const JobRecord record(*job);
            job->start();
            // Longer than the helper may take, which the job has to see to.
            QVERIFY2(QTest::qWaitFor([&] { return record.ends() > 0; }, 660000), where.constData());
            longest = std::max(longest, timer.elapsed());
            QCOMPARE(record.ends(), 1);
            const NxRef<NxGroup> scene = job->takeScene();
            if (record.finished == 1) {
                ++scenes;
                QVERIFY2(scene && postedErrors == 0 && !NxSceneWriter::toText(scene.get()).empty(), where.constData());
            } else {
                // Whoever starts a job reports its failure, the job itself doesn't.
                QVERIFY2(!scene && record.messages.size() == 1 && postedErrors == 0, where.constData());
                helpersLost += record.message().contains(QStringLiteral(": the import helper ")) ? 1 : 0;
                QVERIFY2(
                    !record.message().isEmpty() && !record.message().contains(u'\n'), qPrintable(record.message()));
            }
            QVERIFY2(filesBelow(copy.path()) == filesBefore, where.constData());
        }
        qInfo("%d damaged copies: %d opened, %d refused, of these %d for a lost helper; the longest took %lld ms",
            damages.count(), scenes, damages.count() - scenes, helpersLost, longest);
    }

private:
    QTemporaryDir m_generated;
    NxErrorHandler m_oldHandler = nullptr;
    void* m_oldData = nullptr;
};

QTEST_GUILESS_MAIN(TestDamagedFiles)
#include "tst_DamagedFiles.moc"
