#include "orvane/app/tree/NodeIcons.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTexture.h"
#include "meridane/scene/nodes/NxTransform.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

#include <QIcon>
#include <QTest>

#include <array>

class TestNodeIcons : public QObject {
    Q_OBJECT

    static QImage picture(NxType type, QIcon::Mode mode = QIcon::Normal)
    {
        return orvane::nodeIcon(type).pixmap(QSize(32, 32), mode).toImage();
    }

    static int opacitySum(const QImage& image)
    {
        int sum = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                sum += qAlpha(image.pixel(x, y));
        }
        return sum;
    }

private Q_SLOTS:
    void theClassesHaveDifferentPictures()
    {
        const std::array types{NxGroup::getClassTypeId(), NxTransform::getClassTypeId(), NxSwitch::getClassTypeId(),
            NxMesh::getClassTypeId(), NxMaterial::getClassTypeId(), NxTexture::getClassTypeId(),
            NxPointLight::getClassTypeId(), NxDirectionalLight::getClassTypeId(), NxSpotLight::getClassTypeId(),
            NxPerspectiveCamera::getClassTypeId(), NxComplexity::getClassTypeId(), NxFieldGallery::getClassTypeId(),
            NxUnknownNode::getClassTypeId(), NxNode::getClassTypeId()};
        for (std::size_t i = 0; i < types.size(); ++i) {
            QVERIFY2(opacitySum(picture(types[i])) > 0, types[i].getName().getString());
            for (std::size_t k = 0; k < i; ++k)
                QVERIFY2(picture(types[i]) != picture(types[k]), types[i].getName().getString());
        }
    }

    void aClassWithoutAPictureHasThatOfItsBase()
    {
        QCOMPARE(picture(NxOrthographicCamera::getClassTypeId()), picture(NxPerspectiveCamera::getClassTypeId()));
        QCOMPARE(picture(NxMatrixTransform::getClassTypeId()), picture(NxTransform::getClassTypeId()));
    }

    void aSelectedIconHasABrightBackground()
    {
        const NxType type = NxMesh::getClassTypeId();
        QCOMPARE(qAlpha(picture(type).pixel(16, 1)), 0);
        QVERIFY(qAlpha(picture(type, QIcon::Selected).pixel(16, 1)) > 128);
        QVERIFY(qGray(picture(type, QIcon::Selected).pixel(16, 1)) > 200);
    }

    void aDisabledIconIsFainter()
    {
        const NxType type = NxMesh::getClassTypeId();
        QVERIFY(opacitySum(picture(type, QIcon::Disabled)) < 0.6 * opacitySum(picture(type)));
    }
};

QTEST_MAIN(TestNodeIcons)
#include "tst_NodeIcons.moc"
