#include "FieldEditors/SFWidgets/DvSFVec2i32Widget.h"
#include "FieldEditors/SFWidgets/DvSFVec2sWidget.h"
#include "plugin/FieldEditors/SFWidgets/ComponentRun.h"

#include <QSpinBox>

#include <limits>

namespace {

std::unique_ptr<DvSFieldWidget> makeEditor(const QString& type, const char* name = nullptr)
{
    if (type == QLatin1String("SFVec2s"))
        return std::make_unique<DvSFVec2sWidget>(name);
    return std::make_unique<DvSFVec2i32Widget>(name);
}

class BareSpinBoxes final : public DvSF2iSpinBox {
public:
    void load() override
    {
        setFieldTypeLabel(QStringLiteral("bare"));
        DvSF2iSpinBox::load();
    }
};

} // namespace

/// The base class and its two editors.
class TestDvSF2iSpinBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void baseNamesItself()
    {
        QCOMPARE(DvSF2iSpinBox().objectName(), QStringLiteral("DvSF2iSpinBox"));
        QCOMPARE(DvSF2iSpinBox("mine").objectName(), QStringLiteral("mine"));
    }

    void rangeFollowsFromTheKind_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("lowest");
        QTest::addColumn<int>("highest");
        QTest::newRow("short") << 0 << -32768 << 32767;
        QTest::newRow("int") << 1 << std::numeric_limits<int>::min() << std::numeric_limits<int>::max();
        QTest::newRow("int, too") << 2 << std::numeric_limits<int>::min() << std::numeric_limits<int>::max();
        QTest::newRow("unknown") << 3 << 0 << 99;
        QTest::newRow("negative") << -1 << 0 << 99;
    }

    void rangeFollowsFromTheKind()
    {
        QFETCH(int, kind);
        QFETCH(int, lowest);
        QFETCH(int, highest);
        auto bare = std::make_unique<BareSpinBoxes>();
        DvSF2iSpinBox& base = *bare;
        const ComponentRun run(std::move(bare), QStringLiteral("SFVec2i32"));
        base.setSpinBoxRange(kind);
        for (const QSpinBox* const spinBox : run.controls<QSpinBox>()) {
            QCOMPARE(spinBox->minimum(), lowest);
            QCOMPARE(spinBox->maximum(), highest);
        }
    }

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
        QCOMPARE(run.find<QLabel>("m_label")->text(), QStringLiteral("<p align=\"center\">%1</p>").arg(type()));
        QCOMPARE(run.row()->objectName(), QStringLiteral("editLayout"));
        QCOMPARE(run.row()->spacing(), 25);
        QCOMPARE(run.row()->contentsMargins(), QMargins(2, 2, 2, 2));
        QCOMPARE(run.labelTexts(), (QStringList{QStringLiteral("<p>x</p>"), QStringLiteral("<p>y</p>")}));
        for (const QBoxLayout* const column : run.parts()) {
            QCOMPARE(column->direction(), QBoxLayout::TopToBottom);
            QCOMPARE(column->objectName(), QStringLiteral("SF2BoxLayout"));
            QCOMPARE(column->spacing(), 4);
            QCOMPARE(column->sizeConstraint(), QLayout::SetMinimumSize);
        }
        for (const QLabel* const label : run.labels()) {
            QCOMPARE(label->objectName(), QStringLiteral("SF4flabel"));
            QCOMPARE(label->height(), 14);
            QCOMPARE(label->parentWidget(), run.frame());
        }
        for (const QSpinBox* const spinBox : run.controls<QSpinBox>()) {
            QCOMPARE(spinBox->objectName(), QStringLiteral("SF2Box"));
            QCOMPARE(spinBox->height(), 16);
            QCOMPARE(spinBox->parentWidget(), run.frame());
            QCOMPARE(spinBox->value(), 0);
        }
    }

    void rangeIsThatOfTheType_data() { editors(); }

    void rangeIsThatOfTheType()
    {
        QFETCH(int, lowest);
        QFETCH(int, highest);
        const ComponentRun run(makeEditor(type()), type(), QStringLiteral("%1 %2").arg(lowest).arg(highest));
        for (const QSpinBox* const spinBox : run.controls<QSpinBox>()) {
            QCOMPARE(spinBox->minimum(), lowest);
            QCOMPARE(spinBox->maximum(), highest);
        }
        QCOMPARE(valuesOf(run), (QList<int>{lowest, highest}));
        QCOMPARE(run.text(), QStringLiteral("%1 %2").arg(lowest).arg(highest));
    }

    void eachStepPushesOneCommand_data() { editors(); }

    void eachStepPushesOneCommand()
    {
        const ComponentRun run(makeEditor(type()), type(), QStringLiteral("0 0"));
        QCOMPARE(run.pushed(), 0);
        QSpinBox* const y = run.controls<QSpinBox>().at(1);
        y->setFocus();
        QTest::keyClick(y, Qt::Key_Up);
        QCOMPARE(run.pushed(), 1);
        QCOMPARE(run.text(), QStringLiteral("0 1"));
        QTest::keyClick(y, Qt::Key_Up);
        QCOMPARE(run.pushed(), 2);
        QTest::keyClick(run.controls<QSpinBox>().at(0), Qt::Key_Down);
        QCOMPARE(run.pushed(), 3);
        QCOMPARE(run.text(), QStringLiteral("-1 2"));
        ToolHarness::pump();
        QCOMPARE(run.pushed(), 3);
        QCOMPARE(valuesOf(run), (QList<int>{-1, 2}));
    }

    void digitThatLeadsBeyondTheTypeIsRefused_data() { editors(); }

    void digitThatLeadsBeyondTheTypeIsRefused()
    {
        const ComponentRun run(makeEditor(type()), type(), QStringLiteral("0 7"));
        QSpinBox* const x = run.controls<QSpinBox>().constFirst();
        x->setFocus();
        x->selectAll();
        QTest::keyClicks(x, QString(20, QLatin1Char('9')));
        const int nines = type() == QLatin1String("SFVec2s") ? 9'999 : 999'999'999;
        QCOMPARE(x->value(), nines);
        QCOMPARE(run.text(), QStringLiteral("%1 7").arg(nines));
    }

    void undoWritesTheValueThatIsThere_data() { editors(); }

    void undoWritesTheValueThatIsThere()
    {
        const ComponentRun run(makeEditor(type()), type(), QStringLiteral("0 0"));
        QTest::keyClick(run.controls<QSpinBox>().at(0), Qt::Key_Up);
        run.lastCommand().undo();
        QCOMPARE(run.text(), QStringLiteral("1 0"));
        run.set(QStringLiteral("0 0"));
        run.lastCommand().redo();
        QCOMPARE(run.text(), QStringLiteral("1 0"));
    }

    void changeOfOneNumberFromOutsideMakesOneCommand_data() { editors(); }

    void changeOfOneNumberFromOutsideMakesOneCommand()
    {
        const ComponentRun run(makeEditor(type()), type(), QStringLiteral("0 0"));
        run.set(QStringLiteral("0 7"));
        ToolHarness::pump();
        QCOMPARE(valuesOf(run), (QList<int>{0, 7}));
        QCOMPARE(run.pushed(), 1);
        QCOMPARE(run.text(), QStringLiteral("0 7"));
    }

    void changeOfBothNumbersFromOutsideMakesTwoWritesAndTwoCommands_data() { editors(); }

    void changeOfBothNumbersFromOutsideMakesTwoWritesAndTwoCommands()
    {
        const ComponentRun run(makeEditor(type()), type(), QStringLiteral("0 0"));
        run.set(QStringLiteral("5 7"));
        // The write in between, with the new x beside the old y, ends up in the first of the two commands.
        QStringList written;
        QSpinBox* const x = run.controls<QSpinBox>().at(0);
        QSpinBox* const y = run.controls<QSpinBox>().at(1);
        for (QSpinBox* const spinBox : {x, y})
            connect(spinBox, &QSpinBox::valueChanged, spinBox, [&] { written << run.text(); });
        ToolHarness::pump();
        QCOMPARE(written, (QStringList{QStringLiteral("5 0"), QStringLiteral("5 7")}));
        QCOMPARE(run.pushed(), 2);
        QCOMPARE(run.text(), QStringLiteral("5 7"));
        QCOMPARE(valuesOf(run), (QList<int>{5, 7}));
        ToolHarness::pump();
        QCOMPARE(run.pushed(), 2);
    }

    void editedIsAlwaysFalse_data() { editors(); }

    void editedIsAlwaysFalse()
    {
        const ComponentRun run(makeEditor(type()), type(), QStringLiteral("0 0"));
        QTest::keyClicks(run.controls<QSpinBox>().at(0), QStringLiteral("4"));
        QVERIFY(!run.editor->edited());
    }

    void nullFieldIsLeftAlone_data() { editors(); }

    void nullFieldIsLeftAlone()
    {
        const ComponentRun run(makeEditor(type()), type());
        run.editor->updateFromField();
        QTest::keyClick(run.controls<QSpinBox>().at(0), Qt::Key_Up);
        run.editor->applyChanges();
        QCOMPARE(valuesOf(run), (QList<int>{1, 0}));
        QCOMPARE(run.pushed(), 0);
    }

    void buttonsPushTheirCommands_data() { editors(); }

    void buttonsPushTheirCommands()
    {
        const ComponentRun run(makeEditor(type()), type(), QStringLiteral("3 0"));
        QCOMPARE(run.pushed(), 1); // by the refresh
        run.click("m_ignoreButton");
        QVERIFY(run.field->isIgnored());
        QCOMPARE(run.pushed(), 2);
        run.click("m_defaultButton");
        QCOMPARE(run.text(), QStringLiteral("0 0"));
        QCOMPARE(run.pushed(), 3);
    }

private:
    static void editors()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("lowest");
        QTest::addColumn<int>("highest");
        QTest::newRow("int") << "SFVec2i32" << std::numeric_limits<int>::min() << std::numeric_limits<int>::max();
        QTest::newRow("short") << "SFVec2s" << -32768 << 32767;
    }

    static QString type() { return *static_cast<QString*>(QTest::qData("type", qMetaTypeId<QString>())); }
    static QList<int> valuesOf(const ComponentRun& run)
    {
        QList<int> values;
        for (const QSpinBox* const spinBox : run.controls<QSpinBox>())
            values << spinBox->value();
        return values;
    }
};

QTEST_MAIN(TestDvSF2iSpinBox)
#include "tst_DvSF2iSpinBox.moc"
