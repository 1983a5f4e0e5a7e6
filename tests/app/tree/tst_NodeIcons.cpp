#include "Patience.h"

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

#include <QFile>
#include <QIcon>
#include <QLibraryInfo>
#include <QProcess>
#include <QResource>
#include <QTemporaryDir>
#include <QTest>

#include <array>

/// A class of a plug-in with an icon, one that derives from it, and one whose icon can't be drawn.
class NxGear : public NxTransform {
    NX_NODE(NxGear)
};
class NxFineGear : public NxGear {
    NX_NODE(NxFineGear)
};
class NxBrokenGear : public NxTransform {
    NX_NODE(NxBrokenGear)
};
NX_NODE_SOURCE(NxGear, NxTransform, "Gear")
NX_NODE_SOURCE(NxFineGear, NxGear, "FineGear")
NX_NODE_SOURCE(NxBrokenGear, NxTransform, "BrokenGear")

class TestNodeIcons : public QObject {
    Q_OBJECT

    static void write(const QString& fileName, const QByteArray& content)
    {
        QFile file(fileName);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

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

    void aPluginGivesItsClassesIcons()
    {
        const QTemporaryDir folder;
        write(folder.filePath(QStringLiteral("gear.svg")),
            "<svg xmlns='http://www.w3.org/2000/svg' width='16' height='16'><rect width='16' height='16' "
            "fill='#ff0000'/></svg>");
        write(folder.filePath(QStringLiteral("broken.svg")), "no picture");
        write(folder.filePath(QStringLiteral("icons.qrc")),
            "<RCC><qresource prefix='/orvane/node-icons'><file alias='Gear.svg'>gear.svg</file>"
            "<file alias='BrokenGear.svg'>broken.svg</file></qresource></RCC>");
        QProcess compiler;
        compiler.start(QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath) + QStringLiteral("/rcc"),
            {QStringLiteral("--binary"), QStringLiteral("-o"), folder.filePath(QStringLiteral("icons.rcc")),
                folder.filePath(QStringLiteral("icons.qrc"))});
        QVERIFY(compiler.waitForFinished(testPatience));
        QVERIFY2(compiler.exitCode() == 0, compiler.readAllStandardError().constData());
        QVERIFY(QResource::registerResource(folder.filePath(QStringLiteral("icons.rcc"))));
        QCOMPARE(picture(NxGear::getClassTypeId()).pixelColor(16, 16), QColor(Qt::red));
        QCOMPARE(picture(NxFineGear::getClassTypeId()), picture(NxGear::getClassTypeId()));
        QCOMPARE(picture(NxBrokenGear::getClassTypeId()), picture(NxTransform::getClassTypeId()));
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
