#include "app/AppScenes.h"

#include "orvane/app/TextureFiles.h"

#include "meridane/gl/NxImage.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

class TestTextureFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_files.setFolder(m_folder->path());
    }

    void readsTheLowestRowFirst()
    {
        QImage picture(3, 2, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        picture.setPixelColor(0, 1, QColor(1, 2, 3));
        QVERIFY(picture.save(file("small.png")));
        NxImage image;
        QVERIFY(m_files.read("small.png", image));
        QCOMPARE(image.width, 3);
        QCOMPARE(image.height, 2);
        QCOMPARE(image.components, 3);
        const std::vector<unsigned char> lowest(image.bytes.begin(), image.bytes.begin() + 6);
        QCOMPARE(lowest, (std::vector<unsigned char>{1, 2, 3, 0, 0, 255}));
        QCOMPARE(image.bytes.size(), std::size_t{18});
    }

    void readsOpacity()
    {
        QImage picture(1, 1, QImage::Format_ARGB32);
        picture.setPixelColor(0, 0, QColor(255, 0, 0, 128));
        QVERIFY(picture.save(file("clear.png")));
        NxImage image;
        QVERIFY(m_files.read("clear.png", image));
        QCOMPARE(image.bytes, (std::vector<unsigned char>{255, 0, 0, 128}));
    }

    void findsNamesFromTheFolderOfTheScene()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("images")));
        QVERIFY(QImage(1, 1, QImage::Format_RGB32).save(file("images/one.png")));
        NxImage image;
        QVERIFY(m_files.read("images/one.png", image));
        QVERIFY(!m_files.read("one.png", image));
        m_files.setFolder(QString());
        QVERIFY(!m_files.read("images/one.png", image));
        QVERIFY(m_files.read(file("images/one.png").toStdString(), image));
    }

    void refusesWhatIsNoImage()
    {
        AppScenes::writeFile(file("text.png"), "no picture");
        AppScenes::writeFile(file("empty.png"), "");
        QCOMPARE(::mkfifo(file("pipe.png").toLocal8Bit().constData(), S_IRUSR | S_IWUSR), 0);
        NxImage image;
        for (const char* name : {"text.png", "empty.png", "pipe.png", "missing.png", ".", "", "/dev/zero"})
            QVERIFY2(!m_files.read(name, image), name);
        QVERIFY(image.bytes.empty());
    }

    void refusesWhatIsTooLarge()
    {
        QImage wide(TextureFiles::largestSide + 1, 1, QImage::Format_Mono);
        wide.fill(0);
        QVERIFY(wide.save(file("wide.png")));
        NxImage image;
        QVERIFY(!m_files.read("wide.png", image));
        // A small file that claims to be a huge image.
        AppScenes::writeFile(file("huge.ppm"), "P6 16384 16384 255 ");
        QVERIFY(!m_files.read("huge.ppm", image));
    }

private:
    [[nodiscard]] QString file(const char* name) const { return m_folder->filePath(QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    TextureFiles m_files;
};

QTEST_GUILESS_MAIN(TestTextureFiles)
#include "tst_TextureFiles.moc"
