#include "app/fields/FieldPanelCase.h"

#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"

#include <QLabel>
#include <QSignalSpy>
#include <QToolButton>

using namespace Qt::StringLiterals;
using Mark = FieldMark;

/// The panel of fields, used by mouse and keys.
class TestFieldPanel : public FieldPanelCase {
    Q_OBJECT

private:
    void openLights() { open({new NxSpotLight, new NxPointLight, new NxSpotLight}); }

private Q_SLOTS:
    void initTestCase()
    {
        qRegisterMetaType<NxField*>();
        qRegisterMetaType<NxMField*>();
    }
    void cleanup() { close(); }

    void aClickOnTheArrowResetsTheField()
    {
        openLights();
        QVERIFY(field("intensity").set("0.5"));
        ManyNodes::finish();
        const int steps = m_many->services().undoDepth();
        clickMark(Mark::Reset, "intensity");
        QCOMPARE(text("intensity"), std::string("1"));
        QCOMPARE(m_many->services().undoDepth(), steps + 1);
        QCOMPARE(m_many->labels().back(), u"Reset SpotLight.intensity"_s);
        m_many->services().undo();
        QCOMPARE(text("intensity"), std::string("0.5"));
        m_many->services().redo();
        // There is no arrow in a row with its default.
        clickMark(Mark::Reset, "intensity");
        QCOMPARE(m_many->services().undoDepth(), steps + 1);
    }

    void aNodeWithoutFieldsSaysSo()
    {
        openLights();
        const NxRef<NxGroup> group(new NxGroup);
        m_panel->setNode(group.get());
        const auto* const label = m_panel->findChild<QLabel*>(u"noFieldFound"_s);
        QVERIFY(label->isVisible());
        QCOMPARE(label->text(), u"Nodes of this class have no fields."_s);
    }

    void aClickOnTheSignIgnoresTheFieldAndUsesItAgain()
    {
        openLights();
        clickMark(Mark::Ignore, "intensity");
        QVERIFY(field("intensity").isIgnored());
        clickMark(Mark::Ignore, "intensity");
        QVERIFY(!field("intensity").isIgnored());
        QCOMPARE(m_many->services().undoDepth(), 2);
    }

    void aClickOnTheStarPutsTheFieldOnTopOfItsClass()
    {
        openLights();
        click(row("intensity"));
        clickMark(Mark::Favorite, "intensity");
        QCOMPARE(groups().front(), u"Favorites"_s);
        QCOMPARE(m_panel->currentField(), &field("intensity"));
        // It is a favourite of every light, and in the next run.
        m_panel->setNode((*m_many->nodes())[1].get());
        QCOMPARE(groups().front(), u"Favorites"_s);
        show();
        m_panel->setNode((*m_many->nodes())[0].get());
        QCOMPARE(groups().front(), u"Favorites"_s);
        clickMark(Mark::Favorite, "intensity");
        QCOMPARE(groups().front(), u"SpotLight"_s);
        QCOMPARE(m_many->services().undoDepth(), 0);
    }

    void groupsStayFolded()
    {
        openLights();
        const QModelIndex group = row("intensity").parent();
        QVERIFY(view()->isExpanded(group));
        click(group);
        press(Qt::Key_Left);
        QVERIFY(!view()->isExpanded(row("intensity").parent()));
        m_panel->setNode((*m_many->nodes())[1].get());
        QVERIFY(!view()->isExpanded(model()->index(1, 0)));
        show();
        m_panel->setNode((*m_many->nodes())[0].get());
        QVERIFY(!view()->isExpanded(row("intensity").parent()));
        // What is looked for is shown.
        QTest::keyClicks(m_panel->filterBar()->line(), u"intens"_s);
        QVERIFY(view()->isExpanded(row("intensity").parent()));
        QTest::keyClick(m_panel->filterBar()->line(), Qt::Key_Escape);
        QVERIFY(!view()->isExpanded(row("intensity").parent()));
        click(row("intensity").parent());
        press(Qt::Key_Return);
        QVERIFY(view()->isExpanded(row("intensity").parent()));
    }

    void widthsOfColumnsAreKept()
    {
        openLights();
        view()->header()->resizeSection(FieldTableModel::NameColumn, 177);
        show();
        QCOMPARE(view()->columnWidth(FieldTableModel::NameColumn), 177);
        QVERIFY(view()->isColumnHidden(FieldTableModel::TypeColumn));
    }

    void theLongestNameIsPaintedWhole()
    {
        open({new NxMesh});
        field("textureCoordinates").set("[0 0]"); // changed, so in bold
        m_panel->resize(410, 700);
        QCoreApplication::processEvents();
        const int usual = view()->columnWidth(FieldTableModel::NameColumn);
        QVERIFY(view()->columnWidth(FieldTableModel::ValueColumn) >= usual);
        const QRect cell = view()->visualRect(row("textureCoordinates"));
        const QImage painted = view()->viewport()->grab(cell).toImage();
        view()->header()->resizeSection(FieldTableModel::NameColumn, 300);
        QCOMPARE(view()->viewport()->grab(cell).toImage(), painted);
        view()->header()->resizeSection(FieldTableModel::NameColumn, usual * 3 / 4);
        QVERIFY(view()->viewport()->grab(cell).toImage() != painted);
    }

