#include "HostHarness.h"
#include "OrvFieldEditorDockWin.h"
#include "OrvNodeEditor.h"
#include "RecordingEditor.h"

#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/NxSField.h"
#include "meridane/scene/fields/single/NxSFFloat.h"

#include <QMetaMethod>
#include <QPointer>

#include <memory>

namespace {

const QString dockName = QStringLiteral("Field Editor");

/// The editors of a test in two orders of address.
struct Extensions {
    QStringList calls;
    OrvNodeEditor otherDock;
    RecordingEditor lineBelow{"line below", NxSField::getClassTypeId(), calls};
    RecordingEditor number{"number", NxSFFloat::getClassTypeId(), calls};
    RecordingEditor lineAbove{"line above", NxSField::getClassTypeId(), calls};
    RecordingEditor list{"list", NxMField::getClassTypeId(), calls};
    OrvFieldEditorDockWin dock;

    [[nodiscard]] QList<OrvExtension*> all() { return {&lineBelow, &number, &lineAbove, &list, &dock, &otherDock}; }
};

/// The one of the editors that is in the dock; empty for none.
QString shownEditor(const QDockWidget* dock, const Extensions& extensions)
{
    for (const RecordingEditor* const editor :
        {&extensions.lineBelow, &extensions.number, &extensions.lineAbove, &extensions.list}) {
        if (dock->widget() != nullptr && dock->widget() == editor->getFrame())
            return QString::fromUtf8(editor->getName().toUtf8());
    }
    return {};
}

} // namespace

