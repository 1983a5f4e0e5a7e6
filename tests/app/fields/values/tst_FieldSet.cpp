#include "app/fields/values/ManyNodes.h"

#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxMaterial.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The fields of one row of the table.
class TestFieldSet : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aSetHasTheFieldsThatAllNodesHave()
    {
        NxMaterial* const material = new NxMaterial;
        ManyNodes many({new NxFieldGallery, material});
        QVERIFY(FieldSet(many.field(0, "sfFloat"), many.nodes()).isEmpty());
        const FieldSet alone(many.field(0, "sfFloat"));
        QCOMPARE(alone.count(), 1);
        QCOMPARE(alone.name(), u"FieldGallery.sfFloat"_s);
    }

    void aSetKeepsItsNodes()
    {
        FieldSet set;
        {
            const NxRef<NxNode> gallery(new NxFieldGallery);
            set = FieldSet(*gallery->getField("sfFloat"));
            QCOMPARE(gallery->getRefCount(), 2);
        }
        QVERIFY(set.first().set("3"));
        QVERIFY(set.isChanged());
    }

    void severalValuesAreMixedIfOneDiffersToTheBit()
    {
        ManyNodes many({new NxFieldGallery, new NxFieldGallery, new NxFieldGallery});
        const FieldSet set = many.set("sfFloat");
        QCOMPARE(set.count(), 3);
        QVERIFY(!set.isMixed() && !set.isChanged());
        QVERIFY(many.field(2, "sfFloat").set("-0"));
        QVERIFY(set.isMixed() && set.isMixed(0) && set.isChanged());
        for (NxField* const field : set.fields())
            QVERIFY(field->set("nan"));
        QVERIFY(!set.isMixed() && !set.isMixed(0));
        QCOMPARE(set.name(), u"sfFloat of 3 nodes"_s);
    }

    void theFirstFieldIsThatOfTheNodeSelectedLast()
    {
        ManyNodes many({new NxFieldGallery, new NxFieldGallery});
        const FieldSet set(many.field(1, "sfFloat"), many.nodes());
        QCOMPARE(&set.first(), &many.field(1, "sfFloat"));
        QCOMPARE(set.count(), 2);
    }
};

QTEST_MAIN(TestFieldSet)
#include "tst_FieldSet.moc"
