#include "scene/SceneText.h"
#include "scene/TestNodes.h"

#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxTransform.h"
#include "meridane/scene/recovery/RecoveryFileReader.h"
#include "meridane/scene/recovery/RecoveryReplay.h"
#include "meridane/scene/recovery/detail/ByteWriter.h"
#include "meridane/scene/recovery/detail/EntryWriter.h"
#include "meridane/scene/recovery/detail/OperationWriter.h"

#include <QTest>

#include <array>

using meridane::ByteWriter;
using meridane::OperationWriter;
using meridane::RecoveryDescription;
using meridane::RecoveryFileReader;
using meridane::RecoveryReplay;
using Base = RecoveryDescription::Base;
namespace RecoveryFormat = meridane::RecoveryFormat;
using RecoveryFormat::Operation;

namespace {

constexpr std::uint8_t whole = RecoveryFormat::firstPart | RecoveryFormat::lastPart;

/// Nodes whose numbers in the file are 1, 2 and 3; 0 is the group that holds the top nodes.
struct Nodes {
    NxRef<NxTransform> transform{new NxTransform};
    NxRef<ProbeNode> probe{new ProbeNode};
    NxRef<NxFieldGallery> gallery{new NxFieldGallery};

    void write(OperationWriter& writer) const
    {
        writer.node(*transform);
        writer.node(*probe);
        writer.node(*gallery);
    }
    /// The place of a field of the gallery.
    [[nodiscard]] OperationWriter::Place place(const NxField& field) const
    {
        return {3, gallery->getFieldData()->getIndex(gallery.get(), &field)};
    }
};

std::string file(const std::string& operations, Base base = Base::Nothing, std::uint64_t nodes = 1)
{
    std::string bytes;
    meridane::EntryWriter writer;
    RecoveryDescription description;
    description.base = base;
    description.fileName = "/a.mrd";
    description.nodeCount = nodes;
    writer.begin(bytes, description);
    writer.operations(bytes, operations);
    writer.commit(bytes, {});
    return bytes;
}

/// Why the replay fails; empty if it doesn't.
std::string replay(const std::string& bytes, const NxRef<NxGroup>& base = nullptr)
{
    RecoveryFileReader reader(bytes);
    if (reader.run() != RecoveryFileReader::State::Done)
        return "no file";
    RecoveryReplay replay(reader, base);
    const bool isDone = replay.run() == RecoveryReplay::State::Done;
    const NxRef<NxGroup> scene = replay.takeScene();
    if (isDone != bool(scene) || isDone != replay.failure().empty())
        return "a scene, or a failure";
    return replay.failure();
}

using Write = void (*)(OperationWriter&, std::string&, const Nodes&);

void begin(std::string& bytes, Operation operation, std::initializer_list<std::uint64_t> numbers)
{
    ByteWriter writer(bytes);
    writer.byte(static_cast<std::uint8_t>(operation));
    for (const std::uint64_t number : numbers)
        writer.number(number);
}

} // namespace

