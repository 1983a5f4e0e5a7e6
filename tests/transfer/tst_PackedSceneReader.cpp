#include "import/PackedBytes.h"

#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QTest>

using orvane::PackedSceneReader;

namespace {

// With the first line before it.
QByteArray framed(const QByteArray& rest)
{
    return "orvane-scene 2 " + QByteArray::number(rest.size()) + '\n' + rest;
}

QByteArray textBlock(const QByteArray& text)
{
    return "text " + QByteArray::number(text.size()) + '\n' + text;
}

// Two meshes without lists, and a group before them.
QByteArray twoMeshes()
{
    return textBlock("#mrd 1.0\nGroup {}\nMesh \"a\" {}\nMesh \"b\" {}\n");
}

// A packed scene with two lists and an image.
std::string listsAndAnImage()
{
    std::string failure;
    const NxRef<NxGroup> scene
        = sceneOf("#mrd 1.0\nGroup { Mesh \"a\" {} Texture {} }\nMesh \"b\" { indices = [1] }\n", failure);
    if (!scene)
        return {};
    meridane::NodeTraversal nodes(*scene);
    while (NxNode* node = nodes.next()) {
        if (auto* mesh = dynamic_cast<NxMesh*>(node))
            mesh->positions.setValues(numbers<VbVec3f>(64));
        if (auto* texture = dynamic_cast<NxTexture*>(node))
            texture->image.setValue(VbVec2s(16, 8), 1, std::vector<unsigned char>(128, 'x'));
    }
    return pack(*scene);
}

} // namespace

