#include "app/AppScenes.h"
#include "scene/RandomScene.h"
#include "scene/journal/RandomChanges.h"

#include "orvane/app/problems/ProblemModel.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/journal/JournalListener.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QAbstractItemModelTester>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>

#include <chrono>

namespace {

/// What all rows say, in no order. A node that is used in several places may be shown in any of them, so it is its
/// address that counts.
QStringList rowsOf(const ProblemModel& model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        const NxSceneProblem& problem = *model.problem(row);
        texts += QStringLiteral("%1 %2 %3")
                     .arg(quintptr(problem.node.get()))
                     .arg(quintptr(problem.field))
                     .arg(model.index(row, ProblemModel::SentenceColumn).data().toString());
    }
    texts.sort();
    return texts;
}

/// A scene that is checked while it changes, and a model of its problems.
class Checked final : public meridane::JournalListener {
public:
    explicit Checked(const NxRef<NxGroup>& scene)
        : m_scene(scene)
        , m_journal(*scene)
        , m_check(scene)
        , m_tester(&m_model, QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
        while (m_journal.run(std::chrono::hours(1))) { }
        m_journal.record();
        m_journal.addListener(*this);
        m_model.setCheck(&m_check, scene.get());
    }

    ~Checked() { m_journal.removeListener(*this); }

    void aboutToChange(const meridane::PlaceChange& change) noexcept override { m_check.aboutToChange(change); }

    /// Ends the step, and checks all that has changed, in slices.
    void finish()
    {
        m_steps.push_back(m_journal.finishStep());
        m_check.noteStep(true);
        bool goesOn = true;
        while (goesOn) {
            goesOn = m_check.step(std::chrono::seconds(0)) == NxSceneCheck::State::Working;
            m_model.update(m_check.takeChangedLists());
        }
    }

    [[nodiscard]] QString text(int row, int column) const { return m_model.index(row, column).data().toString(); }

    NxRef<NxGroup> m_scene;
    meridane::Journal m_journal;
    NxSceneCheck m_check;
    ProblemModel m_model;
    QAbstractItemModelTester m_tester;
    std::vector<std::optional<meridane::JournalStep>> m_steps;
};

const char* const text = "#mrd 1.0\n"
                         "Mesh \"empty\" {}\n"
                         "Transform \"flat\" { scaleFactor = 0 1 1; Mesh \"m\" { positions = [0 0 nan] } }\n"
                         "Group \"g\" {}\n";

} // namespace

class TestProblemModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aRowHasSentencePlaceAndIdentifier()
    {
        Checked checked(AppScenes::read(text));
        checked.finish();
        QTRY_COMPARE(checked.m_model.rowCount(), 5);
        QCOMPARE(checked.text(0, ProblemModel::SentenceColumn), QStringLiteral("It has no positions to draw."));
        QCOMPARE(checked.text(0, ProblemModel::PlaceColumn), QStringLiteral("/empty.positions"));
        QCOMPARE(checked.text(0, ProblemModel::IdentifierColumn), QStringLiteral("no-positions"));
        const QModelIndex index = checked.m_model.index(0, ProblemModel::SentenceColumn);
        QVERIFY(!index.data(Qt::DecorationRole).value<QIcon>().isNull());
        QVERIFY(index.data(Qt::AccessibleTextRole).toString().startsWith(QStringLiteral("warning: ")));
        QCOMPARE(checked.m_model.line(*checked.m_model.problem(0)),
            QStringLiteral("/empty.positions\twarning\tno-positions\tIt has no positions to draw."));
    }

    void wordsAndSeveritiesFilterTheRows()
    {
        Checked checked(AppScenes::read(text));
        checked.finish();
        QVERIFY(!checked.m_model.hidesRows());
        checked.m_model.setFilter(QStringLiteral("zero SCALE"));
        QTRY_COMPARE(checked.m_model.rowCount(), 1);
        QVERIFY(checked.m_model.hidesRows());
        checked.m_model.setFilter(QStringLiteral("/flat/m"));
        QTRY_COMPARE(checked.m_model.rowCount(), 2);
        checked.m_model.setFilter(QStringLiteral("transform"));
        QTRY_COMPARE(checked.m_model.rowCount(), 1);
        checked.m_model.setFilter({});
        QTRY_COMPARE(checked.m_model.rowCount(), 5);
        checked.m_model.setShown(NxSeverity::Warning, false);
        QTRY_COMPARE(checked.m_model.rowCount(), 2);
        checked.m_model.setShown(NxSeverity::Information, false);
        QTRY_COMPARE(checked.m_model.rowCount(), 1);
        QCOMPARE(checked.text(0, ProblemModel::IdentifierColumn), QStringLiteral("position-not-finite"));
    }

    void aChangeOfOneNodeLeavesTheOtherRowsAlone()
    {
        Checked checked(AppScenes::read(text));
        checked.finish();
        QTRY_COMPARE(checked.m_model.rowCount(), 5);
        const QPersistentModelIndex last = checked.m_model.index(4, 0);
        const QString lastText = last.data().toString();
        QSignalSpy resets(&checked.m_model, &QAbstractItemModel::modelReset);
        auto* const mesh = dynamic_cast<NxMesh*>(checked.m_scene->getChild(0));
        mesh->positions.set("[0 0 0, 1 0 0, 0 1 0]");
        checked.finish();
        QCOMPARE(checked.m_model.rowCount(), 4);
        QVERIFY(last.isValid());
        QCOMPARE(last.data().toString(), lastText);
        mesh->positions.set("[]");
        checked.finish();
        QCOMPARE(checked.m_model.rowCount(), 5);
        QCOMPARE(resets.size(), 0);
    }

    void randomChangesAreFollowed_data()
    {
        QTest::addColumn<unsigned int>("seed");
        for (unsigned int seed = 1; seed <= 12; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void randomChangesAreFollowed()
    {
        QFETCH(const unsigned int, seed);
        Checked checked(makeRandomScene(seed));
        RandomChanges changes(*checked.m_scene, seed);
        for (int round = 0; round < 20; ++round) {
            changes.makeSome();
            checked.finish();
            if (round % 5 == 0)
                checked.m_model.setFilter(round % 10 == 0 ? QString() : QStringLiteral("e"));
        }
        checked.m_model.setFilter({});
        NxSceneCheck again(checked.m_scene);
        again.run();
        ProblemModel expected;
        expected.setCheck(&again, checked.m_scene.get());
        const auto count = [&] {
            return static_cast<int>(again.count(NxSeverity::Error) + again.count(NxSeverity::Warning)
                + again.count(NxSeverity::Information));
        };
        QTRY_COMPARE(expected.rowCount(), count());
        QTRY_COMPARE(checked.m_model.rowCount(), count());
        QCOMPARE(rowsOf(checked.m_model), rowsOf(expected));
        checked.m_model.setCheck(nullptr, nullptr);
        QCOMPARE(checked.m_model.rowCount(), 0);
    }

    void manyChangedListsAtOnceAreFollowed()
    {
        std::string scene = "#mrd 1.0\n";
        for (int i = 0; i < 200; ++i)
            scene += "Mesh {}\n";
        Checked checked(AppScenes::read(scene.c_str()));
        checked.finish();
        QTRY_COMPARE(checked.m_model.rowCount(), 200);
        for (int i = 0; i < 100; ++i)
            dynamic_cast<NxMesh*>(checked.m_scene->getChild(2 * i))->positions.set("[0 0 0, 1 0 0, 0 1 0]");
        checked.finish();
        QTRY_COMPARE(checked.m_model.rowCount(), 100);
        QCOMPARE(checked.m_model.allOfKind(NxProblemKind::NoPositions).size(), std::size_t{100});
    }
};

QTEST_MAIN(TestProblemModel)
#include "tst_ProblemModel.moc"