/// What a replay refuses although the checksums are right.
class TestRecoveryReplay : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void operationsThatDoNotFitAreRefused_data()
    {
        QTest::addColumn<Write>("write");
        QTest::addColumn<QByteArray>("failure");
        const auto row = [](const char* name, const char* failure, Write write) {
            QTest::newRow(name) << write << QByteArray(failure);
        };
        row("an unknown operation", "it has an operation that this version doesn't know",
            [](OperationWriter&, std::string& bytes, const Nodes&) { bytes += '\x7F'; });
        row("half a number", "an operation is incomplete",
            [](OperationWriter&, std::string& bytes, const Nodes&) { bytes += "\x02\x80"; });
        row("a number of 65 bits", "an operation is incomplete",
            [](OperationWriter&, std::string& bytes, const Nodes&) {
                bytes += "\x03\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x02";
            });
        row("a node of no class", "an operation is incomplete",
            [](OperationWriter&, std::string& bytes, const Nodes&) { begin(bytes, Operation::Node, {3}); });
        row("no node", "a node that it changes isn't there",
            [](OperationWriter& writer, std::string&, const Nodes&) { writer.name(4, "a"); });
        row("a node far away", "a node that it changes isn't there",
            [](OperationWriter& writer, std::string&, const Nodes&) { writer.name(~std::uint64_t{0}, "a"); });
        row("a name without its end", "an operation is incomplete",
            [](OperationWriter&, std::string& bytes, const Nodes&) {
                begin(bytes, Operation::Name, {1, 1000});
            });
        row("no field", "a field that it changes isn't there", [](OperationWriter& writer, std::string&, const Nodes&) {
            writer.ignored({2, 3}, true);
        });
        row("a field of a class that isn't described", "a field that it changes isn't there",
            [](OperationWriter& writer, std::string&, const Nodes&) {
                writer.ignored({0, 0}, true);
            });
        row("no flag", "an operation is incomplete", [](OperationWriter&, std::string& bytes, const Nodes&) {
            begin(bytes, Operation::Ignored, {2, 0, 2});
        });
        row("no number", "a value can't be read", [](OperationWriter& writer, std::string&, const Nodes&) {
            writer.value({2, 0}, whole, "a b");
        });
        row("a part without the first", "an operation is incomplete",
            [](OperationWriter& writer, std::string&, const Nodes&) {
                writer.value({2, 0}, RecoveryFormat::lastPart, "1");
            });
        row("a part of another field", "an operation is incomplete",
            [](OperationWriter& writer, std::string&, const Nodes&) {
                writer.value({2, 1}, RecoveryFormat::firstPart, "\"a");
                writer.value({2, 0}, RecoveryFormat::lastPart, "\"");
            });
        row("a last part that is missing", "its last value is incomplete",
            [](OperationWriter& writer, std::string&, const Nodes&) {
                writer.value({2, 1}, RecoveryFormat::firstPart, "\"a");
            });
        row("too many kinds of parts", "an operation is incomplete",
            [](OperationWriter& writer, std::string&, const Nodes&) {
                writer.value({2, 0}, 4, "1");
            });
        row("an image in a float", "a field that it changes is of another type",
            [](OperationWriter&, std::string& bytes, const Nodes&) {
                begin(bytes, Operation::Image, {2, 0, whole, 0, 0, 0, 0});
            });
        row("an image without its bytes", "an image has another size than its bytes",
            [](OperationWriter&, std::string& bytes, const Nodes& nodes) {
                const auto place = nodes.place(nodes.gallery->sfImage);
                begin(bytes, Operation::Image,
                    {place.node, static_cast<std::uint64_t>(place.field), whole, 32767, 32767, 4, 0});
            });
        row("an image that is too wide", "an operation is incomplete",
            [](OperationWriter&, std::string& bytes, const Nodes& nodes) {
                const auto place = nodes.place(nodes.gallery->sfImage);
                begin(bytes, Operation::Image,
                    {place.node, static_cast<std::uint64_t>(place.field), whole, 32768, 1, 1, 0});
            });
        row("rows that aren't there", "rows of a list that it replaces aren't there",
            [](OperationWriter& writer, std::string&, const Nodes& nodes) {
                writer.plainRows({2, 2}, nodes.probe->weights, {0, 1, 2, 2});
            });
        row("rows behind the end", "rows of a list that it replaces aren't there",
            [](OperationWriter& writer, std::string&, const Nodes& nodes) {
                writer.plainRows({2, 2}, nodes.probe->weights, {0, 1, 4, 0});
            });
        row("more rows than there can be", "an operation is incomplete",
            [](OperationWriter& writer, std::string&, const Nodes& nodes) {
                writer.plainRows({2, 2}, nodes.probe->weights, {0, 1, std::size_t{1} << 40U, 0});
            });
        row("half a row", "rows of a list that it replaces aren't there",
            [](OperationWriter&, std::string& bytes, const Nodes&) {
                begin(bytes, Operation::PlainRows, {2, 2, 0, 0, 1, 0});
            });
        row("rows of a single value", "a field that it changes is of another type",
            [](OperationWriter& writer, std::string&, const Nodes& nodes) {
                writer.plainRows({2, 0}, nodes.probe->weights, {0, 1, 0, 0});
            });
        row("bytes in a list of texts", "a field that it changes is of another type",
            [](OperationWriter& writer, std::string&, const Nodes& nodes) {
                writer.plainRows(nodes.place(nodes.gallery->mfString), nodes.probe->weights, {0, 1, 0, 0});
            });
        row("a row that is no name", "a value of a list can't be read",
            [](OperationWriter& writer, std::string&, const Nodes& nodes) {
                const std::array texts{VbString("perhaps")};
                writer.textRows(nodes.place(nodes.gallery->mfEnum), texts, {0, 1, 0, 0});
            });
        row("texts behind the end", "rows of a list that it replaces aren't there",
            [](OperationWriter& writer, std::string&, const Nodes& nodes) {
                const std::array texts{VbString("\"a\"")};
                writer.textRows(nodes.place(nodes.gallery->mfString), texts, {0, 1, 1000, 0});
            });
        row("more texts than bytes", "an operation is incomplete",
            [](OperationWriter&, std::string& bytes, const Nodes& nodes) {
                const auto place = nodes.place(nodes.gallery->mfString);
                begin(bytes, Operation::TextRows,
                    {place.node, static_cast<std::uint64_t>(place.field), 0, 0, 2'000'000'000});
            });
        row("children of a node that is no group", "a node that gets children is no group",
            [](OperationWriter& writer, std::string&, const Nodes&) { writer.children(2, 0, 0, std::array{1UL}); });
        row("a child that isn't there", "a node that it changes isn't there",
            [](OperationWriter& writer, std::string&, const Nodes&) { writer.children(0, 0, 0, std::array{9UL}); });
        row("a child too many", "a child that it removes isn't there",
            [](OperationWriter& writer, std::string&, const Nodes&) { writer.children(0, 0, 1, {}); });
        row("a place behind the end", "a child that it removes isn't there",
            [](OperationWriter& writer, std::string&, const Nodes&) { writer.children(0, 1, 0, std::array{1UL}); });
        row("a group in itself", "a group would contain itself",
            [](OperationWriter& writer, std::string&, const Nodes&) { writer.children(1, 0, 0, std::array{1UL}); });
        row("the scene in a group of it", "a group would contain itself",
            [](OperationWriter& writer, std::string&, const Nodes&) {
                writer.children(0, 0, 0, std::array{1UL});
                writer.children(1, 0, 0, std::array{0UL});
            });
        row("more children than bytes", "an operation is incomplete",
            [](OperationWriter&, std::string& bytes, const Nodes&) {
                begin(bytes, Operation::Children, {0, 0, 0, 2'000'000'000});
            });
        row("an unknown class", "it needs the node class Rocket, which isn't there; load the plug-in that has it",
            [](OperationWriter&, std::string& bytes, const Nodes&) {
                begin(bytes, Operation::Class, {0});
                ByteWriter(bytes).text("Rocket");
            });
        row("a class without a name", "the description of a class is incomplete",
            [](OperationWriter&, std::string& bytes, const Nodes&) {
                begin(bytes, Operation::Class, {1});
                ByteWriter(bytes).text("Rocket 2");
            });
        row("a class with other fields",
            "the node class Probe has other fields or defaults here than where the changes were made",
            [](OperationWriter&, std::string& bytes, const Nodes&) {
                begin(bytes, Operation::Class, {0});
                ByteWriter writer(bytes);
                writer.text("Probe");
                writer.number(2);
            });
        row("a class with another default",
            "the node class Probe has other fields or defaults here than where the changes were made",
            [](OperationWriter&, std::string& bytes, const Nodes&) {
                begin(bytes, Operation::Class, {0});
                ByteWriter writer(bytes);
                writer.text("Probe");
                writer.number(3);
                writer.text("size");
                writer.text("SFFloat");
                writer.wideNumber(1);
            });
        row("a long unknown class with fields", "the description of a class is incomplete",
            [](OperationWriter&, std::string& bytes, const Nodes&) {
                begin(bytes, Operation::Class, {1});
                ByteWriter writer(bytes);
                writer.text("Widget");
                writer.number(1);
            });
        row("an unknown field without its first part", "an operation is incomplete",
            [](OperationWriter& writer, std::string&, const Nodes&) {
                writer.unknownField(1, RecoveryFormat::lastPart, false, "a", "1");
            });
    }

    void operationsThatDoNotFitAreRefused()
    {
        QFETCH(Write, write);
        QFETCH(QByteArray, failure);
        const Nodes nodes;
        OperationWriter writer;
        nodes.write(writer);
        std::string operations;
        writer.moveTo(operations);
        QCOMPARE(replay(file(operations)), std::string());
        std::string bytes;
        write(writer, bytes, nodes);
        writer.moveTo(operations);
        operations += bytes;
        QCOMPARE(replay(file(operations)), "its changes don't fit the scene: " + failure.toStdString());
    }

    void theBaseMustFit()
    {
        const NxRef<NxGroup> base = SceneText::read("#mrd 1.0\nGroup { }\n");
        QCOMPARE(replay(file("", Base::File, 2), base), std::string());
        QCOMPARE(replay(file("", Base::File, 3), base),
            std::string(
                "its changes don't fit the scene: the scene file has other nodes than where the changes were made"));
        QCOMPARE(
            replay(file("", Base::File, 2)), std::string("its changes begin from the file /a.mrd, which is missing"));
        QCOMPARE(replay(file(""), base), std::string("its changes begin from an empty scene, not from a file"));
    }

    void theSceneIsTakenOnce()
    {
        RecoveryFileReader reader(file(""));
        QCOMPARE(reader.run(), RecoveryFileReader::State::Done);
        RecoveryReplay replay(reader, nullptr);
        QVERIFY(!replay.takeScene());
        QCOMPARE(replay.run(), RecoveryReplay::State::Done);
        QCOMPARE(replay.progress(), 1.0);
        QVERIFY(replay.takeScene());
        QVERIFY(!replay.takeScene());
    }
};

QTEST_APPLESS_MAIN(TestRecoveryReplay)
#include "tst_RecoveryReplay.moc"
