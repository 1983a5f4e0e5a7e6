#include "base/HandlerGuard.h"
#include "scene/FieldCatalogue.h"
#include "scene/NotificationCount.h"

#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/list/NxMFColorRGBA.h"
#include "meridane/scene/fields/list/NxMFFloat.h"
#include "meridane/scene/fields/list/NxMFInt32.h"
#include "meridane/scene/fields/list/NxMFMatrix.h"
#include "meridane/scene/fields/list/NxMFString.h"
#include "meridane/scene/text/TextReader.h"

#include <QScopeGuard>
#include <QTest>

#include <limits>

namespace {

constexpr int maxInt = std::numeric_limits<int>::max();

void addListRows()
{
    QTest::addColumn<const FieldKind*>("kind");
    for (const FieldKind& kind : fieldCatalogue()) {
        if (kind.type.isDerivedFrom(NxMField::getClassTypeId()))
            QTest::newRow(kind.type.getName().getString()) << &kind;
    }
}

std::string rowText(const NxMField& field, int row)
{
    VbString text;
    field.get1(row, text);
    return std::string(text.view());
}

std::vector<std::string> rowTexts(const NxMField& field)
{
    std::vector<std::string> texts;
    for (int row = 0; row < field.getNum(); ++row)
        texts.push_back(rowText(field, row));
    return texts;
}

// A field of some random rows.
class Rows {
public:
    explicit Rows(const FieldKind& kind, unsigned int seed = 1)
        : m_node(kind.makeNode())
        , field(dynamic_cast<NxMField&>(fieldOf(m_node)))
    {
        RandomValues random(seed);
        while (field.getNum() < 6)
            kind.setRandom(field, random);
    }

private:
    NxRef<NxFieldContainer> m_node;

public:
    NxMField& field;
};

} // namespace

