#include "FieldEditors/DvRealSlider.h"
#include "plugin/FieldEditors/SFWidgets/NumericEditorRun.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxMaterial.h"

#include <QDoubleValidator>

// Nodes of an application, which derive from the nodes that have a range of their own.
class AppComplexity : public NxComplexity {
    NX_NODE(AppComplexity)

public:
    NxSFFloat amount{this, "amount"};
    NxSFDouble fineAmount{this, "fineAmount"};
};

class AppMaterial : public NxMaterial {
    NX_NODE(AppMaterial)

public:
    NxSFFloat amount{this, "amount"};
    NxSFDouble fineAmount{this, "fineAmount"};
};

class AppLight : public NxDirectionalLight {
    NX_NODE(AppLight)

public:
    NxSFFloat amount{this, "amount"};
    NxSFDouble fineAmount{this, "fineAmount"};
};

NX_NODE_SOURCE(AppComplexity, NxComplexity, "AppComplexity")
NX_NODE_SOURCE(AppMaterial, NxMaterial, "AppMaterial")
NX_NODE_SOURCE(AppLight, NxDirectionalLight, "AppLight")

/// What the editors of float and double add to what all numeric editors do.
class TestRealFieldEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_complexity = new AppComplexity;
        m_material = new AppMaterial;
        m_light = new AppLight;
    }

    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void rangeFollowsFromTheContainer_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"complexity.value", "complexity.textureQuality", "complexity.amount",
                 "material.transparency", "material.shininess", "material.amount", "light.intensity", "light.amount"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void rangeFollowsFromTheContainer()
    {
        QFETCH(QString, name);
        NumericEditorRun run(QStringLiteral("SFFloat"), QStringLiteral("0.5"));
        QCOMPARE(rangeOf(run), (QList<double>{0, 10, false}));
        NxField& unit = field(name);
        unit.set("0.25");
        run.select(&unit);
        QCOMPARE(rangeOf(run), (QList<double>{0, 1, true}));
        QCOMPARE(run.position(), 25);
    }

    void doubleOfAUnitContainerStartsAtZeroToZero_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"complexity.fineAmount", "material.fineAmount", "light.fineAmount"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void doubleOfAUnitContainerStartsAtZeroToZero()
    {
        QFETCH(QString, name);
        NumericEditorRun run(QStringLiteral("SFDouble"), QStringLiteral("2"));
        QCOMPARE(rangeOf(run), (QList<double>{0, 10, false}));
        NxField& fine = field(name);
        run.select(&fine);
        QCOMPARE(rangeOf(run), (QList<double>{0, 0, true}));
        QCOMPARE(run.driver.slider->maximum(), std::numeric_limits<int>::min());
        fine.set("3");
        ToolHarness::pump();
        QCOMPARE(rangeOf(run), (QList<double>{0, 3, true}));
        QCOMPARE(run.position(), 100);
        QCOMPARE(run.pushed(), 0);
    }

    void fieldWithoutAContainerGetsThePlainRange()
    {
        NumericEditorRun run(QStringLiteral("SFFloat"));
        NxSFFloat alone(nullptr, "alone", 4);
        run.select(&alone);
        QCOMPARE(rangeOf(run), (QList<double>{0, 10, false}));
        QCOMPARE(run.lineText(), QStringLiteral("4.000000"));
        run.deselect();
    }

    void fieldValueWidensAnUnboundedRange_data() { reals(); }

    void fieldValueWidensAnUnboundedRange()
    {
        NumericEditorRun run(type(), QStringLiteral("25"));
        QCOMPARE(rangeOf(run), (QList<double>{0, 25, false}));
        QCOMPARE(run.position(), 100);
        run.set(QStringLiteral("-5"));
        ToolHarness::pump();
        QCOMPARE(rangeOf(run), (QList<double>{-5, 25, false}));
        QCOMPARE(run.position(), 0);
        QCOMPARE(run.pushed(), 0);
    }

    void fieldValueWidensABoundedRangeAndItsValidator()
    {
        NumericEditorRun run(QStringLiteral("SFFloat"));
        m_complexity->value.setValue(2.5F);
        run.select(&m_complexity->value);
        QCOMPARE(rangeOf(run), (QList<double>{0, 2.5, true}));
        QCOMPARE(run.lineText(), QStringLiteral("2.500000"));
        m_complexity->value.setValue(-1);
        ToolHarness::pump();
        QCOMPARE(rangeOf(run), (QList<double>{-1, 2.5, true}));
        const auto* validator = qobject_cast<const QDoubleValidator*>(run.driver.line->validator());
        QCOMPARE(validator->bottom(), -1.0);
        QCOMPARE(validator->top(), 2.5);
        QCOMPARE(run.pushed(), 0);
        run.driver.typeAndLeave(QStringLiteral("2.5"));
        QCOMPARE(m_complexity->value.getValue(), 2.5F);
        QCOMPARE(run.pushed(), 1);
    }

    void rangeDoesNotCarryOverToTheNextField_data() { reals(); }

    void rangeDoesNotCarryOverToTheNextField()
    {
        NumericEditorRun run(type(), QStringLiteral("500"));
        QCOMPARE(rangeOf(run), (QList<double>{0, 500, false}));
        const NxRef<NxFieldGallery> other = new NxFieldGallery;
        run.select(type() == QLatin1String("SFFloat") ? static_cast<NxField*>(&other->sfFloat) : &other->sfDouble);
        QCOMPARE(rangeOf(run), (QList<double>{0, 10, false}));
        run.deselect();
    }

    void boundedRangeRefusesWhatIsTyped()
    {
        NumericEditorRun run(QStringLiteral("SFFloat"));
        m_complexity->value.setValue(0.5F);
        run.select(&m_complexity->value);
        run.driver.typeAndReturn(QStringLiteral("1.5"));
        run.driver.slider->setFocus();
        QCOMPARE(run.lineText(), QStringLiteral("1.5"));
        QCOMPARE(m_complexity->value.getValue(), 0.5F);
        QCOMPARE(run.pushed(), 0);
    }

    void unboundedRangeTakesWhatIsTyped_data() { reals(); }

    void unboundedRangeTakesWhatIsTyped()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.typeAndLeave(QStringLiteral("40"));
        QCOMPARE(run.fieldText(), QStringLiteral("40"));
        QCOMPARE(rangeOf(run), (QList<double>{0, 40, false}));
        ToolHarness::pump();
        run.driver.typeAndLeave(QStringLiteral("-40"));
        QCOMPARE(run.fieldText(), QStringLiteral("-40"));
        QCOMPARE(rangeOf(run), (QList<double>{-40, 40, false}));
        QCOMPARE(run.pushed(), 2);
    }

    void changeOfFieldWritesNothing_data() { reals(); }

    void changeOfFieldWritesNothing()
    {
        NumericEditorRun run(type(), QStringLiteral("9"));
        const bool isFloat = type() == QLatin1String("SFFloat");
        NxField& other = field(isFloat ? QStringLiteral("material.amount") : QStringLiteral("material.fineAmount"));
        other.set("0.5");
        run.select(&other);
        run.select(run.field);
        run.select(&other);
        QCOMPARE(run.fieldText(), QStringLiteral("9"));
        QCOMPARE(ToolHarness::textOf(other), QStringLiteral("0.5"));
        QCOMPARE(run.pushed(), 0);
    }

    void textHasTheFormatOfTheType_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("shown");
        QTest::newRow("float tenth") << "SFFloat"
                                     << "0.1"
                                     << "0.100000";
        QTest::newRow("float third") << "SFFloat"
                                     << "0.33333334"
                                     << "0.333333";
        QTest::newRow("float large") << "SFFloat"
                                     << "3e6"
                                     << "3000000.000000";
        QTest::newRow("double tenth") << "SFDouble"
                                      << "0.1"
                                      << "0.1";
        QTest::newRow("double third") << "SFDouble"
                                      << "0.33333333333333331"
                                      << "0.333333333333333";
        QTest::newRow("double large") << "SFDouble"
                                      << "3e100"
                                      << "3e+100";
    }

    void textHasTheFormatOfTheType()
    {
        QFETCH(QString, value);
        QFETCH(QString, shown);
        const NumericEditorRun run(type(), value);
        QCOMPARE(run.lineText(), shown);
    }

    void tinyFloatIsKeptUntilSomethingIsApplied()
    {
        NumericEditorRun run(QStringLiteral("SFFloat"), QStringLiteral("1e-7"));
        QCOMPARE(run.lineText(), QStringLiteral("0.000000"));
        QCOMPARE(sliderOf(run).value(), 0.0);
        QCOMPARE(static_cast<NxSFFloat*>(run.field)->getValue(), 1e-7F);
        run.editor->applyChanges();
        QCOMPARE(static_cast<NxSFFloat*>(run.field)->getValue(), 0.0F);
    }

    void typedFloatComesBackWithSixDecimals()
    {
        NumericEditorRun run(QStringLiteral("SFFloat"), QStringLiteral("2"));
        run.driver.typeAndLeave(QStringLiteral("1.5"));
        QCOMPARE(run.lineText(), QStringLiteral("1.5"));
        ToolHarness::pump();
        QCOMPARE(run.lineText(), QStringLiteral("1.500000"));
        QVERIFY(!run.driver.line->isModified());
    }

    void dragRoundsToAHundredthOfTheRange_data() { reals(); }

    void dragRoundsToAHundredthOfTheRange()
    {
        NumericEditorRun run(type(), QStringLiteral("2.345"));
        QCOMPARE(run.position(), 23);
        run.driver.press();
        run.driver.dragTo(24);
        run.driver.dragTo(23);
        QCOMPARE(static_cast<float>(run.fieldText().toDouble()), 2.3F);
        run.driver.release();
        run.command(0).undo();
        QCOMPARE(static_cast<float>(run.fieldText().toDouble()), 2.345F);
    }

    void infiniteValueIsShownAndKept_data() { reals(); }

    void infiniteValueIsShownAndKept()
    {
        NumericEditorRun run(type(), QStringLiteral("inf"));
        QCOMPARE(run.lineText(), QStringLiteral("inf"));
        QCOMPARE(run.pushed(), 0);
        run.set(QStringLiteral("nan"));
        ToolHarness::pump();
        QCOMPARE(run.lineText(), QStringLiteral("nan"));
        run.set(QStringLiteral("2"));
        ToolHarness::pump();
        QCOMPARE(sliderOf(run).value(), 2.0);
        QCOMPARE(run.pushed(), 0);
    }

