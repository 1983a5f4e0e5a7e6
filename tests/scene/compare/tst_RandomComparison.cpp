#include "scene/FieldCatalogue.h"
#include "scene/RandomScene.h"
#include "scene/compare/Differences.h"
#include "scene/compare/SceneEdits.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/nodes/NodeTraversal.h"

#include <QTest>

#include <algorithm>
#include <functional>
#include <map>

namespace {

using Kind = NxSceneDifference::Kind;

constexpr unsigned int scenes = 300;

NxRef<NxGroup> copyOf(NxGroup* scene)
{
    return SceneText::read(NxSceneWriter::toText(scene));
}

/// The kind, path and field of each difference, sorted.
QStringList shortLines(const NxSceneDifferences& differences)
{
    QStringList result;
    for (const NxSceneDifference& difference : differences.list())
        result += Differences::line(differences, difference).section(QStringLiteral(": "), 0, 0);
    result.sort();
    return result;
}

/// What a kind of difference is with the scenes exchanged.
Kind reverse(Kind kind)
{
    switch (kind) {
    case Kind::Added:
        return Kind::Removed;
    case Kind::Removed:
        return Kind::Added;
    case Kind::UseAdded:
        return Kind::UseRemoved;
    case Kind::UseRemoved:
        return Kind::UseAdded;
    default:
        return kind;
    }
}

std::map<Kind, int> countKinds(const NxSceneDifferences& differences, const std::function<Kind(Kind)>& map)
{
    std::map<Kind, int> counts;
    for (const NxSceneDifference& difference : differences.list())
        ++counts[map(difference.kind)];
    return counts;
}

Kind same(Kind kind)
{
    return kind;
}

} // namespace

// Random edits of random scenes: exactly what was edited is reported.
class TestRandomComparison : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void editsAreReportedAndNothingElse()
    {
        for (unsigned int seed = 0; seed < scenes; ++seed) {
            SceneEdits edits(seed);
            const NxRef<NxGroup> before = copyOf(edits.scene());
            edits.edit(1 + static_cast<int>(seed % 15));
            const NxRef<NxGroup> after = copyOf(edits.scene());
            const NxSceneDifferences found = Differences::of(before, after);
            const QString text = shortLines(found).join(u'\n');
            QVERIFY2(text == edits.expected().join(u'\n'),
                qPrintable(
                    QStringLiteral("scene %1:\n%2\nexpected:\n%3").arg(seed).arg(text, edits.expected().join(u'\n'))));
            QCOMPARE(countKinds(Differences::of(after, before), same), countKinds(found, reverse));
        }
    }

    void aSceneThatWasWrittenAndReadIsEqual()
    {
        for (unsigned int seed = 0; seed < scenes; ++seed) {
            const NxRef<NxGroup> scene = makeRandomScene(seed);
            const NxRef<NxGroup> copy = copyOf(scene.get());
            QVERIFY(findDifference(*scene, *copy).empty());
            QCOMPARE(Differences::lines(scene, copy), QStringList());
        }
    }

    void oneChangedFieldIsOneDifference()
    {
        int tried = 0;
        for (unsigned int seed = 0; seed < scenes; ++seed) {
            const NxRef<NxGroup> scene = makeRandomScene(seed);
            const NxRef<NxGroup> copy = copyOf(scene.get());
            RandomValues random(seed);
            std::vector<NxField*> fields;
            meridane::NodeTraversal nodes(*copy);
            while (NxNode* const node = nodes.next()) {
                for (NxField* const field : node->getFields())
                    fields.push_back(field);
            }
            if (fields.empty())
                continue;
            NxField* const field = fields[random.below(fields.size())];
            VbString before;
            field->get(before);
            setRandom(*field, random);
            VbString after;
            field->get(after);
            const NxSceneDifferences found = Differences::of(scene, copy);
            if (before == after) {
                QCOMPARE(Differences::lines(found), QStringList());
                continue;
            }
            ++tried;
            QVERIFY2(found.list().size() == 1,
                qPrintable(QStringLiteral("scene %1:\n%2").arg(seed).arg(Differences::lines(found).join(u'\n'))));
            const NxSceneDifference& difference = found.list().front();
            QCOMPARE(difference.kind, Kind::Value);
            QCOMPARE(found.field(difference, NxSceneDifferences::Side::Right), field);
            QCOMPARE(found.text(difference, NxSceneDifferences::Side::Left), std::string(before.view()));
            QCOMPARE(found.text(difference, NxSceneDifferences::Side::Right), std::string(after.view()));
            // The path leads to the node.
            const NxScenePath::Target target = NxScenePath::find(copy.get(), found.node(difference).rightPath);
            QCOMPARE(target.node(), static_cast<NxNode*>(field->getContainer()));
        }
        QVERIFY(tried > 100);
    }

    void differentScenesAreComparedBothWays()
    {
        for (unsigned int seed = 0; seed < scenes; ++seed) {
            const NxRef<NxGroup> left = makeRandomScene(seed);
            const NxRef<NxGroup> right = makeRandomScene(seed + 1);
            const NxSceneDifferences there = Differences::of(left, right);
            const NxSceneDifferences back = Differences::of(right, left);
            QVERIFY(!there.list().empty() || findDifference(*left, *right).empty());
            QCOMPARE(there.list().empty(), back.list().empty());
            for (const NxSceneDifference& difference : there.list())
                checkPaths(there, difference, left.get(), right.get());
        }
    }

private:
    static void setRandom(NxField& field, RandomValues& random)
    {
        for (const FieldKind& kind : fieldCatalogue()) {
            if (kind.type == field.getTypeId())
                kind.setRandom(field, random);
        }
    }

    static void checkPaths(
        const NxSceneDifferences& found, const NxSceneDifference& difference, NxGroup* left, NxGroup* right)
    {
        const NxComparedNode& node = found.node(difference);
        if (node.left)
            QCOMPARE(NxScenePath::find(left, node.leftPath).node(), node.left.get());
        if (node.right)
            QCOMPARE(NxScenePath::find(right, node.rightPath).node(), node.right.get());
        QVERIFY(node.left || node.right);
    }
};

QTEST_GUILESS_MAIN(TestRandomComparison)
#include "tst_RandomComparison.moc"
