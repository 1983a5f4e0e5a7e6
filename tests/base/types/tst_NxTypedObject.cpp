#include "VirtualSlot.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxReadError.h"
#include "meridane/base/types/NxTypedObject.h"

#include <QTest>

#include <memory>

static_assert(!std::is_copy_constructible_v<NxTypedObject> && !std::is_copy_assignable_v<NxTypedObject>);

class TestNxTypedObject : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFirstVirtualOperationTellsTheType() { QCOMPARE(virtualSlot(&NxTypedObject::getTypeId), std::size_t(0)); }

    void anObjectIsOfItsOwnTypeAndItsBases()
    {
        const std::unique_ptr<NxTypedObject> object = std::make_unique<NxDebugError>(0, "text");
        QVERIFY(object->getTypeId() == NxDebugError::getClassTypeId());
        QVERIFY(object->isOfType(NxDebugError::getClassTypeId()));
        QVERIFY(object->isOfType(NxError::getClassTypeId()));
        QVERIFY(object->isOfType(NxTypedObject::getClassTypeId()));
    }

    void anObjectIsOfNoOtherType()
    {
        const std::unique_ptr<NxTypedObject> object = std::make_unique<NxDebugError>(0, "text");
        QVERIFY(!object->isOfType(NxReadError::getClassTypeId()));
        QVERIFY(!object->isOfType(NxType()));
        QVERIFY(!NxError("text").isOfType(NxDebugError::getClassTypeId()));
    }
};

QTEST_APPLESS_MAIN(TestNxTypedObject)
#include "tst_NxTypedObject.moc"