class TestOrvFieldEditorDockWin : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_extensions = std::make_unique<Extensions>(); }

    void cleanup()
    {
        m_tool.reset();
        m_extensions.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void constructorWritesTheStrings()
    {
        const OrvExtension& dock = m_extensions->dock;
        QCOMPARE(dock.getName(), VbString("Field Editor"));
        QCOMPARE(dock.getAuthor(), VbString("KLD"));
        QCOMPARE(dock.getDescription(), VbString("Field Editor for Orvane."));
        QCOMPARE(dock.getVersion(), VbString("1.0.0"));
    }

    void loadMakesAHiddenDockWithoutAParent()
    {
        m_extensions->dock.load();
        const QWidgetList widgets = QApplication::topLevelWidgets();
        const auto found = std::find_if(widgets.begin(), widgets.end(),
            [](const QWidget* widget) { return qobject_cast<const QDockWidget*>(widget) != nullptr; });
        QVERIFY(found != widgets.end());
        const auto* const dock = qobject_cast<QDockWidget*>(*found);
        QVERIFY(dock->parent() == nullptr);
        QVERIFY(!dock->isVisible());
        QVERIFY(!dock->acceptDrops());
        QCOMPARE(dock->windowTitle(), QStringLiteral("Field Editor"));
        QVERIFY(dock->widget() == nullptr);
        m_extensions->dock.unload();
    }

    void unloadDeletesTheDockOnce()
    {
        start({});
        m_tool->manager.setActiveProfile(nullptr);
        QVERIFY(!m_dock.isNull());
        m_extensions->dock.unload();
        QVERIFY(m_dock.isNull());
        m_extensions->dock.unload();
    }

    void activateEntersTheShellHidden()
    {
        start({QStringLiteral("number")});
        QCOMPARE(m_tool->shell.calls,
            QStringList(
                {QStringLiteral("addDockWidget Field Editor 2"), QStringLiteral("announceExtension Field Editor 1")}));
        QVERIFY(m_extensions->dock.isActive());
        QVERIFY(m_dock->isHidden());
        QVERIFY(m_extensions->calls.isEmpty());
    }

    void deactivateLeavesTheShell()
    {
        start({QStringLiteral("number")});
        m_tool->shell.calls.clear();
        m_tool->manager.setActiveProfile(nullptr);
        QCOMPARE(m_tool->shell.calls,
            QStringList(
                {QStringLiteral("removeDockWidget Field Editor"), QStringLiteral("withdrawExtension Field Editor")}));
        QVERIFY(!m_extensions->dock.isActive());
        select(&m_tool->node->sfFloat);
        QVERIFY(m_dock->isHidden());
        QVERIFY(m_extensions->calls.isEmpty());
    }

    void bestEditorIsShown_data()
    {
        QTest::addColumn<QStringList>("controlled");
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<QString>("expected");
        const QString below = QStringLiteral("line below");
        const QString number = QStringLiteral("number");
        const QString above = QStringLiteral("line above");
        const QString list = QStringLiteral("list");
        const QString others = QStringLiteral("Node Editor");
        QTest::newRow("the most derived one, met last")
            << QStringList{below, number} << QByteArray("sfFloat") << number;
        QTest::newRow("the most derived one, met first")
            << QStringList{number, above} << QByteArray("sfFloat") << number;
        QTest::newRow("between two others")
            << QStringList{below, number, above, list} << QByteArray("sfFloat") << number;
        QTest::newRow("of the same type the last by address")
            << QStringList{above, below} << QByteArray("sfDouble") << above;
        QTest::newRow("the fallback alone") << QStringList{below} << QByteArray("sfFloat") << below;
        QTest::newRow("a type that nothing else handles")
            << QStringList{number, below} << QByteArray("sfTime") << below;
        QTest::newRow("a list") << QStringList{below, number, list} << QByteArray("mfFloat") << list;
        QTest::newRow("what is no editor is skipped") << QStringList{others, number} << QByteArray("sfFloat") << number;
    }

    void bestEditorIsShown()
    {
        QFETCH(const QStringList, controlled);
        QFETCH(const QByteArray, field);
        QFETCH(const QString, expected);
        start(controlled);
        select(m_tool->node->getField(VbName(field.constData())));
        QCOMPARE(shownEditor(m_dock, *m_extensions), expected);
        QVERIFY(m_dock->isVisible());
    }

    void withoutAnEditorTheDockStaysHidden_data()
    {
        QTest::addColumn<QStringList>("controlled");
        QTest::addColumn<QByteArray>("field");
        QTest::newRow("nothing is controlled") << QStringList() << QByteArray("sfFloat");
        QTest::newRow("a list and editors of single values")
            << QStringList{QStringLiteral("line below"), QStringLiteral("number")} << QByteArray("mfFloat");
        QTest::newRow("a base type and the editor of a derived one")
            << QStringList{QStringLiteral("number")} << QByteArray("sfDouble");
        QTest::newRow("no editors") << QStringList{QStringLiteral("Node Editor")} << QByteArray("sfFloat");
    }

    void withoutAnEditorTheDockStaysHidden()
    {
        QFETCH(const QStringList, controlled);
        QFETCH(const QByteArray, field);
        start(controlled);
        select(m_tool->node->getField(VbName(field.constData())));
        QVERIFY(m_dock->isHidden());
        QVERIFY(m_dock->widget() == nullptr);
        QVERIFY(m_extensions->calls.isEmpty());
    }

    void noSelectionReleasesTheEditor()
    {
        start({QStringLiteral("number")});
        select(&m_tool->node->sfFloat);
        select(nullptr);
        QVERIFY(m_dock->isHidden());
        QVERIFY(m_dock->widget() == nullptr);
        QVERIFY(m_extensions->number.getFrame()->parent() == nullptr);
        QVERIFY(!m_extensions->number.getFrame()->isVisible());
        QVERIFY(m_extensions->number.getEditedObject() == nullptr);
        QVERIFY(!m_extensions->number.isActive());
    }

    void selectionThatNothingFitsReleasesTheEditor()
    {
        start({QStringLiteral("number")});
        select(&m_tool->node->sfFloat);
        select(&m_tool->node->mfFloat);
        QVERIFY(m_dock->isHidden());
        QVERIFY(m_dock->widget() == nullptr);
        QVERIFY(m_extensions->number.getFrame()->parent() == nullptr);
    }

    void changeOfSelectionRunsInOrder()
    {
        start({QStringLiteral("number"), QStringLiteral("list")});
        select(&m_tool->node->sfFloat);
        const VisibilityRecorder recorder(m_dock, m_extensions->calls);
        m_extensions->calls.clear();
        select(&m_tool->node->mfFloat);
        QCOMPARE(m_extensions->calls,
            QStringList({QStringLiteral("number deactivate"), QStringLiteral("number hide"),
                QStringLiteral("number setEditedObject null"), QStringLiteral("number getWidget"),
                QStringLiteral("dock hides"), QStringLiteral("list setEditedObject"), QStringLiteral("list getWidget"),
                QStringLiteral("list activate"), QStringLiteral("list setField"),
                QStringLiteral("list updateFromField"), QStringLiteral("list show"), QStringLiteral("dock shows")}));
        QCOMPARE(m_extensions->list.getEditedObject(), static_cast<NxTypedObject*>(&m_tool->node->mfFloat));
    }

    void sameFieldTwiceRunsReleaseAndActivation()
    {
        start({QStringLiteral("number")});
        select(&m_tool->node->sfFloat);
        m_extensions->calls.clear();
        select(&m_tool->node->sfFloat);
        QCOMPARE(m_extensions->calls,
            QStringList({QStringLiteral("number deactivate"), QStringLiteral("number hide"),
                QStringLiteral("number setEditedObject null"), QStringLiteral("number getWidget"),
                QStringLiteral("number setEditedObject"), QStringLiteral("number getWidget"),
                QStringLiteral("number activate"), QStringLiteral("number setField"),
                QStringLiteral("number updateFromField"), QStringLiteral("number show")}));
        QVERIFY(m_dock->isVisible());
    }

    void deactivateReleasesTheEditorFirst()
    {
        start({QStringLiteral("number")});
        select(&m_tool->node->sfFloat);
        m_extensions->calls.clear();
        m_tool->manager.setActiveProfile(nullptr);
        QCOMPARE(m_extensions->calls,
            QStringList({QStringLiteral("number deactivate"), QStringLiteral("number hide"),
                QStringLiteral("number setEditedObject null"), QStringLiteral("number getWidget")}));
        QVERIFY(m_extensions->number.getFrame()->parent() == nullptr);
        QVERIFY(m_dock->isHidden());
        QVERIFY(m_dock->parent() == nullptr);
    }

    void nextActivationStartsEmpty()
    {
        start({QStringLiteral("number")});
        select(&m_tool->node->sfFloat);
        m_extensions->dock.deactivate();
        m_extensions->dock.activate();
        QVERIFY(m_dock->isHidden());
        QVERIFY(m_dock->widget() == nullptr);
        select(&m_tool->node->sfFloat);
        QCOMPARE(shownEditor(m_dock, *m_extensions), QStringLiteral("number"));
    }

    void frameIsShownInTheDock()
    {
        start({QStringLiteral("number")});
        select(&m_tool->node->sfFloat);
        QFrame* const frame = m_extensions->number.getFrame();
        QCOMPARE(m_dock->widget(), frame);
        QVERIFY(m_dock->isAncestorOf(frame));
        QVERIFY(frame->isVisible());
        m_tool->node->sfFloat.setValue(2);
        m_extensions->calls.clear();
        ToolHarness::pump();
        QCOMPARE(m_extensions->calls, QStringList(QStringLiteral("number updateFromField")));
    }

    void changedProfileAppliesAtTheNextSelection()
    {
        start({QStringLiteral("number")});
        m_tool->runProfile(dockName, {QStringLiteral("line below")});
        select(&m_tool->node->sfFloat);
        QCOMPARE(shownEditor(m_dock, *m_extensions), QStringLiteral("line below"));
    }

    void slotIsTheOnlyMetaMethod()
    {
        const QMetaObject& meta = OrvFieldEditorDockWin::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("s_selectedFieldChanged(NxField*)"));
        QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
        QCOMPARE(meta.superClass(), &OrvExtension::staticMetaObject);
    }

private:
    void start(const QStringList& controlled)
    {
        m_tool = std::make_unique<HostHarness>(m_extensions->all(), dockName, controlled);
        m_dock = m_tool->dock();
        m_extensions->calls.clear();
    }
    void select(NxField* field) { m_tool->services.selectField(field); }

    std::unique_ptr<Extensions> m_extensions;
    std::unique_ptr<HostHarness> m_tool;
    QPointer<QDockWidget> m_dock;
};

QTEST_MAIN(TestOrvFieldEditorDockWin)
#include "tst_OrvFieldEditorDockWin.moc"
