#include "plugin/ToolHarness.h"
#include "sdk/Angle.h"

#include "orvane/extender/OrvDocument.h"

#include <QCheckBox>
#include <QDial>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace {

class SignpostEditor final : public orv::NodeEditor<Signpost> {
    void build() override
    {
        addField(&Signpost::heading);
        addField(&Signpost::places);
        addField(&Signpost::lit);
        addField(&Signpost::paint);
        addField(&Signpost::translation);
        addText(QStringLiteral("Children"), [](Signpost& post) { return QString::number(post.getNumChildren()); });
        auto& dial = add<QDial>(QStringLiteral("Turn"));
        dial.setRange(0, 359);
        bind(
            &Signpost::heading, dial, &QDial::valueChanged,
            [&dial](const Angle& angle) { dial.setValue(qRound(angle.degrees)); },
            [](int degrees) { return Angle{static_cast<float>(degrees)}; });
        follow([this](Signpost& post) { shownNames += orv::toQString(post.getName()) + u';'; });
    }

public:
    QString shownNames;
};

struct Tool : ToolHarness {
    Tool()
    {
        root->addChild(post.get());
        services.document().open(OrvDocument::makeJournal(*root));
        editor.load();
    }
    ~Tool()
    {
        if (editor.isActive())
            editor.deactivate();
        services.document().close();
    }
    void select(NxTypedObject* object)
    {
        editor.setEditedObject(object);
        editor.activate();
    }
    template <typename Widget>
    [[nodiscard]] Widget& find(const char* name) const
    {
        return *editor.getWidget()->findChild<Widget*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QLineEdit& line(const char* field) const
    {
        auto* const own = editor.getWidget()->findChild<QLineEdit*>(QString::fromLatin1(field));
        return own != nullptr ? *own : *find<QWidget>(field).findChild<QLineEdit*>();
    }

    NxRef<NxGroup> root = new NxGroup;
    NxRef<Signpost> post = new Signpost;
    SignpostEditor editor;
};

} // namespace

// The form of a node.
class TestNodeEditor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theRowsShowTheNode()
    {
        Tool tool;
        tool.post->places.set("[inn, well]");
        tool.post->lit.setValue(true);
        tool.select(tool.post.get());
        QCOMPARE(tool.line("heading").text(), QStringLiteral("90"));
        QCOMPARE(tool.find<QLabel>("places").text(), QStringLiteral("2 values"));
        QVERIFY(tool.find<QCheckBox>("lit").isChecked());
        QCOMPARE(tool.line("translation").text(), QStringLiteral("0 0 0"));
        QCOMPARE(tool.find<QLabel>("Children").text(), QStringLiteral("0"));
        QCOMPARE(tool.find<QDial>("Turn").value(), 90);
    }

    void aChangeOfTheNodeIsShown()
    {
        Tool tool;
        tool.select(tool.post.get());
        tool.post->addChild(new NxGroup);
        tool.post->heading.setValue({7});
        tool.post->setName("north");
        ToolHarness::pump();
        QCOMPARE(tool.find<QLabel>("Children").text(), QStringLiteral("1"));
        QCOMPARE(tool.line("heading").text(), QStringLiteral("7"));
        QCOMPARE(tool.find<QDial>("Turn").value(), 7);
        QCOMPARE(tool.editor.shownNames, QStringLiteral(";north;"));
    }

    void aLineIsWrittenAndUndone()
    {
        Tool tool;
        tool.select(tool.post.get());
        QLineEdit& line = tool.line("heading");
        line.selectAll();
        QTest::keyClicks(&line, QStringLiteral("120"));
        QTest::keyClick(&line, Qt::Key_Return);
        QCOMPARE(tool.post->heading.getValue().degrees, 120.0F);
        tool.services.undo();
        QCOMPARE(tool.post->heading.getValue().degrees, 90.0F);
        ToolHarness::pump();
        QCOMPARE(line.text(), QStringLiteral("90"));
    }

    void aTextThatIsRefusedIsTakenBack()
    {
        Tool tool;
        tool.select(tool.post.get());
        QLineEdit& line = tool.line("heading");
        QTest::keyClicks(&line, QStringLiteral("x"));
        QTest::keyClick(&line, Qt::Key_Return);
        QCOMPARE(line.text(), QStringLiteral("90"));
        QCOMPARE(tool.services.pushed, 0);
    }

    void aClickOnTheBoxIsWritten()
    {
        Tool tool;
        tool.select(tool.post.get());
        auto& box = tool.find<QCheckBox>("lit");
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(5, box.height() / 2));
        QVERIFY(tool.post->lit.getValue());
    }

    void theNameOfAFieldSelectsIt()
    {
        Tool tool;
        tool.services.selectNode(tool.post.get());
        tool.select(tool.post.get());
        QTest::mouseClick(&tool.find<QToolButton>("headingLabel"), Qt::LeftButton);
        QCOMPARE(tool.services.getSelectedField(), &tool.post->heading);
        QCOMPARE(tool.services.getSelectedNode(), tool.post.get());
        QVERIFY(tool.find<QToolButton>("headingLabel").toolTip().startsWith(QStringLiteral("Where it points.")));
    }

    void anotherNodeUsesTheSameForm()
    {
        Tool tool;
        tool.select(tool.post.get());
        tool.editor.deactivate();
        const NxRef<Signpost> other(new Signpost);
        other->heading.setValue({3});
        tool.select(other.get());
        QCOMPARE(tool.line("heading").text(), QStringLiteral("3"));
        QTest::keyClick(&tool.find<QDial>("Turn"), Qt::Key_Up);
        QCOMPARE(other->heading.getValue().degrees, 4.0F);
        QCOMPARE(tool.post->heading.getValue().degrees, 90.0F);
    }

    void theNodeIsReleased()
    {
        Tool tool;
        const int references = tool.post->getRefCount();
        tool.select(tool.post.get());
        QVERIFY(tool.post->getRefCount() > references);
        tool.editor.deactivate();
        QCOMPARE(tool.post->getRefCount(), references);
    }

    void aClosedSceneIsReleased()
    {
        Tool tool;
        tool.select(tool.post.get());
        tool.services.document().close();
        tool.root = {};
        QCOMPARE(tool.post->getRefCount(), 1);
    }

    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }
};

QTEST_MAIN(TestNodeEditor)
#include "tst_NodeEditor.moc"
