#include "FieldEditors/DvSlider.h"
#include "FieldEditors/DvSliderFactory.h"
#include "FieldEditors/SFWidgets/DvSFPlaneWidget.h"
#include "FieldEditors/SFWidgets/DvSFRotationWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec2fWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec4fWidget.h"
#include "FieldEditors/SFWidgets/VectorColumn.h"
#include "plugin/FieldEditors/SFWidgets/ComponentRun.h"

#include <QDoubleValidator>

namespace {

std::unique_ptr<DvSFieldWidget> makeEditor(const QString& type, const char* name = nullptr)
{
    if (type == QLatin1String("SFVec2f"))
        return std::make_unique<DvSFVec2fWidget>(name);
    if (type == QLatin1String("SFVec3f"))
        return std::make_unique<DvSFVec3fWidget>(name);
    if (type == QLatin1String("SFVec4f"))
        return std::make_unique<DvSFVec4fWidget>(name);
    if (type == QLatin1String("SFPlane"))
        return std::make_unique<DvSFPlaneWidget>(name);
    return std::make_unique<DvSFRotationWidget>(name);
}

struct Look {
    QString row;
    int rowMargin;
    int rowSpacing;
    QString column;
    int columnSpacing;
    QString label;
    QString line;
    QStringList labels;
};

Look lookOf(const QString& type)
{
    if (type == QLatin1String("SFVec2f"))
        return {QStringLiteral("SFVec2fLayout"), 0, 4, {}, 4, QStringLiteral("SFVec2fLabel"),
            QStringLiteral("SFVec2fBox"), {QStringLiteral("x"), QStringLiteral("y")}};
    if (type == QLatin1String("SFVec3f"))
        return {QStringLiteral("editLayout"), 2, 20, QStringLiteral("SFVec3fLayout"), 4, QStringLiteral("SFVec3fLabel"),
            QStringLiteral("SFVec3fLine"), {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")}};
    QString last = QStringLiteral("w");
    if (type == QLatin1String("SFPlane"))
        last = QStringLiteral("distance");
    else if (type == QLatin1String("SFRotation"))
        last = QStringLiteral("radians");
    return {QStringLiteral("editLayout"), 2, 4, QStringLiteral("SF4FvLayout"), 4, QStringLiteral("SF4flabel"),
        QStringLiteral("SF4fine"), {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), last}};
}

} // namespace

/// What all editors of numbers in labelled lines do.
class TestVectorFieldEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void constructorNamesTheEditor_data() { editors(); }

    void constructorNamesTheEditor()
    {
        const auto plain = makeEditor(type());
        QCOMPARE(plain->objectName(), QStringLiteral("Dv%1Widget").arg(type()));
        QCOMPARE(QString::fromUtf8(plain->getName().toUtf8()), type());
        QCOMPARE(QString::fromLatin1(plain->getHandledType().getName().getString()), type());
        QCOMPARE(makeEditor(type(), "mine")->objectName(), QStringLiteral("mine"));
    }

    void columnsFollowTheMetrics_data() { editors(); }

    void columnsFollowTheMetrics()
    {
        const ComponentRun run(makeEditor(type()), type());
        const Look look = lookOf(type());
        QCOMPARE(run.find<QLabel>("m_label")->text(), QStringLiteral("<p align=\"center\">%1</p>").arg(type()));
        QCOMPARE(run.row()->objectName(), look.row);
        QCOMPARE(run.row()->spacing(), look.rowSpacing);
        QCOMPARE(run.row()->contentsMargins(), QMargins(1, 1, 1, 1) * look.rowMargin);
        QStringList texts;
        for (const QString& label : look.labels)
            texts << QStringLiteral("<p>%1</p>").arg(label);
        QCOMPARE(run.labelTexts(), texts);
        for (const QBoxLayout* const column : run.parts()) {
            QCOMPARE(column->direction(), QBoxLayout::TopToBottom);
            QCOMPARE(column->objectName(), look.column);
            QCOMPARE(column->contentsMargins(), QMargins());
            QCOMPARE(column->spacing(), look.columnSpacing);
            QCOMPARE(column->sizeConstraint(), QLayout::SetMinimumSize);
        }
        for (const QLabel* const label : run.labels()) {
            QCOMPARE(label->objectName(), look.label);
            QCOMPARE(label->height(), 14);
            QCOMPARE(label->parentWidget(), run.frame());
        }
        for (const QLineEdit* const line : run.controls()) {
            QCOMPARE(line->objectName(), look.line);
            QCOMPARE(line->height(), 16);
            QCOMPARE(line->parentWidget(), run.frame());
            QCOMPARE(line->alignment() & Qt::AlignHorizontal_Mask, Qt::Alignment(Qt::AlignLeft));
        }
    }

    void linesTakeFloatsOnly_data() { editors(); }

