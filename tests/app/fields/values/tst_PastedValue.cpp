#include "scene/FieldCatalogue.h"

#include "orvane/app/fields/values/PastedValue.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Values as people and other programs write them.
class TestPastedValue : public QObject {
    Q_OBJECT

private:
    static std::string textOf(const NxField& field)
    {
        VbString text;
        field.get(text);
        return std::string(text.view());
    }

private Q_SLOTS:
    void aValueOfEachClassIsTakenFromItsText_data() { addFieldKindRows(); }
    void aValueOfEachClassIsTakenFromItsText()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        const NxRef<NxFieldContainer> other = kind->makeNode();
        NxField& field = fieldOf(node);
        RandomValues random(7);
        for (int i = 0; i < 50; ++i) {
            kind->setRandom(field, random);
            const std::string text = textOf(field);
            if (kind->type.getName() == VbName("SFString") || kind->type.getName() == VbName("SFFilePathString"))
                continue; // a text in quotes is a text with quotes: see below
            const auto pasted = orvane::pastedValue(fieldOf(other), QString::fromStdString(text));
            QVERIFY2(static_cast<bool>(pasted), qPrintable(pasted.error()));
            QVERIFY(fieldOf(other).set(VbString(pasted.value())));
            QVERIFY(fieldOf(other).isSame(field));
        }
    }

    void manyNotationsAreRead_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* field, const QString& pasted, const char* text) {
            QTest::newRow(qPrintable(QLatin1String(field) + u' ' + pasted.left(30)))
                << QString::fromLatin1(field) << pasted << QString::fromLatin1(text);
        };
        for (const char* const vector :
            {"1, 2, 3", "(1; 2; 3)", "[1 2 3]", "{1,2,3}", "Vec3(1, 2, 3)", "1\t2\t3", "1\n2\n3", " 1 2  3 ",
                "1,0 2,0 3,0", "1,0; 2,0; 3,0", "1,0, 2,0, 3,0", "2-1, 2, 6/2", "1, 2, 3,", "<1, 2, 3>"})
            row("sfVec3f", QString::fromLatin1(vector), "1 2 3");
        row("sfFloat", u"2,5"_s, "2.5");
        row("sfFloat", u"50%"_s, "0.5");
        row("sfFloat", u"(1+2)*3"_s, "9");
        row("sfDouble", u"-inf"_s, "-inf");
        row("sfInt32", u"2*3+1"_s, "7");
        row("sfBool", u"Yes"_s, "true");
        row("sfBool", u"off"_s, "false");
        row("sfBool", u"1"_s, "true");
        row("sfEnum", u"medium"_s, "MEDIUM");
        row("sfBitMask", u"visible, Pickable"_s, "VISIBLE | PICKABLE");
        row("sfColor", u"#ff0000"_s, "1 0 0");
        row("sfColor", u"#0f0"_s, "0 1 0");
        row("sfColor", u"rgb(255, 0, 255)"_s, "1 0 1");
        row("sfColor", u"Blue"_s, "0 0 1");
        row("sfColor", u"#ff000033"_s, "1 0 0");
        row("sfColorRGBA", u"#ff000033"_s, "1 0 0 0.2");
        row("sfColorRGBA", u"#ff0000"_s, "1 0 0 1");
        row("sfColorRGBA", u"rgba(255, 0, 0, 0.5)"_s, "1 0 0 0.5");
        row("sfRotation", u"0, 0, 1, 180deg"_s, "0 0 1 3.1415927");
        row("sfString", u"plain \"words\"\nand lines"_s, "\"plain \\\"words\\\"\\nand lines\"");
        row("mfVec3f", u"1\t2\t3\n4\t5\t6\n"_s, "[1 2 3, 4 5 6]");
        row("mfVec3f", u"[(1, 2, 3), (4, 5, 6)]"_s, "[1 2 3, 4 5 6]");
        row("mfVec3f", u"1,5; 2; 3\r\n4; 5; 6"_s, "[1.5 2 3, 4 5 6]");
        row("mfVec3f", u"1, 2, 3, 4, 5, 6"_s, "[1 2 3, 4 5 6]");
        row("mfFloat", u"1\n2,5\n3"_s, "[1, 2.5, 3]");
        row("mfFloat", u"1; 2; 3"_s, "[1, 2, 3]");
        row("mfBool", u"yes\nno"_s, "[true, false]");
        row("mfColor", u"#ff0000\n#00ff00"_s, "[1 0 0, 0 1 0]");
    }
    void manyNotationsAreRead()
    {
        QFETCH(const QString, field);
        QFETCH(const QString, pasted);
        QFETCH(const QString, text);
        const NxRef<NxFieldContainer> node(new NxFieldGallery);
        NxField* const target = node->getField(VbName(field.toLatin1().constData()));
        QVERIFY(target != nullptr);
        const std::string before = textOf(*target);
        const auto result = orvane::pastedValue(*target, pasted);
        QVERIFY2(static_cast<bool>(result), qPrintable(result.error()));
        QCOMPARE(textOf(*target), before);
        QVERIFY(target->set(VbString(result.value())));
        QCOMPARE(QString::fromStdString(textOf(*target)), text);
    }

    void whatCannotBeTakenIsNamed_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("reason");
        QTest::newRow("too few") << u"sfVec3f"_s << u"1, 2"_s << u"3 numbers, and here are 2"_s;
        QTest::newRow("a word") << u"sfVec3f"_s << u"1, two, 3"_s << u"\"two\""_s;
        QTest::newRow("not whole") << u"sfInt32"_s << u"2.5"_s << u"whole"_s;
        QTest::newRow("too large") << u"sfShort"_s << u"70000"_s << u"32767"_s;
        QTest::newRow("ragged") << u"mfVec3f"_s << u"1\t2\t3\n4\t5\n6\t7\t8"_s << u"Row 2: A value has 3 numbers"_s;
        QTest::newRow("a word in a row") << u"mfFloat"_s << u"1\n2\nthree"_s << u"Row 3: "_s;
        QTest::newRow("no choice") << u"sfEnum"_s << u"best"_s << u"LOW"_s;
        QTest::newRow("neither") << u"sfBool"_s << u"perhaps"_s << u"neither yes nor no"_s;
        QTest::newRow("html") << u"sfVec3f"_s << u"<b>1</b>"_s << u"sfVec3f"_s;
        QTest::newRow("nothing") << u"sfFloat"_s << QString() << u"sfFloat"_s;
    }
    void whatCannotBeTakenIsNamed()
    {
        QFETCH(const QString, field);
        QFETCH(const QString, pasted);
        QFETCH(const QString, reason);
        const NxRef<NxFieldContainer> node(new NxFieldGallery);
        NxField* const target = node->getField(VbName(field.toLatin1().constData()));
        const std::string before = textOf(*target);
        const auto result = orvane::pastedValue(*target, pasted);
        QVERIFY(!result);
        QVERIFY2(result.error().contains(reason), qPrintable(result.error()));
        QVERIFY(result.error().contains(field));
        QCOMPARE(textOf(*target), before);
    }

    void tenMegabytesOfTextAreTakenWhole()
    {
        const NxRef<NxFieldContainer> node(new NxFieldGallery);
        NxField* const target = node->getField("sfString");
        const QString text = QStringLiteral("0123456789").repeated(1'000'000);
        const auto result = orvane::pastedValue(*target, text);
        QVERIFY(static_cast<bool>(result) && target->set(VbString(result.value())));
        QCOMPARE(textOf(*target).size(), std::size_t{10'000'002});
    }

    void aMillionRowsAreRead()
    {
        const NxRef<NxFieldContainer> node(new NxFieldGallery);
        NxField* const target = node->getField("mfVec3f");
        const auto result = orvane::pastedValue(*target, QStringLiteral("1\t2\t3.5\n").repeated(1'000'000));
        QVERIFY(static_cast<bool>(result) && target->set(VbString(result.value())));
        QCOMPARE(dynamic_cast<NxMField*>(target)->getNum(), 1'000'000);
    }
};

QTEST_GUILESS_MAIN(TestPastedValue)
#include "tst_PastedValue.moc"
