#include "Patience.h"
#include "app/AppScenes.h"

#include "orvane/app/compare/DifferenceModel.h"
#include "orvane/app/compare/DifferencePanel.h"
#include "orvane/app/files/JobBar.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/compare/NxSceneComparison.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxComplexity.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const char* const oldScene = "#mrd 1.0\n"
                             "Group \"robot\" {\n"
                             "  Transform \"arm\" { translation = 1 2 3 }\n"
                             "  Material { ignored shininess = 0.5 }\n"
                             "  Mesh \"leg\" {}\n"
                             "}\n";
const char* const newScene = "#mrd 1.0\n"
                             "Group \"robot\" {\n"
                             "  Transform \"arm\" { translation = 1 2 4 }\n"
                             "  Material { shininess = 0.5 }\n"
                             "  PointLight \"<b>\\n\" {}\n"
                             "}\n";

NxSceneDifferences compare(const NxRef<NxGroup>& left, const NxRef<NxGroup>& right)
{
    NxSceneComparison comparison(left, right);
    comparison.run();
    return comparison.takeDifferences();
}

} // namespace

/// The list of differences: what it shows, and what the user can do with it.
class TestDifferencePanel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(m_window.get());
        auto* jobBar = new JobBar(m_window.get());
        m_panel = new DifferencePanel(*jobBar, m_window.get());
        layout->addWidget(m_panel);
        layout->addWidget(jobBar);
        m_window->resize(900, 400);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get(), testPatience));
        m_scene = AppScenes::read(oldScene);
        m_panel->showDifferences(compare(m_scene, AppScenes::read(newScene)), QStringLiteral("new.mrd"));
    }

    void cleanup()
    {
        m_window.reset();
        m_scene = NxRef<NxGroup>();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void differencesAreShownSideBySide()
    {
        const QAbstractItemModelTester tester(model());
        QCOMPARE(rows(),
            QStringList({QStringLiteral("/robot/\"<b>\\n\"|added||PointLight"),
                QStringLiteral("/robot/arm|translation|1 2 3|1 2 4"),
                QStringLiteral("/robot/Material[0]|shininess, ignored|true|false"),
                QStringLiteral("/robot/leg|removed|Mesh|")}));
        QVERIFY(!model()->index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
        QVERIFY(!Qt::mightBeRichText(model()->index(1, 0).data(Qt::ToolTipRole).toString()));
        QVERIFY(model()->index(0, 0).data(Qt::ToolTipRole).toString().contains(QStringLiteral("&lt;b&gt;")));
        QCOMPARE(heading(), QStringLiteral("4 differences from new.mrd: 1 added, 1 removed, 1 value, 1 ignored"));
        QVERIFY(m_panel->view()->isVisible());
    }

    void equalScenesAreSaidToBeEqual()
    {
        m_panel->showDifferences(compare(m_scene, AppScenes::read(oldScene)), QStringLiteral("<i>same.mrd"));
        QVERIFY(!m_panel->view()->isVisible());
        const auto* const text = m_panel->findChild<QLabel*>(QStringLiteral("comparisonText"));
        QVERIFY(text->isVisible());
        QCOMPARE(text->text(), QStringLiteral("No differences: the scene and <i>same.mrd are equal."));
        QCOMPARE(text->textFormat(), Qt::PlainText);
        QCOMPARE(heading(), QStringLiteral("No differences from <i>same.mrd"));
        QVERIFY(!filter()->isEnabled());
    }

    void aTypedFilterShowsTheRowsWithAllWords_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("expected");
        QTest::newRow("part of a path") << QStringLiteral("ARM") << 1;
        QTest::newRow("field") << QStringLiteral("shin") << 1;
        QTest::newRow("kind") << QStringLiteral("removed") << 1;
        QTest::newRow("value") << QStringLiteral("1 2 4") << 1;
        QTest::newRow("several words") << QStringLiteral("false robot") << 1;
        QTest::newRow("one of two") << QStringLiteral("shin or removed") << 2;
        QTest::newRow("without a word") << QStringLiteral("robot not removed") << 3;
        QTest::newRow("text with blanks") << QStringLiteral("\"1 2 4\"") << 1;
        QTest::newRow("regular expression") << QStringLiteral("/arm.*trans/") << 1;
        QTest::newRow("path") << QStringLiteral("/robot/arm") << 1;
        QTest::newRow("all") << QStringLiteral("robot") << 4;
        QTest::newRow("none") << QStringLiteral("wheel") << 0;
        QTest::newRow("blanks") << QStringLiteral("  ") << 4;
    }

    void aTypedFilterShowsTheRowsWithAllWords()
    {
        QFETCH(const QString, typed);
        QFETCH(const int, expected);
        const QAbstractItemModelTester tester(model());
        QSignalSpy filtered(model(), &DifferenceModel::filtered);
        QTest::keyClicks(filter(), typed);
        QTRY_VERIFY(!filtered.isEmpty() && model()->rowCount() == expected);
        QTRY_VERIFY(heading().startsWith(QStringLiteral("%1 of 4 differences").arg(expected)));
        QTest::keyClick(filter(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(filter(), Qt::Key_Delete);
        QTRY_COMPARE(model()->rowCount(), 4);
        QVERIFY(heading().startsWith(QStringLiteral("4 differences")));
    }

    void eachChoiceOfARowIsReportedOnce()
    {
        QList<int> chosen;
        connect(m_panel, &DifferencePanel::chosen, m_panel, [&](const NxSceneDifference& difference) {
            const auto& list = m_panel->model()->differences().list();
            const auto isChosen = [&](const NxSceneDifference& listed) { return &listed == &difference; };
            chosen.append(static_cast<int>(std::find_if(list.begin(), list.end(), isChosen) - list.begin()));
        });
        m_panel->view()->setFocus();
        QCOMPARE(chosen, QList<int>());
        click(1);
        QCOMPARE(chosen, QList<int>({1}));
        click(1); // again, after something else may have been selected
        QCOMPARE(chosen, QList<int>({1, 1}));
        QTest::keyClick(m_panel->view(), Qt::Key_Down);
        QCOMPARE(chosen, QList<int>({1, 1, 2}));
        // Several rows are selected to be copied.
        QTest::keyClick(m_panel->view(), Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(chosen.size(), 3);
        filter()->setText(QStringLiteral("leg"));
        QTRY_COMPARE(model()->rowCount(), 1);
        click(0);
        QCOMPARE(chosen.back(), 3);
    }

    void rowsAreCopiedAsLines()
    {
        click(1);
        QTest::keyClick(m_panel->view(), Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(m_panel->view(), Qt::Key_C, Qt::ControlModifier);
        const QString lines = QStringLiteral("value\t/robot/arm.translation\t1 2 3\t1 2 4\n"
                                             "ignored\t/robot/Material[0].shininess\ttrue\tfalse\n");
        QTRY_COMPARE(QApplication::clipboard()->text(), lines);
        m_panel->findChild<QAction*>(QStringLiteral("comparison.copyAll"))->trigger();
        const QString added = QStringLiteral("added\t/robot/\"<b>\\n\"\t\tPointLight\n");
        QTRY_COMPARE(
            QApplication::clipboard()->text(), added + lines + QStringLiteral("removed\t/robot/leg\tMesh\t\n"));
    }

    void theRowOfTheChosenFieldFollowsIt()
    {
        click(1);
        NxField* const field = m_scene->getChildren()[0]->getChildren()[0]->getField(VbName("translation"));
        QSignalSpy changed(model(), &DifferenceModel::dataChanged);
        QVERIFY(field->set("1 2 4"));
        QVERIFY(changed.isEmpty());
        AppScenes::runSensors();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.front().front().toModelIndex().row(), 1);
        QCOMPARE(rows().at(1), QStringLiteral("/robot/arm|translation|1 2 4|1 2 4"));
        // It isn't watched any more once another result is shown.
        m_panel->clear();
        QVERIFY(field->set("5 6 7"));
        AppScenes::runSensors();
        QCOMPARE(changed.size(), 1);
    }

    void theSceneMayBeClosedBeforeTheResult()
    {
        m_scene = NxRef<NxGroup>();
        QCOMPARE(rows().size(), 4);
        click(1);
        QCOMPARE(rows().at(1), QStringLiteral("/robot/arm|translation|1 2 3|1 2 4"));
    }

    void manyRowsAreFilteredBitByBit()
    {
        constexpr int count = 20'000;
        NxRef<NxGroup> scenes[2];
        for (NxRef<NxGroup>& scene : scenes) {
            scene = new NxGroup;
            for (int i = 0; i < count; ++i) {
                auto* const node = new NxComplexity;
                node->value.setValue(&scene == scenes ? 0 : static_cast<float>(i + 1));
                scene->addChild(node);
            }
        }
        m_panel->showDifferences(compare(scenes[0], scenes[1]), QStringLiteral("large.mrd"));
        QCOMPARE(model()->rowCount(), count);
        QSignalSpy filtered(model(), &DifferenceModel::filtered);
        filter()->setText(QStringLiteral("Complexity[19999]"));
        QCOMPARE(model()->rowCount(), 0);
        QVERIFY(filtered.isEmpty());
        QTRY_COMPARE(filtered.size(), 1);
        QCOMPARE(rows(), QStringList(QStringLiteral("/Complexity[19999]|value|0|20000")));
        // A result that comes meanwhile ends the filter.
        filter()->setText(QStringLiteral("Complexity[1"));
        m_panel->showDifferences({}, QStringLiteral("equal.mrd"));
        QCoreApplication::processEvents();
        QCOMPARE(model()->rowCount(), 0);
        QCOMPARE(filter()->text(), QString());
    }

    void comparingAgainIsAskedForWithItsButton()
    {
        QSignalSpy again(m_panel, &DifferencePanel::againRequested);
        auto* const button = m_panel->findChild<QToolButton*>(QStringLiteral("compareAgain"));
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(again.size(), 1);
        m_panel->clear();
        QVERIFY(!button->isEnabled());
    }

private:
    [[nodiscard]] DifferenceModel* model() const { return m_panel->model(); }
    [[nodiscard]] QLineEdit* filter() const { return m_panel->findChild<QLineEdit*>(); }
    [[nodiscard]] QString heading() const
    {
        return m_panel->findChild<QLabel*>(QStringLiteral("comparisonHeading"))->text();
    }

    [[nodiscard]] QStringList rows() const
    {
        QStringList result;
        for (int row = 0; row < model()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < DifferenceModel::ColumnCount; ++column)
                cells += model()->index(row, column).data().toString();
            result += cells.join(u'|');
        }
        return result;
    }

    void click(int row)
    {
        QTableView* const view = m_panel->view();
        const QModelIndex index = model()->index(row, DifferenceModel::SubjectColumn);
        view->scrollTo(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(index).center());
    }

    std::unique_ptr<QWidget> m_window;
    DifferencePanel* m_panel = nullptr;
    NxRef<NxGroup> m_scene;
};

QTEST_MAIN(TestDifferencePanel)
#include "tst_DifferencePanel.moc"
