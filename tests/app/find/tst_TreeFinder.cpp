#include "app/window/RobotWindowCase.h"

#include "orvane/app/find/FindEdit.h"
#include "orvane/app/find/FindLine.h"
#include "orvane/app/find/TreeFinder.h"
#include "orvane/app/tree/NodeSelection.h"

#include "meridane/scene/nodes/NxTexture.h"

#include <QAction>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

/// The search for nodes over the scene tree, by the keys that a user presses.
class TestTreeFinder : public RobotWindowCase {
    Q_OBJECT

private:
    static constexpr const char* sceneText
        = "#mrd 1.0\n"
          "Group \"robot\" {\n"
          "  Group \"left side\" {\n"
          "    Transform \"upper arm\" { translation = 1 2 3; Mesh \"\u00C1rm\" { } }\n"
          "    PointLight \"lamp\" { intensity = 0.25 }\n"
          "  }\n"
          "  Group \"right side\" { Transform \"lower arm\" { Mesh { } } SpotLight \"spot\" { } }\n"
          "}\n"
          "Texture \"wood\" { filePath = \"wood.png\" }\n"
          "Material \"last\" { }\n";

    TreeFinder& finder() { return *m_window->findChild<TreeFinder*>(); }
    FindLine& line() { return *finder().line(); }
    FindEdit* edit() { return line().edit(); }
    QString count() { return line().findChild<QLabel*>(QStringLiteral("findCount"))->text(); }
    SceneTreePanel& panel() { return *m_window->findChild<SceneTreePanel*>(); }
    QString selected() { return panel().selected().data().toString(); }
    QByteArray selectedField()
    {
        const NxField* const field = m_session->services().getSelectedField();
        return field != nullptr ? QByteArray(field->getContainer()->getFieldName(field).getString()) : QByteArray();
    }

    /// Presses Ctrl+F and types, and waits until all is found.
    void find(const char* text)
    {
        QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget(), edit());
        QTest::keyClick(edit(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(edit(), Qt::Key_Delete);
        QTest::keyClicks(edit(), QString::fromUtf8(text));
        QTRY_VERIFY(finder().finder().isComplete());
    }

    QList<QModelIndex> shownRows()
    {
        QList<QModelIndex> rows;
        for (QModelIndex index = tree()->model()->index(0, 0); index.isValid(); index = tree()->indexBelow(index))
            rows.append(index);
        return rows;
    }
    QStringList names()
    {
        QStringList texts;
        for (const QModelIndex& index : shownRows())
            texts.append(index.data().toString());
        return texts;
    }
    QStringList boldNames()
    {
        QStringList texts;
        for (const QModelIndex& index : shownRows()) {
            const NxNode* const node = panel().model()->node(index);
            if (finder().finder().isHit(*node))
                texts.append(index.data().toString());
        }
        return texts;
    }
    QAction* menuAction(const char* name)
    {
        QMenu* const menu = line().menu();
        Q_EMIT menu->aboutToShow();
        return menu->findChild<QAction*>(QLatin1String(name));
    }
    void answer(const QString& name)
    {
        auto* const dialog = m_window->findChild<QInputDialog*>(QStringLiteral("searchName"));
        QVERIFY(dialog != nullptr);
        auto* const input = dialog->findChild<QLineEdit*>();
        QTest::keyClick(input, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(input, name);
        QTest::keyClick(input, Qt::Key_Return);
        QTRY_VERIFY(m_window->findChild<QInputDialog*>(QStringLiteral("searchName")) == nullptr);
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get(), testPatience));
    }

private Q_SLOTS:
    void init()
    {
        startTool();
        m_robot = filePath("find.mrd");
        writeFile(m_robot, sceneText);
        QCOMPARE(open(m_robot), QString());
    }

    void cleanup() { endTool(); }

    void hitsAreCountedMarkedAndUnfolded()
    {
        tree()->collapseAll();
        const QStringList folded = names();
        QCOMPARE(folded.size(), 3);
        find("arm");
        QCOMPARE(count(), QStringLiteral("3 hits"));
        QCOMPARE(names(),
            QStringList({QStringLiteral("robot"), QStringLiteral("left side"), QStringLiteral("upper arm"),
                QStringLiteral("\u00C1rm"), QStringLiteral("lamp"), QStringLiteral("right side"),
                QStringLiteral("lower arm"), QStringLiteral("spot"), QStringLiteral("wood"), QStringLiteral("last")}));
        QCOMPARE(boldNames(),
            QStringList({QStringLiteral("upper arm"), QStringLiteral("\u00C1rm"), QStringLiteral("lower arm")}));
        // Cleared, all is as it was.
        QTest::keyClick(edit(), Qt::Key_Escape);
        QCOMPARE(edit()->text(), QString());
        QCOMPARE(QApplication::focusWidget(), tree());
        QCOMPARE(names(), folded);
        QVERIFY(boldNames().isEmpty());
        QVERIFY(count().isEmpty());
    }

