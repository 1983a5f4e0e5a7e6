#include "scene/TestNodes.h"
#include "scene/journal/JournalRun.h"
#include "scene/recovery/RecoveryRun.h"

#include "meridane/scene/recovery/detail/ByteWriter.h"
#include "meridane/scene/recovery/detail/EntryWriter.h"
#include "meridane/scene/recovery/detail/RecoveryFormat.h"

#include <QTest>

#include <algorithm>

using meridane::RecoveryCommit;
using meridane::RecoveryDescription;
using meridane::RecoveryFileReader;
using State = RecoveryFileReader::State;
using Base = RecoveryDescription::Base;
namespace RecoveryFormat = meridane::RecoveryFormat;

namespace {

std::string failureOf(std::string bytes)
{
    RecoveryFileReader reader(std::move(bytes));
    reader.run();
    return reader.failure();
}

/// A file with three states of a scene, in several entries each.
class ThreeStates {
public:
    explicit ThreeStates(Base base)
        : m_journal(*m_root)
        , m_run(m_journal.journal(), base)
    {
        m_root->addChild(m_probe.get());
        commit();
        m_probe->size.setValue(2);
        m_probe->weights.insertSpace(1, 2);
        commit();
        m_probe->title.setValue("a");
        m_probe->setName("probe");
        m_root->addChild(new ProbeNode);
        commit();
    }

    [[nodiscard]] const RecoveryRun& run() const { return m_run; }
    [[nodiscard]] bool hasState(const std::string& text) const { return std::ranges::count(m_texts, text) > 0; }

    /// Whether the bytes give no scene, or one of the states.
    [[nodiscard]] bool isSafe(const std::string& bytes) const
    {
        const std::string text = m_run.recoverText(bytes);
        return text.starts_with('(') || hasState(text);
    }

private:
    void commit()
    {
        m_run.runAll();
        m_texts.push_back(m_journal.text());
    }

    NxRef<NxGroup> m_root{new NxGroup};
    NxRef<ProbeNode> m_probe{new ProbeNode};
    JournalRun m_journal;
    RecoveryRun m_run;
    std::vector<std::string> m_texts;
};

} // namespace
Q_DECLARE_METATYPE(Base)

