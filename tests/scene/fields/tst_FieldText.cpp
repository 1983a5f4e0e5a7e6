#include "scene/FieldCatalogue.h"
#include "scene/NotificationCount.h"
#include "scene/fields/TextOf.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/text/TextReader.h"

#include <QTest>

#include <limits>

namespace {

constexpr int rounds = 200;

} // namespace

// The text form of every field class: what is written reads back, what doesn't parse changes nothing.
class TestFieldText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void randomValuesSurviveTheirText_data() { addFieldKindRows(); }

    void randomValuesSurviveTheirText()
    {
        QFETCH(const FieldKind*, kind);
        RandomValues random(1);
        const auto source = kind->makeNode();
        const auto copy = kind->makeNode();
        for (int i = 0; i < rounds; ++i) {
            kind->setRandom(fieldOf(source), random);
            VbString text;
            fieldOf(source).get(text);
            QVERIFY2(fieldOf(copy).set(text), text.toUtf8());
            QVERIFY2(fieldOf(copy).isSame(fieldOf(source)), text.toUtf8());
            QCOMPARE(textOf(fieldOf(copy)), std::string(text.view()));
        }
    }

    void slicedWritingGivesTheSameText_data() { addFieldKindRows(); }

    void slicedWritingGivesTheSameText()
    {
        QFETCH(const FieldKind*, kind);
        RandomValues random(2);
        const auto node = kind->makeNode();
        for (int i = 0; i < rounds; ++i) {
            kind->setRandom(fieldOf(node), random);
            std::string text;
            std::size_t position = 0;
            while (fieldOf(node).writeText(text, position, 1 + random.below(3))) { }
            QCOMPARE(text, textOf(fieldOf(node)));
        }
    }

    void slicedReadingStopsBehindTheValue_data() { addFieldKindRows(); }

    void slicedReadingStopsBehindTheValue()
    {
        QFETCH(const FieldKind*, kind);
        RandomValues random(3);
        const auto source = kind->makeNode();
        const auto copy = kind->makeNode();
        for (int i = 0; i < rounds; ++i) {
            kind->setRandom(fieldOf(source), random);
            const std::string value = textOf(fieldOf(source));
            const std::string text = " # comment\n#another\r\n" + value + "\nnext = 1";
            meridane::TextReader reader(text, meridane::TextReader::Blanks::File);
            NxField::Progress progress = fieldOf(copy).readText(reader, true, 1 + random.below(3));
            while (progress == NxField::Progress::More)
                progress = fieldOf(copy).readText(reader, false, 1 + random.below(3));
            QCOMPARE(progress, NxField::Progress::Done);
            QVERIFY2(fieldOf(copy).isSame(fieldOf(source)), value.c_str());
            reader.skipBlanks();
            QVERIFY(reader.rest() == "next = 1");
        }
    }

    void slicedReadingNotifiesNobody_data() { addFieldKindRows(); }

    void slicedReadingNotifiesNobody()
    {
        QFETCH(const FieldKind*, kind);
        RandomValues random(4);
        const auto source = kind->makeNode();
        kind->setRandom(fieldOf(source), random);
        const std::string text = textOf(fieldOf(source));
        const auto copy = kind->makeNode();
        NotificationCount notifications(fieldOf(copy));
        meridane::TextReader reader(text);
        QCOMPARE(
            fieldOf(copy).readText(reader, true, std::numeric_limits<std::size_t>::max()), NxField::Progress::Done);
        QCOMPARE(notifications.take(), 0);
    }

    void acceptedTextsComeBackInTheirOwnForm_data() { addFieldKindRows(); }

    void acceptedTextsComeBackInTheirOwnForm()
    {
        QFETCH(const FieldKind*, kind);
        QVERIFY(!kind->accepted.empty());
        const auto node = kind->makeNode();
        NotificationCount notifications(fieldOf(node));
        for (const auto& [text, canonical] : kind->accepted) {
            QVERIFY2(fieldOf(node).set(text.c_str()), text.c_str());
            QCOMPARE(textOf(fieldOf(node)), canonical);
            QCOMPARE(notifications.take(), 1);
        }
    }

    void refusedTextsLeaveTheFieldUntouched_data() { addFieldKindRows(); }

    void refusedTextsLeaveTheFieldUntouched()
    {
        QFETCH(const FieldKind*, kind);
        QVERIFY(!kind->refused.empty());
        RandomValues random(5);
        const auto node = kind->makeNode();
        const auto copy = kind->makeNode();
        kind->setRandom(fieldOf(node), random);
        QVERIFY(fieldOf(copy).copyFrom(fieldOf(node)));
        NotificationCount notifications(fieldOf(node));
        for (const std::string& text : kind->refused) {
            QVERIFY2(!fieldOf(node).set(text.c_str()), text.c_str());
            QVERIFY2(fieldOf(node).isSame(fieldOf(copy)), text.c_str());
            QCOMPARE(notifications.take(), 0);
        }
    }

    void refusalsTellWhatWasExpected_data() { addFieldKindRows(); }

    void refusalsTellWhatWasExpected()
    {
        QFETCH(const FieldKind*, kind);
        for (const std::string& text : kind->refused) {
            const auto node = kind->makeNode();
            meridane::TextReader reader(text);
            NxField::Progress progress = fieldOf(node).readText(reader, true, 100);
            if (progress == NxField::Progress::Done)
                continue; // refused for what follows the value, or for a reason of whole texts
            QCOMPARE(progress, NxField::Progress::Failed);
            QVERIFY2(!reader.expected().empty(), text.c_str());
            QVERIFY2(reader.failurePosition() <= text.size(), text.c_str());
        }
    }

    void damagedTextsAreTakenWholeOrNotAtAll_data() { addFieldKindRows(); }

    void damagedTextsAreTakenWholeOrNotAtAll()
    {
        QFETCH(const FieldKind*, kind);
        RandomValues random(6);
        const auto source = kind->makeNode();
        const auto victim = kind->makeNode();
        const auto copy = kind->makeNode();
        for (int i = 0; i < rounds; ++i) {
            kind->setRandom(fieldOf(source), random);
            std::string text = textOf(fieldOf(source));
            text.resize(random.below(text.size()));
            for (std::size_t count = text.empty() ? 0 : random.below(3); count > 0; --count)
                text[random.below(text.size())] = static_cast<char>(random.below(256));

            QVERIFY(fieldOf(copy).copyFrom(fieldOf(victim)));
            if (!fieldOf(victim).set(VbString(std::string_view(text)))) {
                QVERIFY2(fieldOf(victim).isSame(fieldOf(copy)), text.c_str());
                continue;
            }
            // Taken: then its own form must read back as well.
            QVERIFY2(fieldOf(copy).set(textOf(fieldOf(victim)).c_str()) || text.find('\0') != std::string::npos,
                text.c_str());
        }
    }

    void deepBracketsAreRefused_data() { addFieldKindRows(); }

    void deepBracketsAreRefused()
    {
        QFETCH(const FieldKind*, kind);
        if (fieldOf(kind->makeNode()).isOfType(NxType::fromName("SFString"))
            || fieldOf(kind->makeNode()).isOfType(NxType::fromName("SFName")))
            return; // takes any text that has no quotes
        const auto node = kind->makeNode();
        QVERIFY(!fieldOf(node).set(std::string(1000000, '[').c_str()));
        QVERIFY(!fieldOf(node).set(("[" + std::string(1000000, ' ')).c_str()));
    }
};

QTEST_APPLESS_MAIN(TestFieldText)
#include "tst_FieldText.moc"