    void keysGoFromHitToHit()
    {
        find("arm");
        QTest::keyClick(edit(), Qt::Key_Return);
        QCOMPARE(selected(), QStringLiteral("upper arm"));
        QCOMPARE(count(), QStringLiteral("1 of 3"));
        QCOMPARE(QApplication::focusWidget(), edit());
        QTest::keyClick(edit(), Qt::Key_F3);
        QCOMPARE(selected(), QStringLiteral("\u00C1rm"));
        QTest::keyClick(edit(), Qt::Key_F3);
        QCOMPARE(count(), QStringLiteral("3 of 3"));
        QTest::keyClick(edit(), Qt::Key_Return);
        QCOMPARE(count(), QStringLiteral("1 of 3"));
        QVERIFY(line().note().contains(QStringLiteral("other end")));
        QTest::keyClick(edit(), Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(selected(), QStringLiteral("lower arm"));
        QTest::keyClick(edit(), Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(selected(), QStringLiteral("\u00C1rm"));
        // From another place, and from elsewhere in the window.
        QTest::keyClick(edit(), Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), tree());
        QTest::keyClick(tree(), Qt::Key_Down);
        QCOMPARE(selected(), QStringLiteral("lamp"));
        QTest::keyClick(tree(), Qt::Key_F3);
        QCOMPARE(selected(), QStringLiteral("lower arm"));
        auto* const previous = line().findChild<QToolButton*>(QStringLiteral("findPrevious"));
        QTest::mouseClick(previous, Qt::LeftButton, Qt::NoModifier);
        QCOMPARE(selected(), QStringLiteral("\u00C1rm"));
    }

    void allHitsAreSelected()
    {
        find("t:Light or t:Transform");
        QTest::keyClick(edit(), Qt::Key_Return, Qt::AltModifier);
        QCOMPARE(panel().selection().nodes()->size(), std::size_t{4});
        QCOMPARE(count(), QStringLiteral("1 of 4"));
    }

    void whatIsSelectedStaysInSightWhenTheSearchEnds()
    {
        tree()->collapseAll();
        find("spot");
        QTest::keyClick(edit(), Qt::Key_Return);
        QTest::keyClick(edit(), Qt::Key_Escape);
        QCOMPARE(selected(), QStringLiteral("spot"));
        QVERIFY(!names().contains(QStringLiteral("upper arm")));
        QVERIFY(names().contains(QStringLiteral("spot")));
    }

    void eachSearchUnfoldsItsOwnHits()
    {
        tree()->collapseAll();
        find("lamp");
        QVERIFY(names().contains(QStringLiteral("lamp")));
        QVERIFY(!names().contains(QStringLiteral("spot")));
        find("spot");
        QVERIFY(!names().contains(QStringLiteral("lamp")));
        QVERIFY(names().contains(QStringLiteral("spot")));
    }

    void halfTypedTextsAreNoErrors()
    {
        find("arm t:");
        QCOMPARE(count(), QStringLiteral("3 hits"));
        QVERIFY2(line().note().startsWith(QStringLiteral("The name of a class is missing")), qPrintable(line().note()));
        find("arm /lo[");
        QCOMPARE(count(), QStringLiteral("3 hits"));
        QVERIFY2(line().note().contains(QStringLiteral("[ without ]")), qPrintable(line().note()));
        find("\"upper a");
        QCOMPARE(count(), QStringLiteral("1 hit"));
        // What is wrong says where, and leaves the hits.
        QTest::keyClicks(edit(), QStringLiteral("rm\" )"));
        QVERIFY2(
            line().note().startsWith(QStringLiteral("Character 13: An opening bracket")), qPrintable(line().note()));
        QCOMPARE(count(), QStringLiteral("1 hit"));
        find("nothing at all");
        QCOMPARE(count(), QStringLiteral("No hits"));
    }

    void anOpenEditIsWrittenFirst()
    {
        find("lamp");
        QTest::keyClick(edit(), Qt::Key_Return);
        NxField* const field = m_session->services().getSelectedNode()->getField("intensity");
        QVERIFY(field != nullptr);
        const QModelIndex row = fieldRow(field);
        table()->setCurrentIndex(row.siblingAtColumn(FieldTableModel::ValueColumn));
        table()->setFocus();
        QTest::keyClick(table(), Qt::Key_F2);
        QWidget* const editor = QApplication::focusWidget();
        QVERIFY(editor != nullptr && editor != table());
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, QStringLiteral("0.75"));
        QTest::keyClick(editor, Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget(), edit());
        QTest::keyClicks(edit(), QStringLiteral("spot"));
        QTRY_COMPARE(count(), QStringLiteral("1 hit"));
        QTest::keyClick(edit(), Qt::Key_Return);
        QCOMPARE(selected(), QStringLiteral("spot"));
        VbString text;
        field->get(text);
        QCOMPARE(QByteArray(text.toUtf8()), QByteArray("0.75"));
        const NxField* const other = m_session->services().getSelectedNode()->getField("intensity");
        QVERIFY(other != field && other->isDefault());
    }

