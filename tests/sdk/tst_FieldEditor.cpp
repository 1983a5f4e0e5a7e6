#include "plugin/ToolHarness.h"
#include "sdk/Angle.h"

#include "orvane/extender/ReplacedEditors.h"

#include <QDial>
#include <QLabel>
#include <QPushButton>

namespace {

class AngleEditor final : public orv::FieldEditor<SFAngle> {
public:
    AngleEditor() { replaces({QStringLiteral("SField"), QStringLiteral("SFFloat")}); }

    int builds = 0;

private:
    void build() override
    {
        ++builds;
        auto& dial = add<QDial>();
        dial.setRange(0, 359);
        bind(
            dial, &QDial::valueChanged, [&dial](const Angle& angle) { dial.setValue(qRound(angle.degrees)); },
            [](int degrees) { return Angle{static_cast<float>(degrees)}; });
    }
};

// The dock's part in the life of an editor.
struct Dock : ToolHarness {
    Dock() { editor.load(); }
    ~Dock()
    {
        release();
        editor.unload();
    }
    void select(NxTypedObject* object)
    {
        release();
        editor.setEditedObject(object);
        window.setWidget(editor.getWidget());
        editor.activate();
    }
    void release()
    {
        if (!editor.isActive())
            return;
        editor.deactivate();
        editor.setEditedObject(nullptr);
        window.setWidget(nullptr);
        editor.getWidget()->setParent(nullptr);
    }
    template <typename Widget>
    [[nodiscard]] Widget& find(const char* name = nullptr) const
    {
        return *editor.getWidget()->findChild<Widget*>(QString::fromLatin1(name));
    }

    QDockWidget window;
    AngleEditor editor;
    NxRef<Signpost> post = new Signpost;
};

} // namespace

class TestFieldEditor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void itIsNamedAfterItsClassOfFields()
    {
        Dock dock;
        QCOMPARE(orvane::toQString(dock.editor.getName()), QStringLiteral("SFAngle"));
        QCOMPARE(dock.editor.getHandledType(), SFAngle::getClassTypeId());
    }

    void itIsBuiltAtFirstNeedAndOnce()
    {
        Dock dock;
        QCOMPARE(dock.editor.builds, 0);
        for (int i = 0; i < 3; ++i)
            dock.select(&dock.post->heading);
        QCOMPARE(dock.editor.builds, 1);
        QCOMPARE(dock.find<QLabel>("typeLabel").text(), QStringLiteral("SFAngle"));
    }

    void itShowsAndWritesTheField()
    {
        Dock dock;
        dock.select(&dock.post->heading);
        auto& dial = dock.find<QDial>();
        QCOMPARE(dial.value(), 90);
        QTest::keyClick(&dial, Qt::Key_Down);
        QCOMPARE(dock.post->heading.getValue().degrees, 89.0F);
        dock.services.undo();
        QCOMPARE(dock.post->heading.getValue().degrees, 90.0F);
    }

    void itFollowsTheFieldUntilItIsReleased()
    {
        Dock dock;
        dock.select(&dock.post->heading);
        dock.post->heading.setValue({1});
        ToolHarness::pump();
        QCOMPARE(dock.find<QDial>().value(), 1);
        dock.release();
        dock.post->heading.setValue({2});
        ToolHarness::pump();
        QCOMPARE(dock.find<QDial>().value(), 1);
        QCOMPARE(dock.post->getRefCount(), 1);
        QVERIFY(dock.editor.getWidget()->isHidden());
    }

    void theButtonsRestoreTheDefaultAndIgnoreTheField()
    {
        Dock dock;
        dock.post->heading.setValue({1});
        dock.select(&dock.post->heading);
        dock.window.show();
        QTest::mouseClick(&dock.find<QPushButton>("defaultButton"), Qt::LeftButton);
        QVERIFY(dock.post->heading.isDefault());
        auto& ignore = dock.find<QPushButton>("ignoreButton");
        QTest::mouseClick(&ignore, Qt::LeftButton);
        QVERIFY(dock.post->heading.isIgnored());
        dock.services.undo();
        ToolHarness::pump();
        QVERIFY(!ignore.isChecked());
        dock.services.undo();
        QCOMPARE(dock.post->heading.getValue().degrees, 1.0F);
    }

    void anObjectOfAnotherClassIsNotShown()
    {
        Dock dock;
        dock.select(&dock.post->lit);
        QVERIFY(dock.editor.isActive());
        QVERIFY(dock.editor.getWidget()->isHidden());
        QCOMPARE(dock.editor.builds, 0);
    }

    void itCanBeLoadedAgain()
    {
        Dock dock;
        dock.select(&dock.post->heading);
        dock.release();
        dock.editor.unload();
        dock.editor.load();
        dock.select(&dock.post->heading);
        QCOMPARE(dock.editor.builds, 2);
        QCOMPARE(dock.find<QDial>().value(), 90);
    }

    void itSaysWhichEditorsItReplaces()
    {
        const Dock dock;
        QCOMPARE(
            orvane::replacedEditors(dock.editor), QStringList({QStringLiteral("SField"), QStringLiteral("SFFloat")}));
    }

    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }
};

QTEST_MAIN(TestFieldEditor)
#include "tst_FieldEditor.moc"
