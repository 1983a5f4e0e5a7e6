#include "app/fields/cells/CellCase.h"

#include "orvane/app/look/Look.h"

#include "meridane/scene/nodes/NxMaterial.h"

#include <QLocale>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

/// Numbers and components in the field table: typing, stepping, Tab.
class TestNumberCell : public CellCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { openGalleries(1); }
    void cleanup()
    {
        close();
        QLocale::setDefault(QLocale::c());
    }

    void aClickAndReturnWrite()
    {
        clickPart("sfFloat", 0);
        QVERIFY(line() != nullptr);
        QVERIFY(line()->hasFocus());
        type(line(), "2*3+1");
        key(line(), Qt::Key_Return);
        QCOMPARE(text("sfFloat"), std::string("7"));
        QVERIFY(editor() == nullptr);
        QVERIFY(view()->hasFocus());
        QCOMPARE(steps(), 1);
        undo();
        QCOMPARE(text("sfFloat"), std::string("0"));
    }

    void returnAndF2Edit_data()
    {
        QTest::addColumn<Qt::Key>("opening");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("F2") << Qt::Key_F2;
    }
    void returnAndF2Edit()
    {
        QFETCH(const Qt::Key, opening);
        click(row("sfInt32"));
        press(opening);
        QVERIFY(line() != nullptr);
        type(line(), "x+0x10");
        key(line(), Qt::Key_Return);
        QCOMPARE(text("sfInt32"), std::string("16"));
    }

    void escapeRestores()
    {
        clickPart("sfFloat", 0);
        type(line(), "5");
        key(line(), Qt::Key_Escape);
        QVERIFY(editor() == nullptr);
        QCOMPARE(text("sfFloat"), std::string("0"));
        QCOMPARE(steps(), 0);
    }

    void aComponentIsEditedWhereItIsClicked()
    {
        QVERIFY(field("sfVec3f").set("1 2 3"));
        clickPart("sfVec3f", 1);
        QCOMPARE(line()->text(), u"2"_s);
        type(line(), "3,5");
        key(line(), Qt::Key_Return);
        QCOMPARE(text("sfVec3f"), std::string("1 3.5 3"));
    }

    void tabGoesThroughComponentsAndFields()
    {
        clickPart("sfVec2f", 0);
        type(line(), "1.5");
        key(line(), Qt::Key_Tab);
        QVERIFY(line() != nullptr);
        QCOMPARE(editor()->part(), 1);
        type(line(), "2.5");
        key(line(), Qt::Key_Tab);
        QCOMPARE(text("sfVec2f"), std::string("1.5 2.5"));
        // The next field is one of whole numbers.
        QCOMPARE(view()->currentIndex().row(), row("sfVec2i32").row());
        QCOMPARE(editor()->part(), 0);
        type(line(), "7");
        key(line(), Qt::Key_Backtab);
        QCOMPARE(text("sfVec2i32"), std::string("7 0"));
        QCOMPARE(view()->currentIndex().row(), row("sfVec2f").row());
        QCOMPARE(editor()->part(), 1);
        key(line(), Qt::Key_Escape);
        QCOMPARE(steps(), 3);
    }

    void tabFromTheLastFieldEnds()
    {
        const int last = model()->rowCount(row("sfFloat").parent()) - 1;
        QVERIFY(last > 0);
        clickPart("sfVec4f", 3);
        key(line(), Qt::Key_Tab); // only lists follow
        QVERIFY(editor() == nullptr);
    }

    void arrowsStepAsOneStep()
    {
        QVERIFY(field("sfFloat").set("1"));
        const int before = steps();
        clickPart("sfFloat", 0);
        key(line(), Qt::Key_Up);
        QCOMPARE(text("sfFloat"), std::string("1.1"));
        key(line(), Qt::Key_Up);
        QCOMPARE(text("sfFloat"), std::string("1.2"));
        key(line(), Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(text("sfFloat"), std::string("2.2"));
        key(line(), Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(text("sfFloat"), std::string("2.19"));
        key(line(), Qt::Key_Return);
        QCOMPARE(steps(), before + 1);
        undo();
        QCOMPARE(text("sfFloat"), std::string("1"));
    }

    void escapeTakesStepsBack()
    {
        QVERIFY(field("sfDouble").set("0.1"));
        const int before = steps();
        clickPart("sfDouble", 0);
        for (int i = 0; i < 5; ++i)
            key(line(), Qt::Key_Up);
        QVERIFY(text("sfDouble") != "0.1");
        key(line(), Qt::Key_Escape);
        QCOMPARE(text("sfDouble"), std::string("0.1"));
        QCOMPARE(steps(), before);
        QVERIFY(!m_many->services().canRedo());
    }

    void stepsLeaveNoRounding()
    {
        clickPart("sfDouble", 0);
        for (int i = 0; i < 3; ++i)
            key(line(), Qt::Key_Up);
        QCOMPARE(text("sfDouble"), std::string("0.12"));
        QVERIFY(line()->text().size() < 6);
    }

    void stepsStayInTheRangeOfTheType()
    {
        QVERIFY(field("sfUShort").set("65530"));
        clickPart("sfUShort", 0);
        for (int i = 0; i < 3; ++i)
            key(line(), Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(text("sfUShort"), std::string("65535"));
        key(line(), Qt::Key_Return);
    }

    void theWheelStepsOnlyWithTheFocus()
    {
        view()->scrollTo(cell("sfFloat"));
        const QPointF place = part("sfFloat", 0).center();
        const auto turn = [](QWidget* widget, const QPointF& at) {
            QWheelEvent wheel(
                at, widget->mapToGlobal(at), {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(widget, &wheel);
            ManyNodes::finish();
        };
        turn(view()->viewport(), place);
        QCOMPARE(text("sfFloat"), std::string("0"));
        clickPart("sfFloat", 0);
        turn(line(), QPointF(2, 2));
        QCOMPARE(text("sfFloat"), std::string("0.1"));
        key(line(), Qt::Key_Return);
        QCOMPARE(steps(), 1);
    }

    void whatCanNotBeTakenStaysForMending_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("typed");
        QTest::newRow("division by zero") << QByteArray("sfFloat") << QByteArray("1/0");
        QTest::newRow("no number") << QByteArray("sfFloat") << QByteArray("abc");
        QTest::newRow("fraction") << QByteArray("sfInt32") << QByteArray("2.5");
        QTest::newRow("too large") << QByteArray("sfShort") << QByteArray("40000");
        QTest::newRow("negative") << QByteArray("sfUInt32") << QByteArray("-1");
    }
    void whatCanNotBeTakenStaysForMending()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, typed);
        clickPart(name.constData(), 0);
        type(line(), typed.constData());
        key(line(), Qt::Key_Return);
        QVERIFY(editor() != nullptr);
        QCOMPARE(line()->text(), QString::fromLatin1(typed));
        QVERIFY2(message().contains(QLatin1String(typed)), qPrintable(message()));
        QCOMPARE(text(name.constData()), std::string("0"));
        QCOMPARE(steps(), 0);
        type(line(), "12");
        key(line(), Qt::Key_Return);
        QCOMPARE(text(name.constData()), std::string("12"));
    }

    void numbersAreTheSameInAllLocales_data()
    {
        QTest::addColumn<QString>("locale");
        for (const char* const name : {"C", "de_DE", "fr_FR", "ar_EG"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void numbersAreTheSameInAllLocales()
    {
        QFETCH(const QString, locale);
        QLocale::setDefault(QLocale(locale));
        QVERIFY(field("sfDouble").set("1234567.25"));
        ManyNodes::finish();
        clickPart("sfDouble", 0);
        QCOMPARE(line()->text(), u"1234567.25"_s);
        for (const char* const typed : {"2.5", "2,5"}) {
            type(line(), typed);
            key(line(), Qt::Key_Return);
            QCOMPARE(text("sfDouble"), std::string("2.5"));
            clickPart("sfDouble", 0);
            QCOMPARE(line()->text(), u"2.5"_s);
        }
    }

    void theLineFollowsTheField()
    {
        clickPart("sfFloat", 0);
        QVERIFY(field("sfFloat").set("8"));
        ManyNodes::finish();
        QCOMPARE(line()->text(), u"8"_s);
        QTest::keyClicks(line(), u"9"_s);
        const QString typed = line()->text();
        QVERIFY(field("sfFloat").set("3"));
        ManyNodes::finish();
        QCOMPARE(line()->text(), typed);
    }

    void theShortestTextIsShown()
    {
        const float third = 1.0F / 3;
        gallery().sfFloat.setValue(third);
        ManyNodes::finish();
        clickPart("sfFloat", 0);
        QCOMPARE(line()->text().toFloat(), third);
        QVERIFY(line()->text().size() <= 11);
    }

    void infinitiesAreTaken()
    {
        clickPart("sfFloat", 0);
        type(line(), "-inf");
        key(line(), Qt::Key_Return);
        QCOMPARE(gallery().sfFloat.getValue(), -std::numeric_limits<float>::infinity());
        clickPart("sfFloat", 0);
        type(line(), "nan");
        key(line(), Qt::Key_Return);
        QVERIFY(std::isnan(gallery().sfFloat.getValue()));
    }

    void lettersHaveTheColoursOfTheAxes()
    {
        const QImage image = picture("sfVec3f");
        const QColor base = view()->palette().color(QPalette::Base);
        using orvane::look::Tint;
        for (const Tint tint : {Tint::AxisX, Tint::AxisY, Tint::AxisZ})
            QVERIFY(countOf(image, orvane::look::textColor(tint, base), 40) > 0);
    }

    void valuesOutOfRangeHaveAnotherColour()
    {
        close();
        open({new NxMaterial});
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        const QColor error
            = orvane::look::textColor(orvane::look::Tint::Error, view()->palette().color(QPalette::Base));
        QVERIFY(field("shininess").set("0.5"));
        ManyNodes::finish();
        const int usual = countOf(picture("shininess"), error);
        QVERIFY(field("shininess").set("-0.5"));
        ManyNodes::finish();
        QVERIFY(countOf(picture("shininess"), error) > usual);
    }

    void severalNodesShowMixedComponents()
    {
        openGalleries(3);
        QVERIFY(field("sfVec3f", 1).set("0 5 0"));
        ManyNodes::finish();
        clickPart("sfVec3f", 0);
        QCOMPARE(line()->text(), u"0"_s);
        key(line(), Qt::Key_Tab);
        QCOMPARE(line()->text(), QString());
        QVERIFY(!line()->placeholderText().isEmpty());
        type(line(), "x+1");
        key(line(), Qt::Key_Return);
        QCOMPARE(text("sfVec3f", 0), std::string("0 1 0"));
        QCOMPARE(text("sfVec3f", 1), std::string("0 6 0"));
        QCOMPARE(text("sfVec3f", 2), std::string("0 1 0"));
        const int after = steps();
        undo();
        QCOMPARE(text("sfVec3f", 1), std::string("0 5 0"));
        QCOMPARE(text("sfVec3f", 2), std::string("0 0 0"));
        QCOMPARE(steps(), after - 1);
    }

    void stepsOfSeveralNodesAreTheirOwn()
    {
        openGalleries(2);
        QVERIFY(field("sfInt32", 1).set("10"));
        const int before = steps();
        clickPart("sfInt32", 0);
        key(line(), Qt::Key_Up);
        key(line(), Qt::Key_Up);
        QCOMPARE(text("sfInt32", 0), std::string("2"));
        QCOMPARE(text("sfInt32", 1), std::string("12"));
        key(line(), Qt::Key_Escape);
        QCOMPARE(text("sfInt32", 0), std::string("0"));
        QCOMPARE(text("sfInt32", 1), std::string("10"));
        QCOMPARE(steps(), before);
    }

    void aFieldThatVanishesClosesItsEditor()
    {
        clickPart("sfFloat", 0);
        key(line(), Qt::Key_Up);
        QTest::keyClicks(line(), u"5"_s);
        m_panel->setNode(nullptr);
        destroyLeftovers();
        QVERIFY(editor() == nullptr);
        QVERIFY(view()->findChildren<CellEditor*>().isEmpty());
        QCOMPARE(steps(), 1); // the step before the text that was being typed
    }

    void undoWhileTheEditorIsOpenIsShown()
    {
        clickPart("sfFloat", 0);
        type(line(), "4");
        key(line(), Qt::Key_Return);
        clickPart("sfFloat", 0);
        QCOMPARE(line()->text(), u"4"_s);
        undo();
        QCOMPARE(line()->text(), u"0"_s);
    }

    void leavingWrites()
    {
        clickPart("sfFloat", 0);
        type(line(), "6");
        clickPart("sfInt32", 0);
        QCOMPARE(text("sfFloat"), std::string("6"));
        QVERIFY(line() != nullptr);
        QCOMPARE(line()->text(), u"0"_s);
    }

    void theLetterStaysInSight()
    {
        const QRect whole = part("sfVec3f", 1);
        clickPart("sfVec3f", 1);
        QVERIFY(editor()->geometry().left() > whole.left() + 3);
        QVERIFY(editor()->width() >= editor()->minimumWidth());
    }

    void aNumberThatIsTooLongDoesNotLookLikeAnother()
    {
        m_panel->resize(300, 800);
        const auto widthOf = [this](const QString& shown) { return view()->fontMetrics().horizontalAdvance(shown); };
        for (int width = 300; part("sfVec2f", 0).width() < widthOf(u"x  12345"_s) && width < 1000; width += 10)
            m_panel->resize(width, 800);
        QVERIFY(field("sfVec2f").set("1234567936 0")); // which has no shorter text as a float
        ManyNodes::finish();
        const QImage cut = picture("sfVec2f");
        QVERIFY(part("sfVec2f", 0).width() < widthOf(u"1234567936"_s));
        for (const char* const beginning : {"1 0", "12 0", "123 0", "1234 0"}) {
            QVERIFY(field("sfVec2f").set(beginning));
            ManyNodes::finish();
            QVERIFY(cut != picture("sfVec2f"));
        }
    }

    void editorsHaveNames()
    {
        clickPart("sfVec3f", 2);
        QCOMPARE(line()->accessibleName(), u"sfVec3f z"_s);
    }

private:
    NxFieldGallery& gallery() { return dynamic_cast<NxFieldGallery&>(*(*m_many->nodes())[0]); }
};

QTEST_MAIN(TestNumberCell)
#include "tst_NumberCell.moc"
