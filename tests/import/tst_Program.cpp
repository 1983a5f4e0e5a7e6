#include "TestFiles.h"
#include "import/Gltf.h"
#include "import/HelperRun.h"
#include "import/PackedBytes.h"

#include "orvane/import/sandbox/ProcessLimits.h"
#include "orvane/transfer/FileFormats.h"

#include "meridane/scene/file/NxSceneWriter.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

#include <unistd.h>

/// The helper as a program: arguments, exit status, messages, limits.
class TestProgram : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void itListsItsFormats()
    {
        const HelperRun run = runHelper({QStringLiteral("--formats")});
        QCOMPARE(run.status, 0);
        const QStringList lines = QString::fromStdString(run.output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        const QStringList readable = lines[0].split(QLatin1Char(' '));
        const QStringList writable = lines[1].split(QLatin1Char(' '));
        QCOMPARE(readable.first(), QStringLiteral("read"));
        QCOMPARE(writable.first(), QStringLiteral("write"));
        // The tool offers these in its dialogs.
        for (const orvane::FileFormat& format : orvane::modelFormats) {
            const QString extension = QString::fromUtf8(format.extension.data());
            QVERIFY2(readable.contains(extension), format.extension.data());
            QVERIFY2(writable.contains(extension) == format.isWritable(), format.extension.data());
        }
        const auto isWritable = [](const orvane::FileFormat& format) { return format.isWritable(); };
        QCOMPARE(
            writable.size() - 1, std::count_if(orvane::modelFormats.begin(), orvane::modelFormats.end(), isWritable));
    }

    void itTellsHowItIsUsed()
    {
        const HelperRun run = runHelper({QStringLiteral("--help")});
        QCOMPARE(run.status, 0);
        QVERIFY(run.output.starts_with("Usage: orvane-import --read FILE"));
    }

    void aModelIsPackedWhenAsked_data()
    {
        QTest::addColumn<int>("meshes");
        QTest::newRow("one mesh") << 1;
        QTest::newRow("many meshes, with more bytes than a pipe holds") << 300;
    }

    void aModelIsPackedWhenAsked()
    {
        QFETCH(int, meshes);
        // Fans of triangles, with lists that are long enough.
        QByteArray model;
        int corner = 1;
        for (int mesh = 0; mesh < meshes; ++mesh) {
            model += "o fan" + QByteArray::number(mesh) + "\nv 0 0 " + QByteArray::number(mesh) + '\n';
            for (int index = 0; index < 200; ++index)
                model += "v 1 0.1 " + QByteArray::number(index) + '\n';
            for (int index = 1; index < 200; ++index)
                model += "f " + QByteArray::number(corner) + ' ' + QByteArray::number(corner + index) + ' '
                    + QByteArray::number(corner + index + 1) + '\n';
            corner += 201;
        }
        const QString fileName = m_folder.filePath(QStringLiteral("fan.obj"));
        writeFile(fileName, model);
        const HelperRun text = runHelper({QStringLiteral("--read"), fileName});
        QCOMPARE(text.status, 0);
        for (const QStringList& arguments :
            {QStringList{QStringLiteral("--read"), fileName, QStringLiteral("--packed")},
                QStringList{QStringLiteral("--packed"), QStringLiteral("--read"), fileName}}) {
            const HelperRun packed = runHelper(arguments);
            QCOMPARE(packed.status, 0);
            QCOMPARE(packed.error, QString());
            QVERIFY(packed.output.size() < text.output.size());
            QVERIFY(packed.output.find("\nlist ") != std::string::npos);
            std::string failure;
            const NxRef<NxGroup> scene = unpack(packed.output, failure);
            QVERIFY2(scene, failure.c_str());
            QVERIFY(NxSceneWriter::toText(scene.get()) == text.output);
        }
    }

    void unusableArgumentsGiveStatusTwo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        const QString end = QStringLiteral("; see --help");
        QTest::newRow("none") << QStringList()
                              << QStringLiteral("one of --read, --write, --pictures, --formats and --locks is needed")
                + end;
        QTest::newRow("two tasks") << QStringList{QStringLiteral("--formats"), QStringLiteral("--read"),
            QStringLiteral(
                "a")} << QStringLiteral("one of --read, --write, --pictures, --formats and --locks is needed") + end;
        QTest::newRow("unknown") << QStringList{QStringLiteral("--fly")}
                                 << QStringLiteral("unknown argument \"--fly\"") + end;
        QTest::newRow("no value") << QStringList{QStringLiteral("--read")}
                                  << QStringLiteral("--read needs a value") + end;
        const QString alone = QStringLiteral("--packed goes with --read only") + end;
        for (const char* const name : {"a%4", "a%", "a%zz", "a%00"}) {
            QTest::addRow("badly encoded %s", name)
                << QStringList{QStringLiteral("--encoded"), QStringLiteral("--read"), QLatin1String(name)}
                << QStringLiteral("with --encoded each % needs two hexadecimal digits behind it, other than 00") + end;
        }
        QTest::newRow("packed writing") << QStringList{QStringLiteral("--packed"), QStringLiteral("--write"),
            QStringLiteral("obj")} << alone;
        QTest::newRow("packed formats") << QStringList{QStringLiteral("--formats"), QStringLiteral("--packed")}
                                        << alone;
        QTest::newRow("unknown space") << QStringList{QStringLiteral("--read"), QStringLiteral("a.obj"),
            QStringLiteral("--space"), QStringLiteral("outer")}
                                       << QStringLiteral("--space needs convert, axes or keep, not \"outer\"") + end;
        QTest::newRow("groups of what is written")
            << QStringList{QStringLiteral("--keep-groups"), QStringLiteral("--write"), QStringLiteral("obj")}
            << QStringLiteral("--keep-groups goes with --read only") + end;
        QTest::newRow("no number") << QStringList{QStringLiteral("--formats"), QStringLiteral("--memory"),
            QStringLiteral("1x")} << QStringLiteral("--memory needs a whole number, not \"1x\"") + end;
        QTest::newRow("number too large")
            << QStringList{QStringLiteral("--formats"), QStringLiteral("--memory"),
                   QStringLiteral("18446744073709551615")}
            << QStringLiteral("--memory needs a whole number, not \"18446744073709551615\"") + end;
    }

    void unusableArgumentsGiveStatusTwo()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const HelperRun run = runHelper(arguments);
        QCOMPARE(run.status, 2);
        QCOMPARE(run.error, message + QLatin1Char('\n'));
        QVERIFY(run.output.empty());
    }

    void anUnusableEnvironmentGivesStatusTwo()
    {
        qputenv("ORVANE_IMPORT_MEMORY", "much");
        const HelperRun run = runHelper({QStringLiteral("--formats")});
        qunsetenv("ORVANE_IMPORT_MEMORY");
        QCOMPARE(run.status, 2);
        QVERIFY(run.error.startsWith(QStringLiteral("ORVANE_IMPORT_MEMORY must be a number of MiB, not \"much\"")));
    }

    void whatCanNotBeReadGivesOneLine_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        const QString broken = QStringLiteral("the model is broken: ");
        QTest::newRow("missing") << QStringLiteral("missing.obj") << QByteArray()
                                 << QStringLiteral("No such file or directory");
        QTest::newRow("folder") << QStringLiteral("folder.obj") << QByteArray() << QStringLiteral("is a directory");
        const QString unknown = QStringLiteral("this is in none of the model formats that can be read");
        QTest::newRow("unknown extension") << QStringLiteral("a.foo") << QByteArray("foo") << unknown;
        QTest::newRow("no extension") << QStringLiteral("readme") << QByteArray("Read me.") << unknown;
        QTest::newRow("our own format") << QStringLiteral("a.mrd") << QByteArray("#mrd 1.0\n") << unknown;
        QTest::newRow("text") << QStringLiteral("a.txt") << QByteArray("Once upon a time.\nv 1\nThe end.\n") << unknown;
        QTest::newRow("materials") << QStringLiteral("a.mtl")
                                   << QByteArray("# Blender MTL File: 'x.blend'\nnewmtl red\nKd 1 0 0\n") << unknown;
        QTest::newRow("a scene of another kind")
            << QStringLiteral("a.usda") << QByteArray("#usda 1.0\ndef Xform \"a\" {}\n") << unknown;
        const QString otherFormat = broken + QStringLiteral("it isn't in the format of its extension");
        for (const char* extension : {"glb", "blend", "ply", "stl", "off", "x", "md3"})
            QTest::newRow(extension) << QStringLiteral("text.%1").arg(QLatin1String(extension))
                                     << QByteArray("Once upon a time.\n").repeated(100) << otherFormat;
        QTest::newRow("text as a model") << QStringLiteral("text.obj")
                                         << QByteArray("Once upon a time.\n").repeated(100)
                                         << QStringLiteral("nothing in the model can be shown");
        QTest::newRow("empty") << QStringLiteral("empty.obj") << QByteArray("") << broken;
        QTest::newRow("no JSON") << QStringLiteral("a.gltf") << QByteArray("{\"asset\": {\"version\": \"2.0\"")
                                 << broken;
        QTest::newRow("PLY cut off") << QStringLiteral("a.ply")
                                     << QByteArray("ply\nformat ascii 1.0\nelement vertex 3\n")
                                     << broken + QStringLiteral("its header has no end");
        QTest::newRow("GLB cut off") << QStringLiteral("a.glb") << QByteArray("glTF\2\0\0\0\xff\0\0\0", 12) << broken;
        QTest::newRow("no mesh") << QStringLiteral("b.obj") << QByteArray("v 0 0 0\n") << broken;
        QTest::newRow("no XML") << QStringLiteral("a.dae") << QByteArray("<COLLADA") << broken;
    }

    void whatCanNotBeReadGivesOneLine()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        const QString fileName = m_folder.filePath(name);
        if (name.startsWith(QStringLiteral("folder")))
            QVERIFY(QDir().mkpath(fileName));
        else if (!bytes.isNull())
            writeFile(fileName, bytes);
        const HelperRun run = runHelper({QStringLiteral("--read"), fileName});
        QCOMPARE(run.status, 1);
        QVERIFY(run.output.empty());
        QVERIFY2(run.error.startsWith(fileName + QStringLiteral(": ") + reason), qPrintable(run.error));
        QCOMPARE(run.error.count(QLatin1Char('\n')), 1);
    }

    void anUnreadableFileGivesOneLine()
    {
        if (geteuid() == 0)
            QSKIP("the superuser may read everything");
        const QString fileName = m_folder.filePath(QStringLiteral("secret.obj"));
        writeFile(fileName, "v 0 0 0\n");
        QVERIFY(QFile::setPermissions(fileName, {}));
        const HelperRun run = runHelper({QStringLiteral("--read"), fileName});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.error, fileName + QStringLiteral(": Permission denied\n"));
    }

    void whatCanNotBeWrittenGivesOneLine_data()
    {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QByteArray>("scene");
        QTest::addColumn<QString>("message");
        const QString refused = QStringLiteral("box.foo: models of this format can't be written");
        QTest::newRow("unknown format") << QStringLiteral("foo") << QByteArray("#mrd 1.0\n") << refused;
        QTest::newRow("no format") << QString() << QByteArray("#mrd 1.0\n")
                                   << QStringLiteral("box.: models of this format can't be written");
        QTest::newRow("no mesh") << QStringLiteral("obj") << QByteArray("#mrd 1.0\nTransform \"a\" {}\n")
                                 << QStringLiteral("box.obj: the scene has no mesh that could be written");
        QTest::newRow("mesh without a face") << QStringLiteral("obj") << QByteArray("#mrd 1.0\nMesh {}\n")
                                             << QStringLiteral("box.obj: the scene has no mesh that could be written");
        QTest::newRow("index without a position")
            << QStringLiteral("glb")
            << QByteArray("#mrd 1.0\nMesh \"m\" { positions = [0 0 0]\n indices = [0, 0, 1] }\n")
            << QStringLiteral("box.glb: the mesh \"m\" has the index 1, but only 1 positions");
    }

    void whatCanNotBeWrittenGivesOneLine()
    {
        QFETCH(QString, extension);
        QFETCH(QByteArray, scene);
        QFETCH(QString, message);
        const HelperRun run
            = runHelper({QStringLiteral("--write"), extension, QStringLiteral("--name"), QStringLiteral("box")},
                scene.toStdString());
        QCOMPARE(run.status, 1);
        QCOMPARE(run.error, message + QLatin1Char('\n'));
        QVERIFY(run.output.empty());
    }

    void aModelBeyondTheMemoryLimitGivesOneLine()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the address sanitizer needs more address space than any limit leaves");