    void linesTakeFloatsOnly()
    {
        const ComponentRun run(makeEditor(type()), type(), fetch("value"));
        for (QLineEdit* const line : run.controls()) {
            const auto* const validator = qobject_cast<const QDoubleValidator*>(line->validator());
            QVERIFY(validator != nullptr);
            QCOMPARE(validator->parent(), line);
            QCOMPARE(validator->bottom(), -3.4028234663852886e+38);
            QCOMPARE(validator->top(), 3.4028234663852886e+38);
            QCOMPARE(validator->decimals(), 6);
        }
        run.type(0, QStringLiteral("1x.2y5"));
        QCOMPARE(run.texts().constFirst(), QStringLiteral("1.25"));
    }

    void linesShowTheFieldFromTheirBeginning_data() { editors(); }

    void linesShowTheFieldFromTheirBeginning()
    {
        const ComponentRun run(makeEditor(type()), type(), fetch("value"));
        QCOMPARE(run.texts(), fetch("value").split(QLatin1Char(' ')));
        for (const QLineEdit* const line : run.controls()) {
            QCOMPARE(line->cursorPosition(), 0);
            QVERIFY(!line->isModified());
        }
        QVERIFY(!run.editor->edited());
        QCOMPARE(run.pushed(), 0);
    }

    void textHasSixSignificantDigits()
    {
        const ComponentRun run(makeEditor(QStringLiteral("SFVec4f")), QStringLiteral("SFVec4f"),
            QStringLiteral("0.1 1e20 1234567 0.33333334"));
        const QStringList expected{
            QStringLiteral("0.1"), QStringLiteral("1e+20"), QStringLiteral("1.23457e+06"), QStringLiteral("0.333333")};
        QCOMPARE(run.texts(), expected);
    }

    void returnAlwaysWritesAndPushes_data() { editors(); }

    void returnAlwaysWritesAndPushes()
    {
        const ComponentRun run(makeEditor(type()), type(), fetch("value"));
        run.press(0, Qt::Key_Return);
        QCOMPARE(run.pushed(), 1);
        run.press(0, Qt::Key_Return);
        QCOMPARE(run.pushed(), 2);
        QCOMPARE(run.text(), fetch("value"));
    }

    void returnWritesEachComponent_data() { editors(); }

    void returnWritesEachComponent()
    {
        const ComponentRun run(makeEditor(type()), type(), fetch("value"));
        const bool isPlane = type() == QLatin1String("SFPlane");
        QStringList expected;
        for (int index = 0; index < run.controls().size(); ++index) {
            // A unit normal for the plane, which would not keep another one.
            const QString number
                = isPlane && index < 3 ? QString::number(index == 0 ? -1 : 0) : QString::number(index + 7);
            expected << number;
            run.type(index, number);
            if (index + 1 < run.controls().size())
                run.controls().at(index)->setModified(false); // leaving it shall not write
        }
        QCOMPARE(run.pushed(), 0);
        run.press(static_cast<int>(run.controls().size()) - 1, Qt::Key_Return);
        QCOMPARE(run.text(), expected.join(QLatin1Char(' ')));
        // Typed text goes through Return and, as the line counts as finished, through the door for typed text as well;
        // but the rotation has no such door.
        QCOMPARE(run.pushed(), type() == QLatin1String("SFRotation") ? 1 : 2);
        ToolHarness::pump();
        QVERIFY(!run.editor->edited());
        QCOMPARE(run.texts(), expected);
    }

    void leavingALineWritesWhatWasTyped_data() { leavers(); }

    void leavingALineWritesWhatWasTyped()
    {
        const ComponentRun run(makeEditor(type()), type(), fetch("value"));
        const int last = static_cast<int>(run.controls().size()) - 1;
        run.type(last, QStringLiteral("9.5"));
        QVERIFY(run.editor->edited());
        QCOMPARE(run.text(), fetch("value"));
        run.press(last, Qt::Key_Tab);
        QStringList expected = fetch("value").split(QLatin1Char(' '));
        expected.back() = QStringLiteral("9.5");
        QCOMPARE(run.text(), expected.join(QLatin1Char(' ')));
        QCOMPARE(run.pushed(), 1);
    }

    void leavingAnUntouchedLinePushesNothing_data() { editors(); }

    void leavingAnUntouchedLinePushesNothing()
    {
        const ComponentRun run(makeEditor(type()), type(), fetch("value"));
        run.controls().constFirst()->setFocus();
        run.press(0, Qt::Key_Tab);
        QVERIFY(run.controls().at(1)->hasFocus());
        run.editor->setFocusLeaveEvent();
        QCOMPARE(run.pushed(), 0);
    }

    void emptyLineReadsAsZero_data() { editors(); }

    void emptyLineReadsAsZero()
    {
        const ComponentRun run(makeEditor(type()), type(), fetch("value"));
        const int last = static_cast<int>(run.controls().size()) - 1;
        run.type(last, QString());
        QCOMPARE(run.pushed(), 0); // unfinished text finishes no line
        run.press(last, Qt::Key_Tab);
        QCOMPARE(run.pushed(), 0);
        run.press(0, Qt::Key_Return);
        QVERIFY(run.pushed() > 0);
        QStringList expected = fetch("value").split(QLatin1Char(' '));
        expected.back() = QStringLiteral("0");
        QCOMPARE(run.text(), expected.join(QLatin1Char(' ')));
    }

