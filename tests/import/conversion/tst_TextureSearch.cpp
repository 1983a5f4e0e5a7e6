#include "import/conversion/ReadModels.h"

#include "orvane/import/conversion/TextureSearch.h"

#include "meridane/scene/nodes/NxTexture.h"

#include <QDir>
#include <QTest>

namespace {

QByteArray triangles(int count)
{
    QByteArray model = "mtllib model.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\n";
    for (int index = 0; index < count; ++index)
        model += "usemtl m" + QByteArray::number(index) + "\nf 1 2 3\n";
    return model;
}

QByteArray materials(const QByteArrayList& images)
{
    QByteArray text;
    for (qsizetype index = 0; index < images.size(); ++index)
        text += "newmtl m" + QByteArray::number(index) + "\nmap_Kd " + images[index] + '\n';
    return text;
}

} // namespace

/// The images of a model, wherever its exporter thought that they are.
class TestTextureSearch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_root = std::make_unique<QTemporaryDir>();
        for (const char* file : {"outside.png", "model/beside.png", "model/Textures/Wood.PNG",
                 "model/textures/wood.jpg", "model/a/same.png", "model/b/same.png", "model/b/c/same.png",
                 "model/with space.png", "model/deep/1/2/3/leaf.png"}) {
            QVERIFY(QDir().mkpath(QFileInfo(path(file)).path()));
            writeFile(path(file), "image");
        }
        QVERIFY(QFile::link(path("outside.png"), path("model/link.png")));
        QVERIFY(QFile::link(m_root->path(), path("model/up")));
    }

    void imagesAreFoundByTheirName_data()
    {
        QTest::addColumn<QByteArray>("given");
        QTest::addColumn<QByteArray>("found"); // empty for none
        const auto row = [](const char* name, const char* given, const char* found) {
            QTest::newRow(name) << QByteArray(given) << QByteArray(found);
        };
        row("beside the model", "beside.png", "beside.png");
        row("below the model", "textures/wood.jpg", "textures/wood.jpg");
        row("a path as it is written", "./a/../a/same.png", "./a/../a/same.png");
        row("backslashes", "textures\\wood.jpg", "textures/wood.jpg");
        row("a path of another machine", "C:\\Users\\somebody\\maps\\beside.png", "beside.png");
        row("a path of another system", "/home/somebody/maps/beside.png", "beside.png");
        row("a URL", "file:///C:/maps/with%20space.png", "with space.png");
        row("a coded name", "with%20space.png", "with space.png");
        row("another case", "textures/wood.png", "Textures/Wood.PNG");
        row("another folder", "maps/leaf.png", "deep/1/2/3/leaf.png");
        row("the folder decides", "C:/b/same.png", "b/same.png");
        row("two folders decide", "C:/b/c/same.png", "b/c/same.png");
        row("the least deep", "C:/d/same.png", "a/same.png");
        row("above the model", "../outside.png", "");
        row("a link to a file above", "link.png", "");
        row("a folder", "textures", "");
        row("missing", "missing.png", "");
        row("nothing", "", "");
    }

    void imagesAreFoundByTheirName()
    {
        QFETCH(QByteArray, given);
        QFETCH(QByteArray, found);
        orvane::TextureSearch search(path("model/model.obj").toStdString());
        QCOMPARE(QByteArray::fromStdString(search.find(given.toStdString()).value_or("")), found);
    }

    void aModelReadByTheHelperFindsThem()
    {
        ReadModels models;
        QVERIFY(QDir().mkpath(models.path("Maps")));
        models.write("Maps/Wood.png", "image");
        models.write("model.mtl", materials({"C:\\\\stuff\\\\wood.PNG", "no1.png", "../no2.png", "no1.png"}));
        const NxRef<NxGroup> scene = models.read("model.obj", triangles(4));
        QVERIFY2(scene, qPrintable(models.message()));
        const std::vector<NxTexture*> textures = ReadModels::all<NxTexture>(*scene);
        QCOMPARE(textures.size(), std::size_t(4));
        QCOMPARE(textures[0]->filePath.getValue(), VbString("Maps/Wood.png"));
        QCOMPARE(textures[1]->filePath.getValue(), VbString("no1.png"));
        QCOMPARE(models.warnings(), QStringList(QStringLiteral("didn't find the images: \"no1.png\", \"../no2.png\"")));
    }

private:
    [[nodiscard]] QString path(const char* name) const { return m_root->filePath(QString::fromUtf8(name)); }

    std::unique_ptr<QTemporaryDir> m_root;
};

QTEST_GUILESS_MAIN(TestTextureSearch)
#include "tst_TextureSearch.moc"
