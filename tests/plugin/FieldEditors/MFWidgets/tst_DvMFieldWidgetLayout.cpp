#include "FieldEditors/EditorIcons.h"
#include "plugin/ListRun.h"
#include "plugin/PlainListEditor.h"

#include <QGridLayout>
#include <QLabel>

#include <vector>

namespace {

QStringList objectNames(const QLayout* layout)
{
    QStringList names;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* const item = layout->itemAt(i);
        if (item->widget() != nullptr)
            names << item->widget()->objectName();
        else if (item->layout() != nullptr)
            names << item->layout()->objectName();
        else
            names << QStringLiteral("%1x%2 %3 %4")
                         .arg(item->spacerItem()->sizeHint().width())
                         .arg(item->spacerItem()->sizeHint().height())
                         .arg(item->spacerItem()->sizePolicy().horizontalPolicy())
                         .arg(item->spacerItem()->sizePolicy().verticalPolicy());
    }
    return names;
}

class EventCount final : public QObject {
public:
    EventCount(QWidget* widget, QEvent::Type type)
        : m_type(type)
    {
        widget->installEventFilter(this);
    }

    int count = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type m_type;
};

QLayout* layoutNamed(const QWidget* frame, const char* name)
{
    return frame->findChild<QLayout*>(QLatin1String(name));
}

} // namespace

class TestDvMFieldWidgetLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void gridHoldsLabelStripAndTable()
    {
        const ToolHarness tool;
        PlainListEditor editor;
        const EditorRun run(editor);
        const QFrame* const frame = editor.getFrame();
        QCOMPARE(frame->frameShape(), QFrame::Box);
        QCOMPARE(frame->frameShadow(), QFrame::Plain);
        QCOMPARE(frame->lineWidth(), 0);
        auto* const grid = qobject_cast<QGridLayout*>(frame->layout());
        QVERIFY(grid != nullptr);
        QCOMPARE(grid->objectName(), QStringLiteral("m_globalLayout"));
        QCOMPARE(grid->itemAtPosition(0, 0)->widget(), run.find<QLabel>("m_label"));
        QCOMPARE(grid->itemAtPosition(1, 0)->spacerItem()->sizeHint(), QSize(0, 4));
        QCOMPARE(grid->itemAtPosition(0, 1)->spacerItem()->sizeHint(), QSize(6, 0));
        QCOMPARE(grid->itemAtPosition(0, 2)->layout()->objectName(), QStringLiteral("m_buttonsLayout"));
        QCOMPARE(grid->itemAtPosition(2, 2)->widget(), run.find<QWidget>("m_table"));
        QCOMPARE(run.find<QWidget>("m_table")->minimumHeight(), 46);
    }

    void stripHoldsTheControlsInTheirOrder()
    {
        const ToolHarness tool;
        PlainListEditor editor;
        const EditorRun run(editor);
        const QString elastic = QStringLiteral("0x0 %1 %2").arg(QSizePolicy::Expanding).arg(QSizePolicy::Minimum);
        const QString fixed = QStringLiteral("0x4 %1 %2").arg(QSizePolicy::Minimum).arg(QSizePolicy::Minimum);
        QCOMPARE(objectNames(layoutNamed(editor.getFrame(), "m_buttonsLayout")),
            QStringList({QStringLiteral("m_manageButtonsLayout"), elastic, QStringLiteral("m_accessBox"), elastic,
                fixed, QStringLiteral("m_labelNumElement"), QStringLiteral("movementButtonLayout"),
                QStringLiteral("movementButtonLayout")}));
        QCOMPARE(objectNames(layoutNamed(editor.getFrame(), "m_manageButtonsLayout")),
            QStringList({QStringLiteral("m_addButton"), QStringLiteral("m_deleteButton")}));
        const auto movement = editor.getFrame()->findChildren<QLayout*>(QStringLiteral("movementButtonLayout"));
        QCOMPARE(movement.size(), 2);
        QCOMPARE(
            objectNames(movement.at(0)), QStringList({QStringLiteral("m_upButton"), QStringLiteral("m_downButton")}));
        QCOMPARE(objectNames(movement.at(1)),
            QStringList({QStringLiteral("m_defaultButton"), QStringLiteral("m_ignoreButton")}));
    }

    void marginsAndSpacings()
    {
        const ToolHarness tool;
        PlainListEditor editor;
        const EditorRun run(editor);
        QCOMPARE(editor.getFrame()->layout()->contentsMargins(), QMargins(6, 6, 6, 6));
        QCOMPARE(editor.getFrame()->layout()->spacing(), 2);
        QCOMPARE(layoutNamed(editor.getFrame(), "m_buttonsLayout")->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layoutNamed(editor.getFrame(), "m_buttonsLayout")->spacing(), 5);
        QCOMPARE(layoutNamed(editor.getFrame(), "m_manageButtonsLayout")->spacing(), 0);
        for (const QLayout* const layout :
            editor.getFrame()->findChildren<QLayout*>(QStringLiteral("movementButtonLayout"))) {
            QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
            QCOMPARE(layout->spacing(), 0);
        }
    }

    void controlsHaveTheirSizesAndNames()
    {
        const ToolHarness tool;
        PlainListEditor editor;
        const EditorRun run(editor);
        const struct {
            const char* name;
            const char* toolTip;
            QPixmap icon;
        } buttons[] = {
            {"m_addButton", "Add a row", orvane::addRowIcon()},
            {"m_deleteButton", "Delete current row", orvane::deleteRowIcon()},
            {"m_upButton", "Bring up current row", orvane::moveUpIcon()},
            {"m_downButton", "Bring down current row", orvane::moveDownIcon()},
            {"m_defaultButton", "Set to default", orvane::setDefaultIcon()},
            {"m_ignoreButton", "Ignore this field", orvane::ignoreIcon()},
        };
        for (const auto& expected : buttons) {
            const auto* const button = run.find<QPushButton>(expected.name);
            QVERIFY2(button != nullptr, expected.name);
            QCOMPARE(button->toolTip(), QLatin1String(expected.toolTip));
            QCOMPARE(button->text(), QString());
            QCOMPARE(button->maximumSize(), QSize(20, 20));
            QCOMPARE(button->focusPolicy(), Qt::NoFocus);
            QCOMPARE(button->isCheckable(), QByteArray("m_ignoreButton") == expected.name);
            QCOMPARE(button->icon().pixmap(16, 16).toImage(), expected.icon.toImage());
        }
        const auto* const box = run.find<AccessButtonPrivate>("m_accessBox");
        QCOMPARE(box->toolTip(), QStringLiteral("Quick access to rows"));
        QCOMPARE(box->maximumSize(), QSize(60, 20));
        QCOMPARE(box->singleStep(), 1);
        QVERIFY(box->focusPolicy() != Qt::NoFocus);
        const auto* const label = run.find<QLabel>("m_label");
        QCOMPARE(label->font().pointSize(), 10);
        QCOMPARE(label->frameShape(), QFrame::Box);
        QCOMPARE(label->frameShadow(), QFrame::Plain);
        QCOMPARE(label->lineWidth(), 0);
        QVERIFY(label->hasScaledContents());
    }

    void labelIsSetOnce()
    {
        const ToolHarness tool;
        PlainListEditor editor;
        const EditorRun run(editor);
        QCOMPARE(run.find<QLabel>("m_label")->text(), QStringLiteral("<p align=\"center\">MFPlain</p>"));
    }

    void countIsShownWhole()
    {
        ListRun<PlainListEditor> list;
        NxMFInt32 field(nullptr, "numbers");
        list.show(field);
        auto* const count = list.run.find<QLabel>("m_labelNumElement");
        const QSize none = count->size();
        QCOMPARE(none, count->sizeHint());
        field.setValues(std::vector<int>(100'000));
        list.settle();
        QCOMPARE(count->size(), count->sizeHint());
        QVERIFY(count->width() > none.width());
        QFont large = count->font();
        large.setPointSize(2 * large.pointSize());
        count->setFont(large);
        list.settle();
        QCOMPARE(count->size(), count->sizeHint());
        QVERIFY(count->height() > none.height());
    }

    void countLooksLikeItsRichText()
    {
        ListRun<PlainListEditor> list;
        NxMFInt32 field(nullptr, "numbers");
        field.setValues(std::vector<int>(12'345));
        list.show(field);
        auto* const count = list.run.find<QLabel>("m_labelNumElement");
        QLabel bare(count->text());
        bare.setFont(count->font());
        bare.resize(count->size());
        QCOMPARE(count->grab().toImage(), bare.grab().toImage());
        const QImage before = count->grab().toImage();
        field.setValues(std::vector<int>(12'346));
        list.settle();
        QVERIFY(count->grab().toImage() != before);
    }

    void newCountLeavesTheLayoutAlone()
    {
        ListRun<PlainListEditor> list;
        NxMFInt32 field(nullptr, "numbers");
        field.setValues(std::vector<int>(20));
        list.show(field);
        list.click(3);
        list.settle();
        EventCount layouts(list.editor.getFrame(), QEvent::LayoutRequest);
        list.press("m_addButton");
        list.settle();
        QCOMPARE(
            list.run.find<QLabel>("m_labelNumElement")->text(), QStringLiteral("<p align=\"center\">21 elements</p>"));
        QCOMPARE(layouts.count, 0);
    }
};

QTEST_MAIN(TestDvMFieldWidgetLayout)
#include "tst_DvMFieldWidgetLayout.moc"
