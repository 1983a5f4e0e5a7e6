#include "FieldEditors/SFWidgets/DvSF4fBox.h"
#include "plugin/FieldEditors/SFWidgets/ComponentRun.h"

namespace {

class BareLines final : public DvSF4fBox {
public:
    void load() override
    {
        setFieldTypeLabel(QStringLiteral("bare"));
        DvSF4fBox::load();
    }
};

} // namespace

class TestDvSF4fBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void nullNameGivesThatOfTheClass()
    {
        QCOMPARE(DvSF4fBox().objectName(), QStringLiteral("DvSF4fBox"));
        QCOMPARE(DvSF4fBox("mine").objectName(), QStringLiteral("mine"));
    }

    void labelsWrapTheNamesInParagraphs()
    {
        auto bare = std::make_unique<BareLines>();
        DvSF4fBox& base = *bare;
        const ComponentRun run(std::move(bare), QStringLiteral("SFVec4f"));
        QCOMPARE(run.labelTexts(), QStringList(4, QString()));
        const QString names[] = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")};
        base.setLabels(names);
        QStringList expected;
        for (const QString& name : names)
            expected << QStringLiteral("<p>%1</p>").arg(name);
        QCOMPARE(run.labelTexts(), expected);
    }

    void anyTypedLineCountsAsEdited()
    {
        const ComponentRun run(std::make_unique<BareLines>(), QStringLiteral("SFVec4f"));
        for (int index = 0; index < 4; ++index) {
            QVERIFY(!run.editor->edited());
            run.type(index, QStringLiteral("1"));
            QVERIFY(run.editor->edited());
            run.controls().at(index)->setModified(false);
        }
    }

    void resetLinesCursorShowsTheBeginnings()
    {
        auto bare = std::make_unique<BareLines>();
        DvSF4fBox& base = *bare;
        const ComponentRun run(std::move(bare), QStringLiteral("SFVec4f"));
        for (QLineEdit* const line : run.controls()) {
            line->setText(QStringLiteral("123"));
            QCOMPARE(line->cursorPosition(), 3);
        }
        base.resetLinesCursor();
        for (const QLineEdit* const line : run.controls())
            QCOMPARE(line->cursorPosition(), 0);
    }
};

QTEST_MAIN(TestDvSF4fBox)
#include "tst_DvSF4fBox.moc"
