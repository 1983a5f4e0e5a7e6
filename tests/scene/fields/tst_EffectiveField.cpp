#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/nodes/NxMaterial.h"

#include <QTest>

class TestEffectiveField : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aFieldThatIsNotIgnoredIsItself()
    {
        const NxRef<NxMaterial> material = new NxMaterial;
        QCOMPARE(&meridane::effectiveField(material->transparency), &material->transparency);
        QCOMPARE(&meridane::defaultFieldOf(material->transparency), &material->transparency);
    }

    void anIgnoredFieldHasTheDefaultOfItsClass()
    {
        const NxRef<NxMaterial> material = new NxMaterial;
        material->transparency.setValue(0.5F);
        material->transparency.setIgnored(1);
        QCOMPARE(meridane::effectiveField(material->transparency).getValue(),
            NxRef<NxMaterial>(new NxMaterial)->transparency.getValue());
    }

    void anIgnoredFieldOfNoNodeIsItself()
    {
        NxSFFloat field(nullptr, "field");
        field.setIgnored(1);
        QCOMPARE(&meridane::effectiveField(field), &field);
    }
};

QTEST_APPLESS_MAIN(TestEffectiveField)
#include "tst_EffectiveField.moc"
