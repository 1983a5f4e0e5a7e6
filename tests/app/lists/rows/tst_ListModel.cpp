#include "app/history/HistoryScene.h"
#include "scene/FieldCatalogue.h"

#include "orvane/app/lists/rows/ListModel.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxMField.h"

#include <QAbstractItemModelTester>
#include <QItemSelectionModel>
#include <QSignalSpy>
#include <QTest>

#include <numeric>

using namespace Qt::StringLiterals;

/// The rows of a list as an item model, while the list changes in every way.
class TestListModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_open = std::make_unique<HistoryScene>();
        m_model = std::make_unique<ListModel>(m_open->services().document());
        m_tester = std::make_unique<QAbstractItemModelTester>(
            m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    }
    void cleanup()
    {
        m_tester.reset();
        m_model.reset();
        m_open.reset();
    }

    void showsTheComponentsOfEachClass_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("titles");
        QTest::addColumn<QStringList>("cells");
        const auto row = [](const char* field, const char* text, const char* titles, const char* cells) {
            QTest::newRow(field) << QString::fromLatin1(field) << QString::fromUtf8(text)
                                 << QString::fromLatin1(titles).split(u' ') << QString::fromUtf8(cells).split(u'|');
        };
        row("mfFloat", "[0.1]", "Value", "0.1");
        row("mfDouble", "[0.1]", "Value", "0.1");
        row("mfInt32", "[-7]", "Value", "-7");
        row("mfUInt32", "[4294967295]", "Value", "4294967295");
        row("mfBool", "[true]", "Value", "true");
        row("mfVec2f", "[1 2.5]", "x y", "1|2.5");
        row("mfVec3f", "[1 nan -inf]", "x y z", "1|nan|-inf");
        row("mfVec4f", "[1 2 3 4]", "x y z w", "1|2|3|4");
        row("mfColor", "[1 0.5 0]", "r g b", "1|0.5|0");
        row("mfColorRGBA", "[1 0.5 0 0.25]", "r g b a", "1|0.5|0|0.25");
        row("mfRotation", "[0 1 0 1.5]", "x y z angle", "0|1|0|1.5");
        row("mfPlane", "[0 1 0 3]", "x y z distance", "0|1|0|3");
        row("mfString", "[\"a \\\"b\\\"\"]", "Value", "a \"b\"");
        row("mfName", "[word]", "Value", "word");
    }
    void showsTheComponentsOfEachClass()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(QStringList, titles);
        QFETCH(QStringList, cells);
        auto* const list = dynamic_cast<NxMField*>(m_open->hand().getField(VbName(field.toLatin1().constData())));
        QVERIFY(list != nullptr);
        QVERIFY(list->set(text.toUtf8().constData()));
        m_model->setList(list);
        QCOMPARE(m_model->rowCount(), 1);
        QCOMPARE(m_model->columnCount(), titles.size());
        for (int column = 0; column < titles.size(); ++column) {
            QCOMPARE(m_model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(), titles[column]);
            QCOMPARE(m_model->index(0, column).data().toString(), cells[column]);
        }
        QCOMPARE(m_model->headerData(0, Qt::Vertical, Qt::DisplayRole).toInt(), 0);
    }

    void everyListClassHasColumns()
    {
        for (const FieldKind& kind : fieldCatalogue()) {
            if (!kind.type.isDerivedFrom(NxMField::getClassTypeId()))
                continue;
            const NxRef<NxFieldContainer> node = kind.makeNode();
            auto& list = dynamic_cast<NxMField&>(fieldOf(node));
            RandomValues random(1);
            do
                kind.setRandom(list, random);
            while (list.getNum() == 0);
            m_model->setList(&list);
            QCOMPARE(m_model->rowCount(), list.getNum());
            QVERIFY(m_model->columnCount() > 0);
            for (int column = 0; column < m_model->columnCount(); ++column)
                QVERIFY(!m_model->index(0, column).data().isNull());
            m_model->setList(nullptr);
        }
    }

    void aColorHasASwatch()
    {
        NxMFColor& list = m_open->hand().mfColor;
        QVERIFY(list.set("[1 0.5 0, nan 2 -1]"));
        m_model->setList(&list);
        QCOMPARE(m_model->index(0, 0).data(ListModel::SwatchRole).value<QColor>().name(), u"#ff8000"_s);
        QCOMPARE(m_model->index(1, 0).data(ListModel::SwatchRole).value<QColor>().name(), u"#00ff00"_s);
        QVERIFY(!m_model->index(0, 1).data(ListModel::SwatchRole).isValid());
    }

    void rowsThatComeAndGoKeepTheOthersSelected()
    {
        fill(20);
        QItemSelectionModel selection(m_model.get());
        selection.select(m_model->index(10, 0), QItemSelectionModel::Select);
        const QPersistentModelIndex kept(m_model->index(15, 0));
        list().deleteValues(3, 4);
        m_open->finish();
        QCOMPARE(m_model->rowCount(), 16);
        QCOMPARE(selection.selectedIndexes().size(), 1);
        QCOMPARE(selection.selectedIndexes().front().row(), 6);
        QCOMPARE(kept.row(), 11);
        list().insertSpace(0, 3);
        list().insertSpace(10, 2);
        m_open->finish();
        QCOMPARE(selection.selectedIndexes().front().row(), 9);
        QCOMPARE(kept.row(), 16);
        QCOMPARE(kept.data().toString(), u"15"_s);
        m_open->services().undo();
        m_open->finish();
        QCOMPARE(selection.selectedIndexes().front().row(), 6);
        m_open->services().undo();
        m_open->finish();
        QCOMPARE(m_model->rowCount(), 20);
        QCOMPARE(kept.row(), 15);
    }

    void randomChangesAreFollowed_data()
    {
        QTest::addColumn<bool>("isMapped");
        QTest::newRow("all rows") << false;
        QTest::newRow("some rows") << true;
    }
    void randomChangesAreFollowed()
    {
        QFETCH(bool, isMapped);
        fill(30);
        RandomValues random(5);
        for (int round = 0; round < 300; ++round) {
            if (isMapped && round % 10 == 0 && list().getNum() > 5)
                m_model->setMap(RowMap({4, 0, 2}, list().getNum()));
            const int count = list().getNum();
            const int start = static_cast<int>(random.below(static_cast<std::size_t>(count) + 1));
            const int changed = static_cast<int>(random.below(6));
            switch (random.below(6)) {
            case 0:
                list().deleteValues(start, changed);
                break;
            case 1:
                list().insertSpace(start, changed);
                break;
            case 2:
                list().setValues(std::vector<int>(random.below(40)));
                break;
            case 3:
                list().set1Value(start, 5);
                break;
            case 4:
                m_open->services().undo();
                break;
            default:
                m_open->services().redo();
            }
            if (random.below(3) > 0)
                m_open->finish();
            if (!isMapped && random.below(3) == 0) {
                m_open->finish();
                QCOMPARE(m_model->rowCount(), list().getNum());
            }
        }
        m_open->finish();
        for (int row = 0; row < m_model->rowCount(); ++row)
            QCOMPARE(m_model->index(row, 0).data().toInt(), list()[m_model->listRow(m_model->index(row, 0))]);
    }

    void aMapShowsItsRowsOnly()
    {
        fill(10);
        m_model->setMap(RowMap({7, 3, 5}, 10));
        QCOMPARE(m_model->rowCount(), 3);
        QCOMPARE(m_model->index(1, 0).data().toString(), u"3"_s);
        QCOMPARE(m_model->headerData(0, Qt::Vertical, Qt::DisplayRole).toInt(), 7);
        // Those of its rows that stay are shown until it gets another map.
        list().deleteValues(4, 2);
        m_open->finish();
        QCOMPARE(m_model->rowCount(), 2);
        QCOMPARE(m_model->index(0, 0).data().toString(), u"7"_s);
        QCOMPARE(m_model->headerData(0, Qt::Vertical, Qt::DisplayRole).toInt(), 5);
        m_model->showAll();
        QCOMPARE(m_model->rowCount(), 8);
    }

    void aChangeOfValuesKeepsTheRows()
    {
        fill(10);
        const QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
        const QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        list().set1Value(3, 99);
        m_open->finish();
        QCOMPARE(m_model->index(3, 0).data().toString(), u"99"_s);
        QCOMPARE(changed.size(), 1);
        list().setValues(std::vector<int>(10, 4));
        m_open->finish();
        QCOMPARE(changed.size(), 2);
        QCOMPARE(reset.size(), 0);
    }

    void aListWithoutADocumentIsFollowed()
    {
        m_open->services().document().close();
        fill(5);
        list().setValues(std::vector<int>(9, 1));
        m_open->finish();
        QCOMPARE(m_model->rowCount(), 9);
    }

    void itHoldsItsNodeAlive()
    {
        fill(3);
        m_model->setList(nullptr);
        const int references = m_open->hand().getRefCount();
        m_model->setList(&list());
        QCOMPARE(m_open->hand().getRefCount(), references + 1);
        m_model->setList(nullptr);
        QCOMPARE(m_open->hand().getRefCount(), references);
        QCOMPARE(m_model->rowCount(), 0);
        QCOMPARE(m_model->columnCount(), 0);
    }

private:
    NxMFInt32& list() { return m_open->hand().mfInt32; }
    void fill(int rows)
    {
        std::vector<int> values(static_cast<std::size_t>(rows));
        std::iota(values.begin(), values.end(), 0);
        list().setValues(std::move(values));
        m_open->finish();
        m_model->setList(&list());
    }

    std::unique_ptr<HistoryScene> m_open;
    std::unique_ptr<ListModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

QTEST_MAIN(TestListModel)
#include "tst_ListModel.moc"