    void numberBeyondAFloatFinishesNoLine_data() { editors(); }

    void numberBeyondAFloatFinishesNoLine()
    {
        const ComponentRun run(makeEditor(type()), type(), fetch("value"));
        run.type(0, QStringLiteral("1e39"));
        run.press(0, Qt::Key_Return);
        run.press(0, Qt::Key_Tab);
        QCOMPARE(run.pushed(), 0);
        QCOMPARE(run.text(), fetch("value"));
    }

    void undoWritesTheValueThatIsThere_data() { editors(); }

    void undoWritesTheValueThatIsThere()
    {
        const ComponentRun run(makeEditor(type()), type(), fetch("value"));
        run.type(static_cast<int>(run.controls().size()) - 1, QStringLiteral("9"));
        run.editor->setCommandValue();
        const QString written = run.text();
        QVERIFY(written != fetch("value"));
        run.lastCommand().undo();
        QCOMPARE(run.text(), written);
        run.set(fetch("value"));
        run.lastCommand().redo();
        QCOMPARE(run.text(), written);
    }

    void changeFromOutsideIsFollowedWithoutACommand_data() { editors(); }

    void changeFromOutsideIsFollowedWithoutACommand()
    {
        const ComponentRun run(makeEditor(type()), type(), fetch("value"));
        const QString other
            = type() == QLatin1String("SFPlane") ? QStringLiteral("1 0 0 -2") : QStringLiteral("5 6 7 8");
        const qsizetype count = run.controls().size();
        const QStringList numbers = other.split(QLatin1Char(' ')).mid(0, count);
        run.set(numbers.join(QLatin1Char(' ')));
        run.field->setIgnored(1);
        QCOMPARE(run.texts(), fetch("value").split(QLatin1Char(' ')));
        ToolHarness::pump();
        QCOMPARE(run.texts(), numbers);
        QVERIFY(run.find<QPushButton>("m_ignoreButton")->isChecked());
        QCOMPARE(run.pushed(), 0);
    }

    void nullFieldIsLeftAlone_data() { editors(); }

    void nullFieldIsLeftAlone()
    {
        const ComponentRun run(makeEditor(type()), type());
        run.type(0, QStringLiteral("3"));
        run.editor->updateFromField();
        run.editor->applyChanges();
        run.press(0, Qt::Key_Return);
        QCOMPARE(run.texts().constFirst(), QStringLiteral("3"));
        QCOMPARE(run.pushed(), 0);
    }

    void buttonsPushTheirCommands_data() { editors(); }

    void buttonsPushTheirCommands()
    {
        const ComponentRun run(makeEditor(type()), type(), fetch("value"));
        run.click("m_ignoreButton");
        QVERIFY(run.field->isIgnored());
        QCOMPARE(run.pushed(), 1);
        run.lastCommand().undo();
        QVERIFY(!run.field->isIgnored());
        run.click("m_defaultButton");
        QCOMPARE(run.pushed(), 2);
        const NxRef<NxFieldGallery> fresh = new NxFieldGallery;
        const QByteArray name = "sf" + type().mid(2).toLatin1();
        QCOMPARE(run.text(), ToolHarness::textOf(*fresh->getField(VbName(name.constData()))));
        run.lastCommand().undo();
        QVERIFY(run.text() != fetch("value"));
        ToolHarness::pump();
        QCOMPARE(run.texts(), run.text().split(QLatin1Char(' ')));
    }

    void sliderAsEditAreaLendsACopyOfItsSnapshot()
    {
        ToolHarness harness;
        NxSFVec2f& field = harness.node->sfVec2f;
        field.setValue(1, 2);
        DvSFVec2fWidget owner;
        QFrame plain;
        auto* const slider = qobject_cast<DvSlider*>(makeSlider(1, &owner, &plain));
        slider->commandValue() = "8 9";
        orvane::pushVectorCommand(&field, slider);
        harness.services.commands.back()->undo();
        QCOMPARE(ToolHarness::textOf(field), QStringLiteral("8 9"));
        QCOMPARE(slider->commandValue(), VbString("8 9"));
        field.setValue(1, 2);
        orvane::pushVectorCommand(&field, &plain);
        harness.services.commands.back()->undo();
        QCOMPARE(ToolHarness::textOf(field), QStringLiteral("1 2"));
    }

private:
    static void editors()
    {
        leavers();
        QTest::newRow("rotation") << "SFRotation"
                                  << "0 0 1 0.5";
    }

    static void leavers()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("value");
        QTest::newRow("two floats") << "SFVec2f"
                                    << "1 2";
        QTest::newRow("three floats") << "SFVec3f"
                                      << "1 2 3";
        QTest::newRow("four floats") << "SFVec4f"
                                     << "1 2 3 4";
        QTest::newRow("plane") << "SFPlane"
                               << "0 0 1 5";
    }

    static QString type() { return fetch("type"); }
    static QString fetch(const char* column)
    {
        return *static_cast<QString*>(QTest::qData(column, qMetaTypeId<QString>()));
    }
};

QTEST_MAIN(TestVectorFieldEditors)
#include "tst_VectorFieldEditors.moc"