// What all lists do alike, row by row.
class TestNxMField : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rowsGoThroughTheirText_data() { addListRows(); }

    void rowsGoThroughTheirText()
    {
        QFETCH(const FieldKind*, kind);
        Rows source(*kind, 1);
        Rows target(*kind, 2);
        const int rows = std::min(source.field.getNum(), target.field.getNum());
        NotificationCount notifications(target.field);
        for (int row = 0; row < rows; ++row) {
            VbString text;
            source.field.get1(row, text);
            QVERIFY2(target.field.set1(row, text), text.toUtf8());
            QCOMPARE(rowText(target.field, row), std::string(text.view()));
            QCOMPARE(notifications.take(), 1);
        }
    }

    void theListsTextIsTheRowsTexts_data() { addListRows(); }

    void theListsTextIsTheRowsTexts()
    {
        QFETCH(const FieldKind*, kind);
        const Rows rows(*kind);
        std::string expected = "[";
        for (const std::string& text : rowTexts(rows.field))
            expected += (expected.size() > 1 ? ", " : "") + text;
        VbString text;
        rows.field.get(text);
        QCOMPARE(std::string(text.view()), expected + "]");
    }

    void missingRowsAreRefused_data() { addListRows(); }

    void missingRowsAreRefused()
    {
        QFETCH(const FieldKind*, kind);
        Rows rows(*kind);
        const std::vector<std::string> before = rowTexts(rows.field);
        NotificationCount notifications(rows.field);
        for (const int row : {-1, rows.field.getNum(), maxInt, std::numeric_limits<int>::min()}) {
            QVERIFY(!rows.field.set1(row, before.front().c_str()));
            VbString text("kept?");
            rows.field.get1(row, text);
            QVERIFY(text.isEmpty());
        }
        QCOMPARE(rowTexts(rows.field), before);
        QCOMPARE(notifications.take(), 0);
    }

    void aRowThatDoesNotParseStays_data() { addListRows(); }

    void aRowThatDoesNotParseStays()
    {
        QFETCH(const FieldKind*, kind);
        Rows rows(*kind);
        const std::vector<std::string> before = rowTexts(rows.field);
        NotificationCount notifications(rows.field);
        for (const std::string& text : {std::string("\"open"), before.front() + " \"", "\"a\" " + before.front()})
            QVERIFY2(!rows.field.set1(0, text.c_str()), text.c_str());
        QCOMPARE(rowTexts(rows.field), before);
        QCOMPARE(notifications.take(), 0);
    }

    void deletingTakesRowsOut_data() { addListRows(); }

    void deletingTakesRowsOut()
    {
        QFETCH(const FieldKind*, kind);
        Rows rows(*kind);
        std::vector<std::string> expected = rowTexts(rows.field);
        NotificationCount notifications(rows.field);
        rows.field.deleteValues(2, 3);
        expected.erase(expected.begin() + 2, expected.begin() + 5);
        QCOMPARE(rowTexts(rows.field), expected);
        QCOMPARE(notifications.take(), 1);
        rows.field.deleteValues(1, -1);
        expected.resize(1);
        QCOMPARE(rowTexts(rows.field), expected);
        QCOMPARE(notifications.take(), 1);
        rows.field.deleteValues(0, 1);
        QCOMPARE(rows.field.getNum(), 0);
    }

    void deletingLeavesOutWhatIsNotThere_data() { addListRows(); }

    void deletingLeavesOutWhatIsNotThere()
    {
        QFETCH(const FieldKind*, kind);
        Rows rows(*kind);
        std::vector<std::string> expected = rowTexts(rows.field);
        NotificationCount notifications(rows.field);
        rows.field.deleteValues(2, 0);
        rows.field.deleteValues(2, -2);
        rows.field.deleteValues(rows.field.getNum(), 5);
        rows.field.deleteValues(maxInt, maxInt);
        rows.field.deleteValues(-3, 3);
        QCOMPARE(rowTexts(rows.field), expected);
        QCOMPARE(notifications.take(), 0);

        rows.field.deleteValues(-1, 2);
        expected.erase(expected.begin());
        QCOMPARE(rowTexts(rows.field), expected);
        rows.field.deleteValues(static_cast<int>(expected.size()) - 1, maxInt);
        expected.pop_back();
        QCOMPARE(rowTexts(rows.field), expected);
        rows.field.deleteValues(-5, -1);
        QCOMPARE(rows.field.getNum(), 0);
    }

    void insertingOpensNewRows_data() { addListRows(); }

    void insertingOpensNewRows()
    {
        QFETCH(const FieldKind*, kind);
        Rows rows(*kind);
        std::vector<std::string> expected = rowTexts(rows.field);
        const auto fresh = kind->makeNode();
        auto& freshField = dynamic_cast<NxMField&>(fieldOf(fresh));
        freshField.insertSpace(0, 1);
        QCOMPARE(freshField.getNum(), 1);

        NotificationCount notifications(rows.field);
        rows.field.insertSpace(1, 2);
        expected.insert(expected.begin() + 1, 2, rowText(freshField, 0));
        QCOMPARE(rowTexts(rows.field), expected);
        QCOMPARE(notifications.take(), 1);
    }

    void insertingHoldsTheStartToTheList_data() { addListRows(); }

    void insertingHoldsTheStartToTheList()
    {
        QFETCH(const FieldKind*, kind);
        Rows rows(*kind);
        const std::vector<std::string> before = rowTexts(rows.field);
        NotificationCount notifications(rows.field);
        rows.field.insertSpace(2, 0);
        rows.field.insertSpace(2, -1);
        QCOMPARE(rowTexts(rows.field), before);
        QCOMPARE(notifications.take(), 0);

        rows.field.insertSpace(maxInt, 1);
        rows.field.insertSpace(-7, 1);
        const std::vector<std::string> after = rowTexts(rows.field);
        QCOMPARE(after.size(), before.size() + 2);
        QVERIFY(std::equal(before.begin(), before.end(), after.begin() + 1));
    }

    void deletedRowsComeBackThroughTheirText_data() { addListRows(); }

    void deletedRowsComeBackThroughTheirText()
    {
        QFETCH(const FieldKind*, kind);
        Rows rows(*kind);
        const std::vector<std::string> before = rowTexts(rows.field);
        rows.field.deleteValues(2, 3);
        rows.field.insertSpace(2, 3);
        for (int row = 2; row < 5; ++row)
            QVERIFY(rows.field.set1(row, VbString(std::string_view(before[static_cast<std::size_t>(row)]))));
        QCOMPARE(rowTexts(rows.field), before);
    }

    void moreRowsThanCanBeCountedAreAMemoryError_data() { addListRows(); }

    void moreRowsThanCanBeCountedAreAMemoryError()
    {
        QFETCH(const FieldKind*, kind);
        Rows rows(*kind);
        const std::vector<std::string> before = rowTexts(rows.field);
        TextRecorder errors;
        const HandlerGuard<NxMemoryError> guard(&TextRecorder::record, &errors);
        NotificationCount notifications(rows.field);
        rows.field.insertSpace(1, maxInt);
        QCOMPARE(errors.texts().size(), std::size_t{1});
        QCOMPARE(rowTexts(rows.field), before);
        QCOMPARE(notifications.take(), 0);
    }

    void rowsThatDoNotFitInMemoryAreAMemoryError()
    {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        QSKIP("the sanitizer ends the program when an allocation fails");
#else
        NxMFMatrix field(nullptr, "field", {VbMatrix()});
        TextRecorder errors;
        const HandlerGuard<NxMemoryError> guard(&TextRecorder::record, &errors);
        // Beyond what the system promises: 128 GiB.
        field.insertSpace(1, maxInt - 1);
        QCOMPARE(errors.texts().size(), std::size_t{1});
        QCOMPARE(field.getNum(), 1);
#endif
    }

    void noListHasMoreRowsThanCanBeCounted()
    {
        const auto usualMaximum = qScopeGuard([] { NxMField::setMaximumNum(maxInt); });
        QCOMPARE(NxMField::getMaximumNum(), maxInt);
        const std::vector<float> four{1, 2, 3, 4};
        const NxMFFloat large(nullptr, "large", four);
        NxMField::setMaximumNum(3);
        TextRecorder errors;
        const HandlerGuard<NxMemoryError> guard(&TextRecorder::record, &errors);
        NxMFFloat field(nullptr, "field", {7, 8});
        NotificationCount notifications(field);

        QVERIFY(!field.setValues(four));
        QVERIFY(!field.setValues(std::vector(four)));
        QVERIFY(!field.copyFrom(large));
        field.insertSpace(0, 2);
        QCOMPARE(errors.texts().size(), std::size_t{4});
        QVERIFY(!field.set("[1, 2, 3, 4]"));
        QCOMPARE(rowTexts(field), (std::vector<std::string>{"7", "8"}));
        QCOMPARE(notifications.take(), 0);

        meridane::TextReader reader("[1, 2, 3, 4]");
        NxMFFloat sliced(nullptr, "sliced");
        NxField::Progress progress = sliced.readText(reader, true, 1);
        while (progress == NxField::Progress::More)
            progress = sliced.readText(reader, false, 1);
        QCOMPARE(progress, NxField::Progress::Failed);
        QCOMPARE(reader.expected(), std::string("the end of a list, which has at most 3 values"));

        QVERIFY(field.set("[1, 2, 3]"));
        QCOMPARE(field.getNum(), 3);
    }

    void valueChangedNotifies_data()
    {
        addListRows();
    }

    void valueChangedNotifies()
    {
        QFETCH(const FieldKind*, kind);
        Rows rows(*kind);
        NotificationCount notifications(rows.field);
        rows.field.valueChanged(0, rows.field.getNum(), 1);
        QCOMPARE(notifications.take(), 1);
        rows.field.valueChanged(3, 0, 0);
        QCOMPARE(notifications.take(), 1);
    }

    void twoQuotesEmptyATextAndNothingElse_data()
    {
        addListRows();
    }

    void twoQuotesEmptyATextAndNothingElse()
    {
        QFETCH(const FieldKind*, kind);
        const bool isText = kind->type == NxType::fromName("MFString") || kind->type == NxType::fromName("MFName");
        Rows rows(*kind);
        const std::string before = rowText(rows.field, 3);
        QCOMPARE(rows.field.set1(3, "\"\""), isText);
        QCOMPARE(rowText(rows.field, 3), isText ? std::string("\"\"") : before);
    }

    void aRowOfTextTakesPlainWords()
    {
        NxMFString field(nullptr, "field", {"a", "b"});
        QVERIFY(field.set1(1, "two words, [one] comma"));
        QVERIFY(field[1] == VbString("two words, [one] comma"));
        QVERIFY(field.set1(1, ""));
        QVERIFY(field[1].isEmpty());
        QVERIFY(field.set1Value(0, "typed"));
        QVERIFY(field[0] == VbString("typed"));
    }

    void newColoursAreOpaque()
    {
        NxMFColorRGBA field(nullptr, "field");
        field.insertSpace(0, 1);
        QVERIFY(field[0] == VbVec4f(0, 0, 0, 1));
        NxMFVec4f& vectors = field;
        vectors.insertSpace(0, 1);
        QVERIFY(vectors[0] == VbVec4f(0, 0, 0, 1));
    }

    void bulkValuesAreContiguous()
    {
        NxMFFloat field(nullptr, "field");
        NotificationCount notifications(field);
        std::vector<float> values{1, 2, 3};
        field.setValues(std::span<const float>(values));
        QCOMPARE(notifications.take(), 1);
        QCOMPARE(field.getValues().size(), std::size_t{3});
        QCOMPARE(&field.getValues()[2], field.getValues().data() + 2);
        // Part of the list itself may be handed in.
        field.setValues(field.getValues().subspan(1));
        QCOMPARE(field.getNum(), 2);
        QCOMPARE(field[0], 2.0F);

        const float* const data = values.data();
        field.setValues(std::move(values));
        QVERIFY(field.getValues().data() == data);
        QCOMPARE(notifications.take(), 1);
        QVERIFY(field.valueBytes() >= 3 * sizeof(float));

        const std::vector<float> taken = field.takeValues();
        QVERIFY(taken.data() == data);
        QCOMPARE(taken.size(), std::size_t{3});
        QCOMPARE(field.getNum(), 0);
        QCOMPARE(notifications.take(), 1);
    }

    void typedRowsOutOfRangeAreRefused()
    {
        NxMFInt32 field(nullptr, "field", {1, 2});
        NotificationCount notifications(field);
        QVERIFY(!field.set1Value(2, 7));
        QVERIFY(!field.set1Value(-1, 7));
        QCOMPARE(notifications.take(), 0);
        QVERIFY(field.set1Value(1, 7));
        QCOMPARE(field[1], 7);
        QCOMPARE(notifications.take(), 1);
    }
};

QTEST_APPLESS_MAIN(TestNxMField)
#include "tst_NxMField.moc"
