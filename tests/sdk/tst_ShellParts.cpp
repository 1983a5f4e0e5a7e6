#include "plugin/ToolHarness.h"
#include "sdk/Angle.h"

#include <QAction>
#include <QLabel>
#include <QToolButton>

namespace {

class NameDock final : public orv::Dock {
public:
    NameDock()
        : Dock(QStringLiteral("Names"), Qt::LeftDockWidgetArea)
    {
    }

    int builds = 0;
    QStringList selections;

private:
    QWidget* build() override
    {
        ++builds;
        return new QLabel(QStringLiteral("contents"));
    }
    void nodeSelected(NxFieldContainer* node) override
    {
        selections << (node != nullptr ? orv::toQString(node->getName()) : QStringLiteral("no node"));
    }
    void fieldSelected(NxField* field) override
    {
        selections << (field != nullptr ? orv::toQString(field->getTypeId().getName()) : QStringLiteral("no field"));
    }
};

class PostBar final : public orv::ToolBar {
public:
    PostBar()
        : ToolBar(QStringLiteral("Posts"))
    {
    }

    int presses = 0;

private:
    void build() override
    {
        addButton(QStringLiteral("Count"), QStringLiteral("Counts."), [this] { ++presses; });
        addButton<Signpost>(QStringLiteral("North"), QStringLiteral("Turns it to the north."),
            [](Signpost& post) { orv::edit(post.heading, {0}); });
        addButton<SFAngle>(QStringLiteral("Half"), QStringLiteral("Halves the angle."),
            [](SFAngle& field) { orv::edit(field, {field.getValue().degrees / 2}); });
    }
};

} // namespace

// Docks and tool bars.
class TestShellParts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDockIsInTheWindowWhileItIsActive()
    {
        ToolHarness tool;
        NameDock dock;
        dock.load();
        for (int i = 0; i < 2; ++i) {
            dock.activate();
            QCOMPARE(tool.shell.window.findChildren<QDockWidget*>().size(), 1);
            dock.deactivate();
            QVERIFY(tool.shell.window.findChildren<QDockWidget*>().isEmpty());
        }
        QCOMPARE(dock.builds, 1);
        const QStringList calls{QStringLiteral("addDockWidget Names 1"), QStringLiteral("announceExtension Names 1"),
            QStringLiteral("removeDockWidget Names"), QStringLiteral("withdrawExtension Names")};
        QCOMPARE(tool.shell.calls, calls + calls);
        dock.unload();
    }

    void aDockHearsOfTheSelectionWhileItIsActive()
    {
        ToolHarness tool;
        tool.node->setName("gallery");
        NameDock dock;
        dock.load();
        tool.services.selectNode(tool.node.get());
        dock.activate();
        tool.services.announceSelection();
        tool.services.selectField(&tool.node->sfFloat);
        dock.deactivate();
        tool.services.select(nullptr, nullptr);
        QCOMPARE(dock.selections,
            QStringList({QStringLiteral("gallery"), QStringLiteral("no field"), QStringLiteral("SFFloat")}));
        dock.unload();
    }

    void aButtonRunsItsAction()
    {
        ToolHarness tool;
        PostBar bar;
        bar.load();
        bar.activate();
        tool.shell.window.show();
        QTest::mouseClick(buttonOf(tool, QStringLiteral("Count")), Qt::LeftButton);
        QCOMPARE(bar.presses, 1);
        bar.deactivate();
        bar.unload();
    }

    void aButtonForAClassIsEnabledByTheSelection()
    {
        ToolHarness tool;
        PostBar bar;
        bar.load();
        bar.activate();
        tool.shell.window.show();
        QToolButton* const north = buttonOf(tool, QStringLiteral("North"));
        QToolButton* const half = buttonOf(tool, QStringLiteral("Half"));
        QVERIFY(!north->isEnabled());
        QCOMPARE(north->toolTip(), QStringLiteral("Nothing of the class Signpost is selected."));
        const NxRef<Signpost> post(new Signpost);
        tool.services.select(post.get(), &post->heading);
        QVERIFY(north->isEnabled());
        QCOMPARE(north->toolTip(), QStringLiteral("Turns it to the north."));
        QTest::mouseClick(half, Qt::LeftButton);
        QCOMPARE(post->heading.getValue().degrees, 45.0F);
        QTest::mouseClick(north, Qt::LeftButton);
        QCOMPARE(post->heading.getValue().degrees, 0.0F);
        tool.services.undo();
        QCOMPARE(post->heading.getValue().degrees, 45.0F);
        tool.services.select(nullptr, nullptr);
        QVERIFY(!half->isEnabled());
        bar.deactivate();
        bar.unload();
    }

    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

private:
    static QToolButton* buttonOf(const ToolHarness& tool, const QString& text)
    {
        for (auto* const button : tool.shell.window.findChildren<QToolButton*>()) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
};

QTEST_MAIN(TestShellParts)
#include "tst_ShellParts.moc"