private:
    static void reals()
    {
        QTest::addColumn<QString>("type");
        QTest::newRow("float") << QStringLiteral("SFFloat");
        QTest::newRow("double") << QStringLiteral("SFDouble");
    }

    static QString type()
    {
        QFETCH(QString, type);
        return type;
    }
    /// The field by its name in one of the nodes.
    NxField& field(const QString& name)
    {
        const QStringList parts = name.split(QLatin1Char('.'));
        NxFieldContainer* node = m_light.get();
        if (parts.first() == QLatin1String("complexity"))
            node = m_complexity.get();
        else if (parts.first() == QLatin1String("material"))
            node = m_material.get();
        return *node->getField(VbName(parts.last().toLatin1().constData()));
    }

    static const DvRealSlider& sliderOf(const NumericEditorRun& run)
    {
        return dynamic_cast<const DvRealSlider&>(*run.driver.slider->parentWidget());
    }

    static QList<double> rangeOf(const NumericEditorRun& run)
    {
        const DvRealSlider& slider = sliderOf(run);
        return {slider.lowerBound(), slider.upperBound(), slider.isBounded() ? 1.0 : 0.0};
    }

    NxRef<AppComplexity> m_complexity;
    NxRef<AppMaterial> m_material;
    NxRef<AppLight> m_light;
};

QTEST_MAIN(TestRealFieldEditors)
#include "tst_RealFieldEditors.moc"
