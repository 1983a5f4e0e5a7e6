#include "base/FailingMemory.h"
#include "scene/SceneText.h"

#include <QTest>

#include <memory>

using FailingMemory::allocationsLeft;
using FailingMemory::blocks;

/// Lets each allocation of reading and writing fail in turn.
class TestNxSceneReaderMemory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Comes first: a class is described once.
    void describingAClassMayFailAndSucceedLater()
    {
        const std::string text = SceneText::file(
            "Switch { whichChild = 1 }\nSpotLight { }\nFieldGallery { sfFloat = 2; mfInt32 = [1, 2] }\n");
        long failures = 0;
        for (long succeed = 0;; ++succeed) {
            NxSceneReader reader(text, "test.mrd");
            allocationsLeft = succeed;
            const NxSceneReader::State state = reader.run();
            const bool failed = allocationsLeft < 0;
            allocationsLeft = -1;
            if (!failed) {
                QCOMPARE(state, NxSceneReader::State::Done);
                break;
            }
            ++failures;
            QCOMPARE(state, NxSceneReader::State::Failed);
            QCOMPARE(reader.failure().message, std::string("the scene doesn't fit in memory"));
        }
        QVERIFY2(failures > 50, qPrintable(QString::number(failures)));
        const NxRef<NxGroup> scene = SceneText::read(text);
        QVERIFY(scene);
        // The descriptions are whole: values that differ from the defaults are written, others aren't.
        QCOMPARE(NxSceneWriter::toText(scene.get()),
            std::string("#mrd 1.0\n\nSwitch {\n    whichChild = 1\n}\n\nSpotLight {\n}\n\nFieldGallery {\n"
                        "    sfFloat = 2\n    mfInt32 = [1, 2]\n}\n"));
    }

    void everyFailingAllocationIsAFailureOfReading()
    {
        const std::string text = sample();
        // Describes the node classes, which happens once, and is the scene that is open meanwhile.
        const NxRef<NxGroup> present = SceneText::read(text);
        QVERIFY(present);
        const std::string presentText = NxSceneWriter::toText(present.get());
        long failures = 0;
        for (long succeed = 0;; ++succeed) {
            const long blocksBefore = blocks;
            auto owner = std::make_unique<NxSceneReader>(text, "test.mrd");
            NxSceneReader& reader = *owner;
            allocationsLeft = succeed;
            const NxSceneReader::State state = reader.run();
            const bool failed = allocationsLeft < 0;
            allocationsLeft = -1;
            if (!failed) {
                QCOMPARE(state, NxSceneReader::State::Done);
                break;
            }
            ++failures;
            QCOMPARE(state, NxSceneReader::State::Failed);
            QCOMPARE(reader.failure().message, std::string("the scene doesn't fit in memory"));
            QVERIFY(reader.failure().line > 0);
            QVERIFY(!reader.takeScene());
            owner.reset();
            QCOMPARE(blocks, blocksBefore);
        }
        QVERIFY(NxSceneWriter::toText(present.get()) == presentText);
        QVERIFY2(failures > 50, qPrintable(QString::number(failures)));
    }

    void everyFailingAllocationIsAFailureOfWriting()
    {
        const NxRef<NxGroup> scene = SceneText::read(sample());
        const std::string whole = NxSceneWriter::toText(scene.get());
        long failures = 0;
        for (long succeed = 0;; ++succeed) {
            NxSceneWriter writer(scene.get());
            std::string text;
            allocationsLeft = succeed;
            while (writer.step(text, std::chrono::seconds(1))) { }
            const bool failed = allocationsLeft < 0;
            allocationsLeft = -1;
            if (!failed) {
                QCOMPARE(writer.failure(), std::string());
                QCOMPARE(text, whole);
                break;
            }
            ++failures;
            QCOMPARE(writer.failure(), std::string("the text of the scene doesn't fit in memory"));
        }
        QVERIFY2(failures > 10, qPrintable(QString::number(failures)));
    }

private:
    static std::string sample()
    {
        return SceneText::file(
            "Transform \"a name that is longer than a short one\" as \"a label that is long as well\" {\n"
            "  Material { diffuseColor = 1 0 0; an_unknown_field = [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11] }\n"
            "  Mesh \"m\" { positions = [1 2 3, 4 5 6, 7 8 9]; indices = [0, 1, 2] }\n"
            "  Widget { a = 1; Texture \"t\" { filePath = \"a path that is longer than a short one\"\n"
            "  image = 2 2 1 0x01 0x02 0x03 0x04 } }\n"
            "}\n"
            "use \"a label that is long as well\"\nuse \"m\"\nuse \"t\"\n");
    }
};

QTEST_APPLESS_MAIN(TestNxSceneReaderMemory)
#include "tst_NxSceneReaderMemory.moc"