    void queriesAboutFieldsSelectTheField()
    {
        find("f:intensity <0.5");
        QCOMPARE(count(), QStringLiteral("1 hit"));
        QTest::keyClick(edit(), Qt::Key_Return);
        QCOMPARE(selected(), QStringLiteral("lamp"));
        QCOMPARE(selectedField(), QByteArray("intensity"));
        find("t:Transform =2");
        QTest::keyClick(edit(), Qt::Key_Return);
        QCOMPARE(selected(), QStringLiteral("upper arm"));
        QCOMPARE(selectedField(), QByteArray("translation"));
    }

    void unusedNodesAndMissingFilesAreFound()
    {
        find("unused t:Material");
        QTRY_COMPARE(count(), QStringLiteral("1 hit"));
        QTest::keyClick(edit(), Qt::Key_Return);
        QCOMPARE(selected(), QStringLiteral("last"));
        find("missing");
        QTRY_COMPARE(count(), QStringLiteral("1 hit"));
        QTest::keyClick(edit(), Qt::Key_Return);
        QCOMPARE(selected(), QStringLiteral("wood"));
        QCOMPARE(selectedField(), QByteArray("filePath"));
        // They follow the scene.
        auto& wood = dynamic_cast<NxTexture&>(*m_window->document().scene()->getChild(1));
        writeFile(filePath("stone.png"), "stone");
        wood.filePath.setValue("stone.png");
        QTRY_COMPARE(count(), QStringLiteral("No hits"));
    }

    void hitsFollowTheScene()
    {
        find("arm");
        renameRobot("big arm");
        QTRY_COMPARE(count(), QStringLiteral("4 hits"));
        m_session->services().undo();
        QTRY_COMPARE(count(), QStringLiteral("3 hits"));
        m_session->services().redo();
        QTRY_COMPARE(count(), QStringLiteral("4 hits"));
        m_session->services().undo();
        // Another scene, with the same search.
        writeFile(filePath("other.mrd"), "#mrd 1.0\nGroup \"arm\" { Mesh \"armour\" { } }\n");
        QCOMPARE(open(filePath("other.mrd")), QString());
        QTRY_COMPARE(count(), QStringLiteral("2 hits"));
        QCOMPARE(edit()->text(), QStringLiteral("arm"));
    }

    void manyHitsStayFolded()
    {
        std::string text = "#mrd 1.0\n";
        for (int group = 0; group < 20; ++group) {
            text += "Group \"group\" {\n";
            for (int i = 0; i < 1000; ++i)
                text += "Material \"arm\" { }\n";
            text += "}\n";
        }
        writeFile(filePath("many.mrd"), text.c_str());
        QCOMPARE(open(filePath("many.mrd")), QString());
        find("arm");
        const QString all = QLocale().toString(20000);
        QTRY_COMPARE(count(), all + QStringLiteral(" hits"));
        QVERIFY(shownRows().size() <= TreeFinder::mostRowsUnfolded);
        QVERIFY2(line().note().contains(QStringLiteral("folded")), qPrintable(line().note()));
        // The last one is unfolded when the user goes there.
        QTest::keyClick(edit(), Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(count(), QStringLiteral("%1 of %1").arg(all));
        QCOMPARE(panel().selectedRows(), std::vector<int>({19, 999}));
        QTest::keyClick(edit(), Qt::Key_Escape);
        QVERIFY(shownRows().size() < 1100);
    }

    void searchesAreKept()
    {
        QVERIFY(!menuAction("find.keep")->isEnabled());
        find("t:Light");
        menuAction("find.keep")->trigger();
        answer(QStringLiteral("Lamps"));
        QVERIFY(!menuAction("find.keep")->isEnabled());
        menuAction("find.renameKept")->trigger();
        answer(QStringLiteral("All lights"));
        find("arm");
        // The next run of the tool has it.
        makeWindow();
        QCOMPARE(open(m_robot), QString());
        Q_EMIT line().menu()->aboutToShow();
        QAction* const kept = line().menu()->actions().front();
        QCOMPARE(kept->text(), QStringLiteral("All lights"));
        kept->trigger();
        QCOMPARE(edit()->text(), QStringLiteral("t:Light"));
        QTRY_COMPARE(count(), QStringLiteral("2 hits"));
        menuAction("find.deleteKept")->trigger();
        QVERIFY(!menuAction("find.deleteKept")->isEnabled());
        QVERIFY(menuAction("find.keep")->isEnabled());
    }

    void ctrlFInAPaneWithItsOwnSearchIsLeftToIt()
    {
        QAction own(m_window.get());
        own.setShortcut(QKeySequence::Find);
        own.setShortcutContext(Qt::WidgetWithChildrenShortcut);
        table()->addAction(&own);
        clickRow(tree(), tree()->model()->index(0, 0));
        QSignalSpy triggered(&own, &QAction::triggered);
        table()->setFocus();
        QTest::keyClick(table(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(triggered.size(), 1);
        QCOMPARE(QApplication::focusWidget(), table());
        tree()->setFocus();
        QTest::keyClick(tree(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget(), edit());
    }
};

QTEST_MAIN(TestTreeFinder)
#include "tst_TreeFinder.moc"
