#include "orvane/import/conversion/MaterialConversion.h"
#include "orvane/import/mending/Texts.h"

#include <QTest>

#include <assimp/scene.h>

using namespace orvane;

namespace {

void addTexture(aiMaterial& material, aiTextureType type, const char* path)
{
    const aiString text = toAiText(std::string_view(path));
    material.AddProperty(&text, AI_MATKEY_TEXTURE(type, 0));
}

// A model that holds one picture of raw pixels: blue above red.
aiScene* modelWithPixels()
{
    auto* model = new aiScene;
    model->mNumTextures = 1;
    model->mTextures = new aiTexture*[1];
    auto* texture = model->mTextures[0] = new aiTexture;
    texture->mWidth = 1;
    texture->mHeight = 2;
    texture->pcData = new aiTexel[2];
    texture->pcData[0] = {255, 0, 0, 128}; // blue, green, red, opacity
    texture->pcData[1] = {0, 0, 255, 255};
    return model;
}

} // namespace

class TestMaterialConversion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void colorsComeBackAsTheyWere()
    {
        const NxRef<NxMaterial> material = new NxMaterial;
        material->setName("grün");
        material->ambientColor.setValue(VbColor(0.1F, 0.2F, 0.3F));
        material->diffuseColor.setValue(VbColor(0.4F, 0.5F, 0.6F));
        material->specularColor.setValue(VbColor(0.7F, 0.8F, 0.9F));
        material->emissiveColor.setValue(VbColor(1, 0, 0.5F));
        material->shininess.setValue(0.25F);
        material->transparency.setValue(0.75F);
        aiMaterial foreign;
        setMaterial(foreign, material.get());
        const NxRef<NxMaterial> result = toMaterial(foreign);
        QCOMPARE(result->getName(), VbString("grün"));
        for (NxField* field : material->getFields())
            QVERIFY(field->isSame(*result->getField(material->getFieldName(field))));
    }

    void whatAMaterialDoesNotTellKeepsItsDefault()
    {
        const NxRef<NxMaterial> material = toMaterial(aiMaterial());
        for (NxField* field : material->getFields())
            QVERIFY(field->isDefault());
        QVERIFY(!toTexture(aiMaterial(), aiScene()));
    }

    void theBaseColorStandsInForAMissingDiffuseColor()
    {
        aiMaterial foreign;
        const aiColor4D base(0.25F, 0.5F, 0.75F, 1);
        foreign.AddProperty(&base, 1, AI_MATKEY_BASE_COLOR);
        QCOMPARE(toMaterial(foreign)->diffuseColor.getValue(), VbColor(0.25F, 0.5F, 0.75F));
        const aiColor3D diffuse(1, 0, 0);
        foreign.AddProperty(&diffuse, 1, AI_MATKEY_COLOR_DIFFUSE);
        QCOMPARE(toMaterial(foreign)->diffuseColor.getValue(), VbColor(1, 0, 0));
    }

    void numbersOutOfRangeAreHeldToIt()
    {
        aiMaterial foreign;
        const float shininess = 1000;
        const float opacity = -1;
        foreign.AddProperty(&shininess, 1, AI_MATKEY_SHININESS);
        foreign.AddProperty(&opacity, 1, AI_MATKEY_OPACITY);
        const NxRef<NxMaterial> material = toMaterial(foreign);
        QCOMPARE(material->shininess.getValue(), 1.0F);
        QCOMPARE(material->transparency.getValue(), 1.0F);
    }

    void aPathOfAnotherSystemGetsSlashes()
    {
        aiMaterial foreign;
        addTexture(foreign, aiTextureType_DIFFUSE, "pictures\\wood.png");
        const NxRef<NxTexture> texture = toTexture(foreign, aiScene());
        QVERIFY(texture);
        QCOMPARE(texture->filePath.getValue(), VbString("pictures/wood.png"));
        QVERIFY(texture->image.isDefault());
    }

    void theBaseColorsTextureStandsInForTheDiffuseOne()
    {
        aiMaterial foreign;
        addTexture(foreign, aiTextureType_BASE_COLOR, "base.png");
        QCOMPARE(texturePath(foreign), std::string("base.png"));
        addTexture(foreign, aiTextureType_DIFFUSE, "diffuse.png");
        QCOMPARE(texturePath(foreign), std::string("diffuse.png"));
    }

    void rawPixelsBecomeAnImageFromTheBottomUp()
    {
        const std::unique_ptr<aiScene> model(modelWithPixels());
        aiMaterial foreign;
        addTexture(foreign, aiTextureType_DIFFUSE, "*0");
        const NxRef<NxTexture> texture = toTexture(foreign, *model);
        VbVec2s size;
        int components = 0;
        const unsigned char* bytes = texture->image.getValue(size, components);
        QCOMPARE(size, VbVec2s(1, 2));
        QCOMPARE(components, 4);
        const unsigned char expected[] = {255, 0, 0, 255, 0, 0, 255, 128};
        QVERIFY(std::equal(std::begin(expected), std::end(expected), bytes));
        QVERIFY(texture->filePath.getValue().isEmpty());
    }

    void aPictureThatCanNotBeDecodedKeepsItsPath()
    {
        const std::unique_ptr<aiScene> model(modelWithPixels());
        model->mTextures[0]->mHeight = 0; // two pixels are eight bytes of a file now
        model->mTextures[0]->mWidth = 8;
        model->mTextures[0]->mFilename = toAiText(std::string_view("wood.webp"));
        aiMaterial foreign;
        addTexture(foreign, aiTextureType_DIFFUSE, "*0");
        const NxRef<NxTexture> texture = toTexture(foreign, *model);
        QVERIFY(texture->image.isDefault());
        QCOMPARE(texture->filePath.getValue(), VbString("wood.webp"));
    }

    void wrapsComeBackAsTheyWere_data()
    {
        QTest::addColumn<int>("wrapS");
        QTest::addColumn<int>("wrapT");
        QTest::newRow("repeat both") << int(NxTexture::REPEAT) << int(NxTexture::REPEAT);
        QTest::newRow("clamp s") << int(NxTexture::CLAMP) << int(NxTexture::REPEAT);
        QTest::newRow("clamp t") << int(NxTexture::REPEAT) << int(NxTexture::CLAMP);
    }

    void wrapsComeBackAsTheyWere()
    {
        QFETCH(int, wrapS);
        QFETCH(int, wrapT);
        const NxRef<NxTexture> texture = new NxTexture;
        texture->wrapS.setValue(wrapS);
        texture->wrapT.setValue(wrapT);
        aiMaterial foreign;
        setTexture(foreign, *texture, "wood.png");
        const NxRef<NxTexture> result = toTexture(foreign, aiScene());
        QCOMPARE(result->wrapS.getValue(), wrapS);
        QCOMPARE(result->wrapT.getValue(), wrapT);
        QCOMPARE(result->filePath.getValue(), VbString("wood.png"));
    }
};

QTEST_GUILESS_MAIN(TestMaterialConversion)
#include "tst_MaterialConversion.moc"
