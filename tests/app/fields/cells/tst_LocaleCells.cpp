#include "app/fields/cells/CellCase.h"

#include "orvane/app/fields/popups/MatrixPopup.h"

#include "meridane/gl/geometry/MatrixParts.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/single/NxSFMatrix.h"
#include "meridane/scene/fields/single/NxSFRotation.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;
using meridane::FieldComponents;

/// Numbers in all kinds of cells on the desktops of several countries: what is typed, what is written, what is shown.
class TestLocaleCells : public CellCase {
    Q_OBJECT

private:
    /// The number of parts in front of that of the first component, such as a swatch.
    [[nodiscard]] int partsBefore(const char* name)
    {
        const NxField& shown = field(name);
        const int parts = orvane::cellOf(shown).parts(shown, delegate().services());
        for (int number = 0; number < parts; ++number) {
            if (orvane::cellOf(shown).scrubbedComponent(shown, number, delegate().services()) == 0)
                return number;
        }
        return 0;
    }
    void write(const char* name, int number, const char* typed)
    {
        clickPart(name, number);
        QVERIFY2(line() != nullptr, name);
        type(line(), typed);
        key(line(), Qt::Key_Return);
        QVERIFY2(editor() == nullptr, qPrintable(message()));
    }

private Q_SLOTS:
    void cleanup()
    {
        close();
        QLocale::setDefault(QLocale::c());
    }

    void numbersAreTheSameEverywhere_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QByteArray>("name");
        for (const char* const locale : {"C", "de_DE", "fr_FR", "ar_EG"}) {
            for (const char* const name : {"sfFloat", "sfDouble", "sfTime", "sfShort", "sfUShort", "sfInt32",
                     "sfUInt32", "sfVec2f", "sfVec3f", "sfVec4f", "sfVec2s", "sfVec3s", "sfVec2i32", "sfBox2f",
                     "sfBox3s", "sfPlane", "sfColor", "sfColorRGBA", "sfRotation"})
                QTest::addRow("%s %s", locale, name) << QString::fromLatin1(locale) << QByteArray(name);
        }
    }

    void numbersAreTheSameEverywhere()
    {
        QFETCH(QString, locale);
        QFETCH(QByteArray, name);
        QLocale::setDefault(QLocale(locale));
        openGalleries(1);
        const FieldComponents& components = *FieldComponents::of(field(name.constData()));
        const bool isWhole = components.isWhole();
        const int before = partsBefore(name.constData());
        const int stepsBefore = steps();
        // The normal of a plane gets the length 1.
        const int first = name == "sfPlane" ? 3 : 0;
        for (int component = first; component < components.count(); ++component) {
            const double number = component + (isWhole ? 2 : 2.5);
            const bool hasComma = component % 2 == 0;
            QByteArray typed = QByteArray::number(number, 'f', isWhole ? 0 : 1);
            if (hasComma)
                typed.replace('.', ',');
            write(name.constData(), before + component, typed.constData());
            QCOMPARE(components.get(field(name.constData()), 0, component), number);
            // Shown with the signs and digits in which the file has them.
            const QString shown = cell(name.constData()).data().toString();
            const QString digits = QString::number(number, 'g', 6);
            QVERIFY2(shown.split(QRegularExpression(u"[ ;]"_s)).contains(digits), qPrintable(shown));
        }
        QCOMPARE(steps(), stepsBefore + components.count() - first);
    }

    void whatHasSeveralMeaningsIsRefused_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QByteArray>("typed");
        for (const char* const locale : {"C", "de_DE", "fr_FR", "ar_EG"}) {
            for (const char* const typed : {"1,234.5", "1.234,5", "1 234"})
                QTest::addRow("%s %s", locale, typed) << QString::fromLatin1(locale) << QByteArray(typed);
        }
    }

    void whatHasSeveralMeaningsIsRefused()
    {
        QFETCH(QString, locale);
        QFETCH(QByteArray, typed);
        QLocale::setDefault(QLocale(locale));
        openGalleries(1);
        clickPart("sfFloat", 0);
        type(line(), typed.constData());
        key(line(), Qt::Key_Return);
        QVERIFY2(message().contains(u"Signs between thousands can't be read"_s), qPrintable(message()));
        QCOMPARE(line()->text(), QString::fromUtf8(typed));
        QCOMPARE(text("sfFloat"), std::string("0"));
        key(line(), Qt::Key_Escape);
    }

    void eulerDegreesAreTheSameEverywhere_data()
    {
        QTest::addColumn<QString>("locale");
        for (const char* const locale : {"C", "de_DE", "fr_FR", "ar_EG"})
            QTest::newRow(locale) << QString::fromLatin1(locale);
    }

    void eulerDegreesAreTheSameEverywhere()
    {
        QFETCH(QString, locale);
        QLocale::setDefault(QLocale(locale));
        openGalleries(1);
        delegate().services().setEulerShown(true);
        write("sfRotation", 0, "22,5");
        const auto& rotation = dynamic_cast<const NxSFRotation&>(field("sfRotation"));
        QVERIFY(std::abs(meridane::toEuler(rotation.getValue())[0] - 22.5) < 1e-3);
        write("sfRotation", 0, "x+22.5");
        QVERIFY(std::abs(meridane::toEuler(rotation.getValue())[0] - 45) < 1e-3);
    }

    void theGridOfAMatrixIsTheSameEverywhere_data() { eulerDegreesAreTheSameEverywhere_data(); }

    void theGridOfAMatrixIsTheSameEverywhere()
    {
        QFETCH(QString, locale);
        QLocale::setDefault(QLocale(locale));
        openGalleries(1);
        auto* const grid = openPopup<MatrixPopup>("sfMatrix");
        QVERIFY(grid != nullptr);
        const auto& matrix = dynamic_cast<const NxSFMatrix&>(field("sfMatrix"));
        const auto enter = [this, grid](const QString& element, const char* typed) {
            NumberLine* const line = numberLine(grid, element);
            type(line, typed);
            key(line, Qt::Key_Tab);
            return line->text();
        };
        QCOMPARE(enter(u"Row 3, column 0"_s, "2,5"), u"2.5"_s);
        QCOMPARE(matrix.getValue()[3][0], 2.5F);
        QCOMPARE(enter(u"Row 3, column 1"_s, "-1234567"), u"-1234567"_s);
        QCOMPARE(matrix.getValue()[3][1], -1234567.0F);
        QCOMPARE(enter(u"Translation z"_s, "1,5*3"), u"4.5"_s);
        QCOMPARE(matrix.getValue()[3][2], 4.5F);
        static_cast<void>(enter(u"Rotation ° z"_s, "22,5"));
        QVERIFY(std::abs(matrix.getValue()[0][1] - std::sin(0.3926991F)) < 1e-5F);
        // Thousands are refused, and the text stays for mending.
        NumberLine* const line = numberLine(grid, u"Row 3, column 0"_s);
        type(line, "1.234,5");
        key(line, Qt::Key_Return);
        QCOMPARE(line->text(), u"1.234,5"_s);
        QCOMPARE(matrix.getValue()[3][0], 2.5F);
    }
};

QTEST_MAIN(TestLocaleCells)
#include "tst_LocaleCells.moc"