#endif
        QByteArray model;
        for (int index = 0; index < 200000; ++index)
            model += "v 0.123456 " + QByteArray::number(index) + " 0\n";
        for (int index = 1; index < 199998; ++index)
            model += "f " + QByteArray::number(index) + ' ' + QByteArray::number(index + 1) + ' '
                + QByteArray::number(index + 2) + '\n';
        const QString fileName = m_folder.filePath(QStringLiteral("large.obj"));
        writeFile(fileName, model);
        const HelperRun run
            = runHelper({QStringLiteral("--memory"), QStringLiteral("64"), QStringLiteral("--read"), fileName});
        QCOMPARE(run.status, orvane::outOfMemoryStatus);
        QCOMPARE(run.error, QStringLiteral("out of memory: the model needs more than the 64 MiB that it may take\n"));
        qputenv("ORVANE_IMPORT_MEMORY", "64");
        const HelperRun sameRun = runHelper({QStringLiteral("--read"), fileName});
        qunsetenv("ORVANE_IMPORT_MEMORY");
        QCOMPARE(sameRun.status, orvane::outOfMemoryStatus);
    }

    void damagedModelsNeverHangOrFlood()
    {
        // Bytes changed at places that follow from a fixed seed.
        for (const char* name : {"crate.glb", "crate.obj"}) {
            const QByteArray bytes = readFile(modelFile(name));
            QVERIFY(!bytes.isEmpty());
            quint32 seed = 12345;
            const auto random = [&seed](qsizetype limit) {
                seed = seed * 1664525 + 1013904223;
                return static_cast<qsizetype>(seed >> 8) % limit;
            };
            const QString fileName = m_folder.filePath(QStringLiteral("damaged-") + QLatin1String(name));
            for (int round = 0; round < 20; ++round) {
                QByteArray damaged = round % 2 == 0 ? bytes.left(random(bytes.size())) : bytes;
                for (int change = 0; round % 2 != 0 && change < 20; ++change)
                    damaged[random(damaged.size())] = static_cast<char>(random(256));
                writeFile(fileName, damaged);
                const HelperRun run = runHelper({QStringLiteral("--read"), fileName});
                QVERIFY2(run.status != -1, "it ended");
                if (run.crashed)
                    continue; // the import library's own; that is what the helper is for
                std::string error;
                if (run.status == 0)
                    QVERIFY2(sceneOf(run.output, error), error.c_str());
                else
                    QVERIFY2(run.error.startsWith(fileName) && run.error.count(QLatin1Char('\n')) == 1,
                        qPrintable(run.error));
            }
        }
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_Program.moc"
