#include "Profiles/OrvProfileSelectorExtension.h"
#include "plugin/HostHarness.h"

#include <QComboBox>
#include <QMetaMethod>

#include <memory>
#include <optional>

namespace {

const QStringList plainList{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")};

QStringList textsOf(const QComboBox& comboBox)
{
    QStringList texts;
    for (int index = 0; index < comboBox.count(); ++index)
        texts << comboBox.itemText(index);
    return texts;
}

/// The tool bar in a window, run by the test itself, so that a change of the profile doesn't rebuild its list.
class SelectorRun : public ToolHarness {
public:
    explicit SelectorRun(const QStringList& profiles, const QString& active = {})
    {
        for (const QString& name : profiles) {
            if (const auto error = manager.addProfile(std::make_unique<OrvProfile>(name, QList<OrvProfile::Entry>())))
                qFatal("%s", qUtf8Printable(*error));
        }
        if (!active.isEmpty())
            manager.setActiveProfile(manager.findProfile(active));
        selector.load();
        selector.activate();
        shell.window.show();
    }
    ~SelectorRun()
    {
        if (selector.isActive())
            selector.deactivate();
        selector.unload();
    }

    [[nodiscard]] QToolBar* toolBar() const { return shell.window.findChild<QToolBar*>(); }
    [[nodiscard]] QComboBox& comboBox() const { return *toolBar()->findChild<QComboBox*>(); }
    [[nodiscard]] QString activeName() const
    {
        const OrvProfile* const profile = manager.getActiveProfile();
        return profile == nullptr ? QString() : QString::fromUtf8(profile->getName().toUtf8());
    }

    /// Opens the list and picks an entry as a user does.
    void pick(int index) const
    {
        QComboBox& box = comboBox();
        box.setFocus();
        const int steps = index - box.currentIndex();
        box.showPopup();
        QWidget* const view = QApplication::focusWidget();
        for (int step = 0; step < qAbs(steps); ++step)
            QTest::keyClick(view, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
        QTest::keyClick(view, Qt::Key_Return);
    }

    OrvPluginsManager manager;
    OrvProfileSelectorExtension selector;
};

} // namespace

class TestOrvProfileSelectorExtension : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void constructorWritesTheStrings()
    {
        const OrvProfileSelectorExtension selector;
        QCOMPARE(selector.getName(), VbString("Profile Selector"));
        QCOMPARE(selector.getAuthor(), VbString("KLD"));
        QCOMPARE(selector.getDescription(), VbString("A toolbar to select the active profile."));
        QCOMPARE(selector.getVersion(), VbString("1.0.0"));
    }

    void loadBuildsAnEmptyToolBar()
    {
        OrvProfileSelectorExtension selector;
        selector.load();
        QToolBar* toolBar = nullptr;
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (QWidget* const widget : widgets) {
            if (toolBar == nullptr)
                toolBar = qobject_cast<QToolBar*>(widget);
        }
        QVERIFY(toolBar != nullptr);
        QCOMPARE(toolBar->windowTitle(), QStringLiteral("Profile Selector"));
        const auto* const comboBox = toolBar->findChild<QComboBox*>();
        QCOMPARE(comboBox->parentWidget(), static_cast<QWidget*>(toolBar));
        QCOMPARE(comboBox->toolTip(), QStringLiteral("Select the active profile."));
        QCOMPARE(comboBox->count(), 0);
        QVERIFY(toolBar->isHidden());
        selector.unload();
    }

    void activateListsTheProfiles()
    {
        const SelectorRun run(plainList, QStringLiteral("B"));
        QCOMPARE(textsOf(run.comboBox()), plainList);
        QCOMPARE(run.comboBox().currentIndex(), 1);
        for (int index = 0; index < run.comboBox().count(); ++index) {
            QVERIFY(run.comboBox().itemIcon(index).isNull());
            QVERIFY(!run.comboBox().itemData(index).isValid());
        }
        QVERIFY(run.toolBar()->isVisible());
        QVERIFY(run.selector.isActive());
    }

    void activateDoesNotChangeTheProfile()
    {
        const SelectorRun run(plainList, QStringLiteral("C"));
        QCOMPARE(run.activeName(), QStringLiteral("C"));
    }

    void activateSpeaksToTheShellInOrder()
    {
        SelectorRun run(plainList);
        run.selector.deactivate();
        QCOMPARE(run.shell.calls,
            QStringList({QStringLiteral("addToolBar Profile Selector 4"),
                QStringLiteral("announceExtension Profile Selector 1"),
                QStringLiteral("removeToolBar Profile Selector"),
                QStringLiteral("withdrawExtension Profile Selector")}));
    }

    void activationIsRecordedLast()
    {
        /// Records whether the extension is active when its tool bar comes into the window.
        class MoveRecorder : public QObject {
        public:
            explicit MoveRecorder(const OrvExtension& extension)
                : m_extension(extension)
            {
            }
            QList<bool> states;
            bool eventFilter(QObject* /*watched*/, QEvent* event) override
            {
                if (event->type() == QEvent::ParentChange)
                    states << m_extension.isActive();
                return false;
            }

        private:
            const OrvExtension& m_extension;
        };
        SelectorRun run(plainList);
        QToolBar* const toolBar = run.toolBar();
        run.selector.deactivate();
        MoveRecorder recorder(run.selector);
        toolBar->installEventFilter(&recorder);
        run.selector.activate();
        QCOMPARE(recorder.states, QList<bool>{false});
        QVERIFY(run.selector.isActive());
        toolBar->removeEventFilter(&recorder);
    }

    void withoutAnActiveProfileNothingIsCurrent()
    {
        const SelectorRun run(plainList);
        QCOMPARE(textsOf(run.comboBox()), plainList);
        QCOMPARE(run.comboBox().currentIndex(), -1);
    }

    void withoutProfilesTheListIsEmpty()
    {
        const SelectorRun run({});
        QCOMPARE(run.comboBox().count(), 0);
        QCOMPARE(run.comboBox().currentIndex(), -1);
        QVERIFY(QMetaObject::invokeMethod(
            const_cast<OrvProfileSelectorExtension*>(&run.selector), "s_currentIndexChanged", Q_ARG(int, 0)));
        QCOMPARE(run.comboBox().count(), 0);
        QVERIFY(run.manager.getActiveProfile() == nullptr);
    }

    void choiceMakesTheProfileActiveAndListsItsForerunnersAgain()
    {
        const SelectorRun run(plainList, QStringLiteral("B"));
        run.pick(2);
        QCOMPARE(run.activeName(), QStringLiteral("C"));
        QCOMPARE(textsOf(run.comboBox()), plainList + plainList);
        QCOMPARE(run.comboBox().currentIndex(), 2);
        run.pick(0);
        QCOMPARE(run.activeName(), QStringLiteral("A"));
        QCOMPARE(textsOf(run.comboBox()), plainList + plainList + QStringList{QStringLiteral("A")});
        QCOMPARE(run.comboBox().currentIndex(), 0);
    }

    void repeatedEntryChangesNoProfileAndListsAllAgain()
    {
        const SelectorRun run(plainList, QStringLiteral("B"));
        run.pick(2);
        run.pick(3);
        QCOMPARE(run.activeName(), QStringLiteral("C"));
        QCOMPARE(textsOf(run.comboBox()), plainList + plainList + plainList);
        QCOMPARE(run.comboBox().currentIndex(), 3);
    }

    void currentEntryThatGoesListsAllAgain()
    {
        const SelectorRun run(plainList, QStringLiteral("B"));
        run.comboBox().setCurrentIndex(-1);
        QCOMPARE(run.activeName(), QStringLiteral("B"));
        QCOMPARE(textsOf(run.comboBox()), plainList + plainList);
    }

    void activateMakesTheListPlainAgain()
    {
        SelectorRun run(plainList, QStringLiteral("B"));
        run.pick(2);
        run.selector.deactivate();
        run.selector.activate();
        QCOMPARE(textsOf(run.comboBox()), plainList);
        QCOMPARE(run.comboBox().currentIndex(), 2);
        run.pick(1);
        QCOMPARE(textsOf(run.comboBox()), plainList + plainList.first(2)); // the signal is connected once
    }

    void deactivateLeavesTheToolBarOutOfTheWindow()
    {
        SelectorRun run(plainList, QStringLiteral("B"));
        const QToolBar* const toolBar = run.toolBar();
        run.selector.deactivate();
        QVERIFY(run.toolBar() == nullptr);
        QVERIFY(toolBar->parent() == nullptr);
        QVERIFY(!run.selector.isActive());
    }

    void nothingIsHeardWhileItIsInactive()
    {
        SelectorRun run(plainList, QStringLiteral("B"));
        QComboBox& comboBox = run.comboBox();
        run.selector.deactivate();
        comboBox.setCurrentIndex(0);
        QCOMPARE(run.activeName(), QStringLiteral("B"));
        QCOMPARE(textsOf(comboBox), plainList);
    }

    void namesAreReadAsLatin1AndThenAsUtf8()
    {
        const SelectorRun run({QStringLiteral("plain"), QStringLiteral("caf\u00e9"), QStringLiteral("\u6587")});
        QCOMPARE(textsOf(run.comboBox()),
            QStringList({QStringLiteral("plain"), QStringLiteral("caf\ufffd"), QStringLiteral("?")}));
    }

    void switchThroughTheHostMakesTheListPlain()
    {
        OrvProfileSelectorExtension selector;
        HostHarness tool({&selector}, QStringLiteral("Profile Selector"), {});
        tool.runProfile(QStringLiteral("Profile Selector"), {});
        auto* const comboBox = tool.shell.window.findChild<QComboBox*>();
        QCOMPARE(comboBox->currentText(), QStringLiteral("Profile 2"));
        QTest::keyClick(comboBox, Qt::Key_Up); // changes the profile, which takes the tool bar out and puts it in again
        QCOMPARE(tool.manager.getActiveProfile(), tool.manager.findProfile(QStringLiteral("Profile 1")));
        QCOMPARE(textsOf(*comboBox), QStringList({QStringLiteral("Profile 1"), QStringLiteral("Profile 2")}));
        QCOMPARE(comboBox->currentIndex(), 0);
        QVERIFY(comboBox->isVisible());
    }

    void slotIsTheOnlyMetaMethod()
    {
        const QMetaObject& meta = OrvProfileSelectorExtension::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("s_currentIndexChanged(int)"));
        QCOMPARE(meta.superClass(), &OrvExtension::staticMetaObject);
    }
};

QTEST_MAIN(TestOrvProfileSelectorExtension)
#include "tst_OrvProfileSelectorExtension.moc"