/// Everything that could be wrong with the bytes of a packed scene.
class TestPackedSceneReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void slicesGiveTheSameScene()
    {
        const NxRef<NxGroup> scene = new NxGroup;
        for (int index = 0; index < 200; ++index) {
            const NxRef<NxMesh> mesh = new NxMesh;
            mesh->positions.setValues(numbers<VbVec3f>(64));
            scene->addChild(mesh.get());
        }
        const std::string text = NxSceneWriter::toText(scene.get());
        orvane::PackedParts parts;
        parts.take(pack(*scene));
        PackedSceneReader reader(std::move(parts));
        double share = reader.progress();
        QCOMPARE(share, 0.0);
        int slices = 0;
        while (reader.step(std::chrono::microseconds(0)) == PackedSceneReader::State::Working) {
            ++slices;
            QVERIFY(!reader.takeScene());
            QVERIFY(reader.progress() >= share && reader.progress() <= 1);
            share = reader.progress();
        }
        QVERIFY(slices > 200);
        QCOMPARE(reader.progress(), 1.0);
        const NxRef<NxGroup> result = reader.takeScene();
        QVERIFY(result);
        QCOMPARE(NxSceneWriter::toText(result.get()), text);
        QVERIFY(!reader.takeScene());
    }

    void damagedBytesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("reason");
        const QByteArray meshes = twoMeshes();
        const QByteArray indices("\1\0\0\0\2\0\0\0", 8);
        const auto row = [](const char* name, const QByteArray& bytes, const char* reason) {
            QTest::newRow(name) << bytes << QByteArray(reason);
        };
        const char* const start = "it doesn't begin like one";
        row("nothing", "", start);
        row("garbage", "garbage\n", start);
        row("a plain scene", "#mrd 1.0\n", start);
        row("another version", "orvane-scene 3 0\n", start);
        row("no size", "orvane-scene 2\n" + meshes, start);
        row("negative size", "orvane-scene 2 -1\n" + meshes, start);
        row("size beyond all numbers", "orvane-scene 2 99999999999999999999\n" + meshes, start);
        row("size that wraps around", "orvane-scene 2 18446744073709551615\n" + meshes, start);
        row("first line without an end", "orvane-scene 2 0", start);
        row("size beyond the bytes", "orvane-scene 2 1000000000000\n" + meshes, "bytes are missing at its end");
        row("bytes behind the end", framed(meshes) + "x", "there are bytes behind its end");

        const char* const text = "its text has no size, or one that is too large";
        row("nothing behind the first line", framed(""), text);
        row("no text", framed("list 8 1 indices\n" + indices), text);
        row("text without a size", framed("text \n"), text);
        row("text with a negative size", framed("text -5\n12345"), text);
        row("text size beyond the bytes", framed("text 100\n#mrd 1.0\n"), text);
        row("text size that wraps around", framed("text 18446744073709551615\n#mrd 1.0\n"), text);
        row("text size beyond all numbers", framed("text 99999999999999999999\n#mrd 1.0\n"), text);
        row("more on the line of the text", framed("text 9 x\n#mrd 1.0\n"), text);
        row("text line without an end", framed("text 9"), text);
        row("a text that is no scene", framed(textBlock("Mesh {}\n")), "1:1: expected the first line of a scene file");
        row("half a scene", framed(textBlock("#mrd 1.0\nMesh {")), "2:7: unexpected end of file");
        row("a text that ends early", framed("text 12\n#mrd 1.0\nMesh {}\n"), "its block 1 has no size");

        const char* const list = "its block 1 has no size, or one that is too large";
        const auto withList = [&](const char* name, const QByteArray& block, const char* reason) {
            row(name, framed(meshes + block), reason);
        };
        withList("garbage for a list", "garbage\n", list);
        withList("a second text", meshes, list);
        withList("list without a size", "list indices\n" + indices, list);
        withList("list with a negative size", "list -8 1 indices\n" + indices, list);
        withList("list size beyond the bytes", "list 12 1 indices\n" + indices, list);
        withList("list size that wraps around", "list 18446744073709551608 1 indices\n" + indices, list);
        withList("list size beyond all numbers", "list 99999999999999999999 1 indices\n" + indices, list);
        withList("list line without an end", "list 8 1 indices", list);
        const char* const node = "its block 1 doesn't state its node and field";
        withList("list line with its size alone", "list 8\n" + indices, node);
        withList("list without a node", "list 8 indices\n" + indices, node);
        withList("list with a negative node", "list 8 -1 indices\n" + indices, node);
        withList("list with a node beyond all numbers", "list 8 99999999999999999999 indices\n" + indices, node);
        withList("list without a field", "list 8 1\n" + indices, node);
        const char* const missing = "its block 1 is for a node that isn't there";
        withList("list of one node too many", "list 8 3 indices\n" + indices, missing);
        withList("list of the last node of all", "list 8 18446744073709551615 indices\n" + indices, missing);
        const char* const field = "its block 1 is for a field that its node doesn't have";
        withList("list of an unknown field", "list 8 1 index\n" + indices, field);
        withList("list of a nameless field", "list 8 1 \n" + indices, field);
        withList("list of a node without fields", "list 8 0 indices\n" + indices, field);
        withList("list of a field with a longer name", "list 8 1 indices \n" + indices, field);
        withList(
            "list for a single value", "list 4 1 primitive\n\1\1\1\1", "its block 1 is for a field of another kind");
        withList("half a value", "list 7 1 indices\n1234567", "its block 1 ends within a value");
        withList("list of another kind", "list 8 1 positions\n" + indices, "its block 1 ends within a value");
        const QByteArray good = "list 8 1 indices\n" + indices;
        withList("the same list twice", good + good,
            "its block 2 is for a field that had one, or is before that of the block before it");
        withList("lists of a node in another order", good + "list 12 1 positions\n123456781234",
            "its block 2 is for a field that had one, or is before that of the block before it");
        withList("lists of nodes in another order", "list 8 2 indices\n" + indices + good,
            "its block 2 is for a node before that of the block before it");
        withList("bytes behind the last list", good + "x", "its block 2 has no size, or one that is too large");
        row("list that the text has too",
            framed(textBlock("#mrd 1.0\nMesh { indices = [1, 2, 3] }\n") + "list 8 0 indices\n" + indices),
            "its block 1 is for a field that has values already");
        row("list of an unknown node",
            framed(textBlock("#mrd 1.0\nStrange { indices = [] }\n") + "list 8 0 indices\n" + indices),
            "its block 1 is for a field that its node doesn't have");
        withList("a line without an end", "list " + QByteArray(2000, '1'), list);
        withList("lists without bytes and without end", QByteArray("list 0 0 a\n").repeated(1000),
            "its block 43 has no size, or one that is too large");
        const QByteArray texture = textBlock("#mrd 1.0\nTexture {}\n");
        const auto withImage = [&](const char* name, const QByteArray& block, const char* reason) {
            row(name, framed(texture + block), reason);
        };
        const char* const size = "its block 1 has another size than its image";
        withImage("image with too few bytes", "image 3 0 1 1 4 image\n123", size);
        withImage("image with too many bytes", "image 5 0 1 1 4 image\n12345", size);
        withImage("image without pixels", "image 0 0 0 1 4 image\n", size);
        withImage("image without components", "image 0 0 1 1 0 image\n", size);
        withImage("image with five components", "image 5 0 1 1 5 image\n12345", node);
        withImage("image that is too wide", "image 4 0 32768 1 4 image\n1234", node);
        withImage("image that is too high", "image 4 0 1 32768 4 image\n1234", node);
        withImage("image with a negative width", "image 4 0 -1 1 4 image\n1234", node);
        withImage("image without a height", "image 4 0 1 image\n1234", node);
        withImage("image beyond the bytes", "image 5 0 1 1 4 image\n1234", list);
        withImage("image for a text", "image 4 0 1 1 4 filePath\n1234", "its block 1 is for a field of another kind");
        withImage("list for an image", "list 4 0 image\n1234", "its block 1 is for a field of another kind");
        row("image that the text has too",
            framed(textBlock("#mrd 1.0\nTexture { image = 1 1 1 0x12 }\n") + "image 4 0 1 1 4 image\n1234"),
            "its block 1 is for a field that has values already");
        row("list for an enumeration", framed(textBlock("#mrd 1.0\nFieldGallery {}\n") + "list 8 0 mfEnum\n" + indices),
            "its block 1 is for a field of another kind");
    }

    void damagedBytesAreRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, reason);
        std::string failure;
        QVERIFY(!unpack(bytes.toStdString(), failure));
        QVERIFY2(failure.starts_with(reason.toStdString()), failure.c_str());
        QVERIFY(failure.find('\n') == std::string::npos);
    }

    void bytesMayArriveInAnyPortions()
    {
        const std::string bytes = listsAndAnImage();
        std::string failure;
        const std::string text = NxSceneWriter::toText(unpack(bytes, failure).get());
        QVERIFY2(failure.empty(), failure.c_str());
        for (std::size_t size = 1; size < 100; ++size) {
            orvane::PackedParts parts;
            for (std::size_t begin = 0; begin < bytes.size(); begin += size) {
                QVERIFY(!parts.isComplete() && !parts.isBroken());
                parts.take(std::string_view(bytes).substr(begin, size));
            }
            QVERIFY2(parts.isComplete(), parts.failure().c_str());
            PackedSceneReader reader(std::move(parts));
            QCOMPARE(reader.run(), PackedSceneReader::State::Done);
            QCOMPARE(NxSceneWriter::toText(reader.takeScene().get()), text);
        }
    }

    void anImageIsNotCopied()
    {
        orvane::PackedParts parts;
        parts.take(framed(textBlock("#mrd 1.0\nTexture {}\n") + "image 4 0 2 1 2 image\n1234").toStdString());
        QCOMPARE(parts.blocks().size(), std::size_t{1});
        const unsigned char* const bytes = parts.blocks().front().bytes.data();
        PackedSceneReader reader(std::move(parts));
        QCOMPARE(reader.run(), PackedSceneReader::State::Done);
        const NxRef<NxGroup> scene = reader.takeScene();
        VbVec2s size;
        int components = 0;
        QCOMPARE(dynamic_cast<NxTexture*>(scene->getChild(0))->image.getValue(size, components), bytes);
        QCOMPARE(size, VbVec2s(2, 1));
        QCOMPARE(components, 2);
    }

    void aSizeThatIsALieTakesNoMemory()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the address sanitizer ends the process for it");
