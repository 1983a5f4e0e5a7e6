#include "meridane/base/values/VbColor.h"

#include <QTest>

#include <type_traits>

static_assert(std::is_base_of_v<VbVec3f, VbColor>);
static_assert(std::is_base_of_v<VbVec4f, VbColorRGBA>);

class TestVbColor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void colorsAreBlackAndOpaqueAtFirst()
    {
        QVERIFY(VbColor() == VbColor(0, 0, 0));
        QVERIFY(VbColorRGBA() == VbColorRGBA(0, 0, 0, 1));
    }

    void aColorServesAsItsVector()
    {
        const VbColor color(0.25F, 0.5F, 0.75F);
        const VbVec3f& vector = color;
        QVERIFY(vector == VbVec3f(0.25F, 0.5F, 0.75F));
        QVERIFY(VbColor(vector) == color);
        const VbColorRGBA transparent(0.1F, 0.2F, 0.3F, 0.4F);
        const VbVec4f& four = transparent;
        QVERIFY(four == VbVec4f(0.1F, 0.2F, 0.3F, 0.4F));
        QVERIFY(VbColorRGBA(four) == transparent);
    }

    void componentsOutsideZeroToOneAreKept() { QVERIFY(VbColor(-1, 2, 1e30F) == VbVec3f(-1, 2, 1e30F)); }
};

QTEST_APPLESS_MAIN(TestVbColor)
#include "tst_VbColor.moc"