/// What is read from recovery files, whole and damaged ones.
class TestRecoveryFileReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void descriptionAndCommitAreRead()
    {
        RecoveryDescription description;
        description.base = Base::File;
        description.displayName = "Größe";
        description.fileName = "/a/b\n.mrd";
        description.fileSize = 1'234'567'890'123;
        description.fileHash = {1, 0xFFFFFFFFFFFFFFFF};
        description.nodeCount = 1'000'001;
        description.begun = RecoveryRun::now();
        const RecoveryCommit commit{RecoveryRun::now() + std::chrono::minutes(1), 300};
        std::string bytes;
        meridane::EntryWriter writer;
        writer.begin(bytes, description);
        writer.operations(bytes, "one");
        writer.commit(bytes, {RecoveryRun::now(), 1});
        writer.operations(bytes, "two");
        writer.operations(bytes, "");
        writer.commit(bytes, commit);

        RecoveryFileReader reader(bytes);
        while (reader.step(std::chrono::seconds(0)) == State::Working) { }
        QCOMPARE(reader.state(), State::Done);
        QVERIFY(reader.description() == description);
        QVERIFY(reader.commit() == commit);
        QVERIFY(!reader.isCut());
        QVERIFY(reader.failure().empty());
        QCOMPARE(reader.operations().size(), std::size_t{3});
        QCOMPARE(reader.operations()[1], std::string_view("two"));

        // What has no commit isn't read.
        writer.operations(bytes, "three");
        RecoveryFileReader longer(bytes);
        QCOMPARE(longer.run(), State::Done);
        QVERIFY(longer.isCut());
        QVERIFY(longer.commit() == commit);
        QCOMPARE(longer.operations().size(), std::size_t{3});
    }

    void aFileOfAnotherKindIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("failure");
        const auto row = [](const char* name, const char* bytes, const char* failure) {
            QTest::newRow(name) << QByteArray(bytes) << QByteArray(failure);
        };
        row("empty", "", "the file is empty");
        row("scene", "#mrd 1.0\n", "this is no recovery file");
        row("picture", "\x89PNG\r\n", "this is no recovery file");
        row("only the start", "#mrd-recovery ", "its beginning is damaged");
        row("no line end", "#mrd-recovery 1", "its beginning is damaged");
        row("no description", "#mrd-recovery 1\n", "its beginning is damaged");
        row("no version", "#mrd-recovery \nx", "its beginning is damaged");
        row("no number", "#mrd-recovery one\nx", "its beginning is damaged");
        row("another version", "#mrd-recovery 27\nanything",
            "it was written by another version of this program: its format is 27, and this version reads format 1");
    }

    void aFileOfAnotherKindIsRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, failure);
        QCOMPARE(QByteArray(failureOf(bytes.toStdString()).c_str()), failure);
    }

    void aFileWithoutAStateIsRefused()
    {
        std::string bytes;
        meridane::EntryWriter writer;
        writer.begin(bytes, {});
        writer.operations(bytes, "one");
        RecoveryFileReader reader(bytes);
        QCOMPARE(reader.run(), State::Failed);
        QCOMPARE(reader.failure(), std::string("it ends before the first complete state of the scene"));
        QVERIFY(reader.hasDescription());
        QVERIFY(reader.operations().empty());
    }

    void aFileOfAnotherByteOrderIsRefused()
    {
        // A description whose checksum is right.
        std::string bytes = "#mrd-recovery 1\n";
        std::string rest;
        meridane::ByteWriter writer(rest);
        writer.wideNumber(0);
        writer.wideNumber(8);
        writer.byte(1);
        writer.wideNumber(0x0807060504030201);
        meridane::ByteWriter(bytes).wideNumber(meridane::shortHashOf(std::as_bytes(std::span(rest))));
        bytes += rest;
        QCOMPARE(
            failureOf(bytes), std::string("it was written on another kind of machine, which orders bytes differently"));
    }

    void aFileThatEndsAnywhereGivesAnEarlierStateOrNone_data()
    {
        QTest::addColumn<Base>("base");
        QTest::newRow("from a file") << Base::File;
        QTest::newRow("from nothing") << Base::Nothing;
    }

    void aFileThatEndsAnywhereGivesAnEarlierStateOrNone()
    {
        QFETCH(Base, base);
        const ThreeStates file(base);
        const std::string& bytes = file.run().bytes();
        QVERIFY(file.hasState(file.run().recoverText()));
        std::size_t recovered = 0;
        for (std::size_t size = 0; size < bytes.size(); ++size) {
            const std::string part = bytes.substr(0, size);
            QVERIFY2(file.isSafe(part), std::to_string(size).c_str());
            if (file.run().recover(part))
                ++recovered;
        }
        QVERIFY(recovered > bytes.size() / 4);
    }

    void aFlippedBitGivesAnEarlierStateOrNone_data() { aFileThatEndsAnywhereGivesAnEarlierStateOrNone_data(); }

    void aFlippedBitGivesAnEarlierStateOrNone()
    {
        QFETCH(Base, base);
        const ThreeStates file(base);
        std::string bytes = file.run().bytes();
        for (std::size_t place = 0; place < bytes.size(); ++place) {
            const char original = bytes[place];
            for (unsigned int bit = 0; bit < 8; ++bit) {
                bytes[place] = static_cast<char>(original ^ static_cast<char>(1U << bit));
                QVERIFY2(file.isSafe(bytes), std::to_string(place).c_str());
                // The latest commit is always lost.
                RecoveryFileReader reader(bytes);
                QVERIFY(reader.run() == State::Failed || reader.isCut());
            }
            bytes[place] = original;
        }
    }

    void bytesAfterTheEndAreIgnored()
    {
        const ThreeStates file(Base::File);
        const std::string text = file.run().recoverText();
        const std::string& bytes = file.run().bytes();
        QCOMPARE(file.run().recoverText(bytes + std::string(5000, '\0')), text);
        QCOMPARE(file.run().recoverText(bytes + bytes), text);
        RecoveryFileReader reader(bytes + "x");
        QCOMPARE(reader.run(), State::Done);
        QVERIFY(reader.isCut());
    }

    void entriesOfAnotherFileAreNotTaken()
    {
        const std::string other = ThreeStates(Base::Nothing).run().bytes();
        const ThreeStates file(Base::File);
        const std::string& bytes = file.run().bytes();
        for (std::size_t size = 0; size < std::min(bytes.size(), other.size()); ++size)
            QVERIFY(file.isSafe(bytes.substr(0, size) + other.substr(size)));
    }
};

QTEST_APPLESS_MAIN(TestRecoveryFileReader)
#include "tst_RecoveryFileReader.moc"
