#include "plugin/EditorHarness.h"
#include "plugin/PlainEditor.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

#include <memory>

namespace {

QMargins allMargins(int margin)
{
    return {margin, margin, margin, margin};
}

} // namespace

class TestDvSFieldWidgetLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tool = std::make_unique<ToolHarness>(); }

    void cleanup()
    {
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void sliderKindsMakeTheEditArea_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("slider");
        QTest::newRow("below") << 0 << false;
        for (int kind = 1; kind <= 6; ++kind)
            QTest::addRow("%d", kind) << kind << true;
        QTest::newRow("above") << 7 << false;
        QTest::newRow("negative") << -1 << false;
    }

    void sliderKindsMakeTheEditArea()
    {
        QFETCH(const int, kind);
        QFETCH(const bool, slider);
        PlainEditor editor(kind);
        QCOMPARE(editor.editionFrame() != nullptr, slider);
        editor.load();
        QCOMPARE(editor.editionFrame()->findChild<QSlider*>() != nullptr, slider);
        QCOMPARE(editor.editionFrame()->parentWidget(), editor.getFrame());
        editor.unload();
    }

    void sliderKeepsItsOwnLayout()
    {
        PlainEditor editor(1);
        QLayout* const own = editor.editionFrame()->layout();
        const EditorRun run(editor);
        QCOMPARE(editor.editLayout(), own);
        QCOMPARE(editor.editionFrame()->objectName(), QStringLiteral("DvSliderFrame"));
        QCOMPARE(editor.editionFrame()->frameShape(), QFrame::NoFrame);
        QCOMPARE(own->objectName(), QStringLiteral("orvaneslider"));
        QCOMPARE(own->contentsMargins(), allMargins(2));
        QCOMPARE(own->spacing(), 4);
        QVERIFY(run.find<QFrame>("m_editionFrame") == nullptr);
    }

    void typeLabelIsSetOnce()
    {
        PlainEditor editor;
        editor.setFieldTypeLabel(QStringLiteral("SFFirst"));
        editor.setFieldTypeLabel(QStringLiteral("SFSecond"));
        QCOMPARE(editor.getFrame()->findChild<QLabel*>()->text(), QStringLiteral("<p align=\"center\">SFFirst</p>"));
    }

    void frameIsAPlainBox()
    {
        PlainEditor editor;
        const EditorRun run(editor);
        QCOMPARE(editor.getFrame()->frameShape(), QFrame::Box);
        QCOMPARE(editor.getFrame()->frameShadow(), QFrame::Plain);
        QCOMPARE(editor.getFrame()->lineWidth(), 0);
    }

    void layoutsHaveTheirNamesMarginsAndSpacings()
    {
        PlainEditor editor;
        const EditorRun run(editor);
        QLayout* const main = editor.getFrame()->layout();
        QCOMPARE(main->objectName(), QStringLiteral("SFieldLayout"));
        QCOMPARE(main->contentsMargins(), allMargins(4));
        QCOMPARE(main->spacing(), 6);

        auto* const area = main->findChild<QHBoxLayout*>(QStringLiteral("SFieldEditionAreaLayout"));
        QVERIFY(area != nullptr);
        QCOMPARE(area->contentsMargins(), allMargins(0));
        QCOMPARE(area->spacing(), 2);
        QCOMPARE(area->sizeConstraint(), QLayout::SetMinimumSize);

        auto* const edit = run.find<QHBoxLayout>("editLayout");
        QVERIFY(edit != nullptr);
        QCOMPARE(edit, editor.editLayout());
        QCOMPARE(edit->contentsMargins(), allMargins(0));
        QCOMPARE(edit->spacing(), 0);

        // The strip of buttons bears the name of the main layout.
        auto* const buttons = area->findChild<QHBoxLayout*>(QStringLiteral("SFieldLayout"));
        QVERIFY(buttons != nullptr);
        QCOMPARE(buttons->contentsMargins(), allMargins(2));
        QCOMPARE(buttons->spacing(), 0);
        QCOMPARE(run.find<QHBoxLayout>("SFieldLayout"), main);
    }

    void labelHasItsLook()
    {
        PlainEditor editor;
        const EditorRun run(editor);
        auto* const label = run.find<QLabel>("m_label");
        QVERIFY(label != nullptr);
        QCOMPARE(label->parentWidget(), editor.getFrame());
        QCOMPARE(label->font().pointSize(), 10);
        QCOMPARE(label->font().family(), editor.getFrame()->font().family());
        QCOMPARE(label->frameShape(), QFrame::Box);
        QCOMPARE(label->frameShadow(), QFrame::Plain);
        QCOMPARE(label->lineWidth(), 0);
        QVERIFY(label->hasScaledContents());
    }

    void editAreaIsAPlainFrame()
    {
        PlainEditor editor;
        const EditorRun run(editor);
        auto* const frame = run.find<QFrame>("m_editionFrame");
        QCOMPARE(frame, editor.editionFrame());
        QCOMPARE(frame->parentWidget(), editor.getFrame());
        QCOMPARE(frame->frameShape(), QFrame::Box);
        QCOMPARE(frame->frameShadow(), QFrame::Plain);
        QCOMPARE(frame->lineWidth(), 0);
    }

    void editAreaStaysAsLowAsItsControls()
    {
        PlainEditor editor;
        EditorRun run(editor, m_tool->node->sfBool);
        auto* const column = new QVBoxLayout;
        for (int index = 0; index < 2; ++index) {
            auto* const control = new QLabel(editor.editionFrame());
            control->setFixedHeight(14);
            column->addWidget(control);
        }
        editor.editLayout()->addLayout(column);
        run.window.resize(300, 400);
        QTRY_VERIFY(editor.getFrame()->height() > 300);
        QCOMPARE(editor.editionFrame()->height(), editor.editionFrame()->sizeHint().height());
    }

    void itemsStandInTheirOrder()
    {
        PlainEditor editor;
        const EditorRun run(editor);
        auto* const main = qobject_cast<QHBoxLayout*>(editor.getFrame()->layout());
        QCOMPARE(main->count(), 3);
        QCOMPARE(main->itemAt(0)->widget(), run.find<QLabel>("m_label"));
        QVERIFY(main->itemAt(1)->spacerItem() != nullptr);
        auto* const area = qobject_cast<QHBoxLayout*>(main->itemAt(2)->layout());
        QVERIFY(area != nullptr);
        QCOMPARE(area->count(), 3);
        QCOMPARE(area->itemAt(0)->widget(), editor.editionFrame());
        QVERIFY(area->itemAt(1)->spacerItem() != nullptr);
        for (const QHBoxLayout* const layout : {main, area}) {
            QSpacerItem* const spacer = layout->itemAt(1)->spacerItem();
            QCOMPARE(spacer->sizeHint(), QSize(0, 0));
            QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
            QCOMPARE(layout->stretch(0), 0);
        }
        auto* const buttons = qobject_cast<QHBoxLayout*>(area->itemAt(2)->layout());
        QVERIFY(buttons != nullptr);
        QCOMPARE(buttons->count(), 2);
        QCOMPARE(buttons->itemAt(0)->widget(), run.find<QPushButton>("m_defaultButton"));
        QCOMPARE(buttons->itemAt(1)->widget(), run.find<QPushButton>("m_ignoreButton"));
        QCOMPARE(buttons->stretch(0), 0);
        QCOMPARE(buttons->stretch(1), 0);
    }

    void buttonsHaveTheirLook_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<bool>("checkable");
        QTest::newRow("default") << QByteArray("m_defaultButton") << QStringLiteral("Set to default") << false;
        QTest::newRow("ignore") << QByteArray("m_ignoreButton") << QStringLiteral("Ignore this field") << true;
    }

    void buttonsHaveTheirLook()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QString, toolTip);
        QFETCH(const bool, checkable);
        PlainEditor editor;
        const EditorRun run(editor);
        auto* const button = run.find<QPushButton>(name.constData());
        QVERIFY(button != nullptr);
        QCOMPARE(button->parentWidget(), editor.getFrame());
        QCOMPARE(button->maximumSize(), QSize(20, 20));
        QCOMPARE(button->text(), QString());
        QCOMPARE(button->toolTip(), toolTip);
        QCOMPARE(button->isCheckable(), checkable);
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QCOMPARE(button->icon().availableSizes(), QList<QSize>({QSize(16, 16)}));
    }

private:
    std::unique_ptr<ToolHarness> m_tool;
};

QTEST_MAIN(TestDvSFieldWidgetLayout)
#include "tst_DvSFieldWidgetLayout.moc"