    void longNamesLeaveHalfOfTheTableToTheValues()
    {
        open({new NxMesh});
        QFont large = m_panel->font();
        large.setPointSizeF(18);
        m_panel->view()->setFont(large);
        m_panel->resize(500, 700);
        QCoreApplication::processEvents();
        QVERIFY(view()->columnWidth(FieldTableModel::ValueColumn) >= view()->columnWidth(FieldTableModel::NameColumn));
        const int shown = view()->columnWidth(FieldTableModel::NameColumn);
        // What the user has chosen stays.
        view()->header()->resizeSection(FieldTableModel::NameColumn, 350);
        m_panel->resize(520, 700);
        QCoreApplication::processEvents();
        QCOMPARE(view()->columnWidth(FieldTableModel::NameColumn), 350);
        QVERIFY(shown < 350);
    }

    void theFilterKeepsTheFieldThatIsChosen()
    {
        openLights();
        click(row("intensity"));
        const QSignalSpy chosen(m_panel.get(), &FieldPanel::fieldChosen);
        QTest::keyClicks(m_panel->filterBar()->line(), u"inte"_s);
        QCOMPARE(model()->shownCount(), 1);
        QCOMPARE(m_panel->currentField(), &field("intensity"));
        QTest::keyClick(m_panel->filterBar()->line(), Qt::Key_Down);
        QVERIFY(view()->hasFocus());
        QVERIFY(chosen.isEmpty());
        QTest::keyClicks(m_panel->filterBar()->line(), u"zz"_s);
        QVERIFY(m_panel->findChild<QLabel*>(u"noFieldFound"_s)->isVisible());
        QTest::keyClick(m_panel->filterBar()->line(), Qt::Key_Escape);
        QVERIFY(!m_panel->findChild<QLabel*>(u"noFieldFound"_s)->isVisible());
    }

    void aButtonShowsOnlyChangedFields()
    {
        openLights();
        QVERIFY(field("intensity").set("0.5"));
        auto* const button = m_panel->findChild<QToolButton*>(u"changedFieldsOnly"_s);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(model()->shownCount(), 1);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(model()->shownCount(), static_cast<int>((*m_many->nodes())[0]->getFields().size()));
    }

    void theHeadingNamesTheNodes()
    {
        openLights();
        auto* const heading = m_panel->findChild<QLabel*>(u"fieldHeading"_s);
        QCOMPARE(heading->text(), u"SpotLight"_s);
        (*m_many->nodes())[0]->setName("<b>lamp</b>");
        showAll();
        QCOMPARE(heading->text(), u"3 nodes, the last one: <b>lamp</b> — SpotLight"_s);
        m_panel->setNode(nullptr);
        QVERIFY(!view()->isVisible());
    }

    void aRowOfSeveralNodesIsResetAsOne()
    {
        openLights();
        for (std::size_t node = 0; node < 3; ++node)
            QVERIFY(field("intensity", node).set(("0." + std::to_string(node + 1)).c_str()));
        ManyNodes::finish();
        showAll();
        QCOMPARE(row("intensity", FieldTableModel::ValueColumn).data().toString(), FieldRow::mixedText());
        const int steps = m_many->services().undoDepth();
        clickMark(Mark::Reset, "intensity");
        QCOMPARE(text("intensity", 2), std::string("1"));
        QCOMPARE(m_many->services().undoDepth(), steps + 1);
        QCOMPARE(m_many->labels().back(), u"Reset intensity of 3 nodes"_s);
        QTRY_COMPARE(row("intensity", FieldTableModel::ValueColumn).data().toString(), u"1"_s);
        m_many->services().undo();
        QCOMPARE(text("intensity", 1), std::string("0.2"));
    }

    void aListIsOpenedByADoubleClickAndByReturn()
    {
        open({new NxFieldGallery});
        const QSignalSpy requested(m_panel.get(), &FieldPanel::listRequested);
        const QModelIndex list = row("mfVec3f", FieldTableModel::ValueColumn);
        view()->scrollTo(list);
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, view()->visualRect(list).center());
        QVERIFY(requested.isEmpty());
        QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, view()->visualRect(list).center());
        QCOMPARE(requested.size(), 1);
        press(Qt::Key_Return);
        QCOMPARE(requested.size(), 2);
        QCOMPARE(requested.back().front().value<NxMField*>(), dynamic_cast<NxMField*>(&field("mfVec3f")));
    }

    void controlAndReturnAskForTheEditorOfTheDock()
    {
        openLights();
        click(row("intensity"));
        const QSignalSpy requested(m_panel.get(), &FieldPanel::editorRequested);
        press(Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(requested.size(), 1);
    }
};

QTEST_MAIN(TestFieldPanel)
#include "tst_FieldPanel.moc"