#endif
        // More than any machine has: refused, rather than the end of the tool.
        orvane::PackedParts parts;
        parts.take("orvane-scene 2 9000000000000000000\ntext 8000000000000000000\n");
        QVERIFY(parts.isBroken());
        QCOMPARE(parts.failure(), std::string("the scene doesn't fit in memory"));
        parts.take("anything");
        QCOMPARE(parts.failure(), std::string("the scene doesn't fit in memory"));
    }

    void bytesThatAreCutAnywhereAreRefused()
    {
        std::string failure;
        const std::string bytes = listsAndAnImage();
        QVERIFY(unpack(bytes, failure));
        for (std::size_t size = 0; size < bytes.size(); ++size) {
            QVERIFY2(!unpack(bytes.substr(0, size), failure), std::to_string(size).c_str());
            QVERIFY(!failure.empty());
        }
        // The same after the first line, which gives the size.
        const QByteArray rest = QByteArray::fromStdString(bytes.substr(bytes.find('\n') + 1));
        const qsizetype textEnd = rest.indexOf("list ");
        int whole = 0;
        for (qsizetype size = 0; size < rest.size(); ++size)
            whole += unpack(framed(rest.left(size)).toStdString(), failure) ? 1 : 0;
        // Where the text ends, and where each block but the last does.
        QVERIFY(textEnd > 0);
        QCOMPARE(whole, 3);
    }

    void bytesWithOneChangeDoNoHarm()
    {
        const NxRef<NxGroup> scene = new NxGroup;
        const NxRef<NxMesh> mesh = new NxMesh;
        scene->addChild(mesh.get());
        mesh->positions.setValues(numbers<VbVec3f>(64));
        mesh->indices.setValues(std::vector<int>(64, 3));
        const NxRef<NxTexture> texture = new NxTexture;
        scene->addChild(texture.get());
        texture->image.setValue(VbVec2s(8, 8), 1, std::vector<unsigned char>(64, 'x'));
        const std::string bytes = pack(*scene);
        for (std::size_t place = 0; place < bytes.size(); ++place) {
            for (const char bit : {'\x01', '\x08', '\x80'}) {
                std::string changed = bytes;
                changed[place] = static_cast<char>(changed[place] ^ bit);
                std::string failure;
                const NxRef<NxGroup> result = unpack(changed, failure);
                QVERIFY(result ? failure.empty() && !NxSceneWriter::toText(result.get()).empty() : !failure.empty());
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestPackedSceneReader)
#include "tst_PackedSceneReader.moc"
