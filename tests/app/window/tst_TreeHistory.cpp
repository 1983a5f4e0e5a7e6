#include "app/window/RobotWindowCase.h"
#include "extender/HistoryWalk.h"
#include "plugin/Monkey.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/history/HistoryPanel.h"
#include "orvane/app/scene/SetFieldCommand.h"
#include "orvane/app/window/HistoryDock.h"
#include "orvane/extender/OrvStepList.h"

#include "meridane/scene/fields/NxField.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QSlider>
#include <QTableView>
#include <QToolButton>

#include <optional>
#include <random>

namespace {

constexpr int usualSteps = 400;

int numberFrom(const char* variable, int usual)
{
    bool isSet = false;
    const int wanted = qEnvironmentVariableIntValue(variable, &isSet);
    return isSet ? wanted : usual;
}

} // namespace

/// The scene tree and the history dock at random, by real events: nodes are selected, unfolded, renamed, deleted, added
/// and brought back, and fields are set in between, by the editors and without them. The history must be exact.
/// MONKEY_STEPS sets the number of actions, MONKEY_SEED the seed.
class TestTreeHistory : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    [[nodiscard]] OrvServices& services() { return m_session->services(); }
    [[nodiscard]] HistoryPanel* panel() { return m_window->findChild<HistoryPanel*>(); }

    void act()
    {
        // An open popup holds mouse and keyboard, so a user can do nothing else.
        if (QApplication::activePopupWidget() != nullptr) {
            m_monkey->poke(m_window.get());
            return;
        }
        const int what = below(150);
        if (what < 25)
            clickTree();
        else if (what < 40)
            moveInTree();
        else if (what < 52)
            rename();
        else if (what < 60)
            QTest::keyClick(tree(), Qt::Key_Delete);
        else if (what < 65)
            import();
        else if (what < 75)
            setField();
        else if (what < 85)
            QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        else if (what < 92)
            QTest::keyClick(m_window.get(), Qt::Key_Y, Qt::ControlModifier);
        else if (what < 100)
            useDock();
        else
            useEditor();
    }

    // The editors of the default plug-in write in many ways, also as they show a field.
    void useEditor()
    {
        const NxFieldContainer* const node = m_session->services().getSelectedNode();
        const int fields = table()->isVisible() && node != nullptr
            ? static_cast<const FieldTableModel*>(table()->model())->shownCount()
            : 0;
        if (fields > 0 && below(3) == 0) {
            clickRow(table(), fieldRow(below(fields)));
            return;
        }
        for (QDockWidget* const dock : m_window->findChildren<QDockWidget*>()) {
            if (dock->windowTitle() == QLatin1String("Field Editor") && dock->isVisible()) {
                m_monkey->poke(dock->widget());
                ++m_pokes;
            }
        }
    }

    void clickTree()
    {
        const int height = std::max(tree()->viewport()->height(), 1);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, QPoint(below(120), below(height)));
    }

    void moveInTree()
    {
        constexpr Qt::Key keys[]
            = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Asterisk, Qt::Key_Home};
        QTest::keyClick(tree(), keys[below(static_cast<int>(std::size(keys)))]);
    }

    void rename()
    {
        static const QStringList names{QStringLiteral("a"), QStringLiteral("robot"), QStringLiteral("x y"), QString()};
        tree()->setFocus();
        QTest::keyClick(tree(), Qt::Key_F2);
        auto* const line = tree()->viewport()->findChild<QLineEdit*>();
        if (line == nullptr)
            return;
        const QString& name = names.at(below(4));
        QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
        if (name.isEmpty())
            QTest::keyClick(line, Qt::Key_Delete);
        else
            QTest::keyClicks(line, name);
        constexpr Qt::Key ends[] = {Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab};
        QTest::keyClick(line, ends[below(4)]);
    }

    void import()
    {
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        m_window->findChild<FileFlow*>()->import(filePath("part.mrd"));
        if (settled.isEmpty())
            QVERIFY(settled.wait(testPatience));
        ++m_imports;
    }

    void setField()
    {
        NxFieldContainer* const node = services().getSelectedNode();
        if (node == nullptr || node->getFields().empty())
            return;
        const auto fields = node->getFields();
        NxField* const field = fields[static_cast<std::size_t>(below(static_cast<int>(fields.size())))];
        static const char* const texts[] = {"1", "0.5 0 1", "[1, 2, 3]", "\"x\"", "[]", "0 0 1 2", "true"};
        const char* const text = texts[below(static_cast<int>(std::size(texts)))];
        if (below(2) == 0)
            services().pushCommand(new SetFieldCommand(field, VbString(text)));
        else
            field->set(text); // without a command
    }

    void useDock()
    {
        QTableView* const view = panel()->view();
        const int what = below(10);
        const QPoint place(60, below(std::max(view->viewport()->height(), 1)));
        if (what < 4) {
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
        } else if (what < 7) {
            QTest::mouseClick(view->viewport(), Qt::RightButton, {}, place);
            QTest::mouseClick(panel()->findChild<QToolButton*>(QStringLiteral("putValueBack")), Qt::LeftButton);
        } else {
            constexpr Qt::Key keys[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_PageUp, Qt::Key_PageDown};
            QTest::keyClick(panel()->findChild<QSlider*>(), keys[below(4)]);
        }
        ++m_dockUses;
    }

    std::mt19937 m_random;
    std::unique_ptr<Monkey> m_monkey;
    int m_pokes = 0;
    int m_imports = 0;
    int m_dockUses = 0;

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        m_session->loadPlugins(OrvPluginsManager::findPlugins(orvane::pluginFolders()));
        m_session->loadProfiles({QStringLiteral(ORVANE_PROFILES)});
        QVERIFY(m_session->activateProfile({}));
        m_window->resize(1200, 800);
        writeFile(m_robot, QByteArray(AppScenes::robotText) + "FieldGallery \"gallery\" {}\n");
        writeFile(filePath("part.mrd"), "#mrd 1.0\nGroup \"bolts\" {\n  Mesh \"bolt\" {}\n  FieldGallery {}\n}\n");
    }
    void cleanup() { endTool(); }

    void theHistoryIsExactWhateverIsDone_data()
    {
        QTest::addColumn<int>("seed");
        const int wanted = numberFrom("MONKEY_SEED", -1);
        for (const int seed : wanted >= 0 ? std::vector{wanted} : std::vector{1, 2})
            QTest::addRow("seed %d", seed) << seed;
    }

    void theHistoryIsExactWhateverIsDone()
    {
        QFETCH(const int, seed);
        const int steps = numberFrom("MONKEY_STEPS", usualSteps);
        m_random.seed(static_cast<unsigned>(seed));
        m_monkey = std::make_unique<Monkey>(static_cast<unsigned>(seed));
        QCOMPARE(open(m_robot), QString());
        QTest::keyClick(m_window.get(), Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(panel() != nullptr);
        HistoryWalk walk(services(), static_cast<unsigned>(seed));
        for (int step = 1; step <= steps; ++step) {
            act();
            HistoryWalk::settle();
            walk.check();
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(QStringLiteral("That was step %1.").arg(step)));
        }
        if (QWidget* const popup = QApplication::activePopupWidget())
            popup->close();
        services().selectField(nullptr);
        walk.walk();
        m_monkey.reset();
        qInfo("The history has %d steps; %d imports, %d uses of the dock, %d of editors.", walk.steps(), m_imports,
            m_dockUses, m_pokes);
        QVERIFY(walk.steps() > 0 && m_imports > 0 && m_dockUses > 0 && m_pokes > 0);
    }
};

QTEST_MAIN(TestTreeHistory)
#include "tst_TreeHistory.moc"
