#include "Patience.h"
#include "TestFiles.h"
#include "app/AppScenes.h"
#include "import/FakeHelper.h"

#include "orvane/app/images/TextureFiles.h"

#include <QDir>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

class TestTextureFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_root->path()).mkpath(QStringLiteral("scene/images")));
        QVERIFY(QDir(m_root->path()).mkpath(QStringLiteral("other/deep")));
        start({});
    }

    void readsTheLowestRowFirst()
    {
        QImage picture(3, 2, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        picture.setPixelColor(0, 1, QColor(1, 2, 3));
        QVERIFY(picture.save(file("scene/small.png")));
        QCOMPARE(read("small.png"), NxImageState::Loaded);
        QCOMPARE(m_image.width, 3);
        QCOMPARE(m_image.height, 2);
        QCOMPARE(m_image.components, 3);
        const std::vector<unsigned char> lowest(m_image.bytes.begin(), m_image.bytes.begin() + 6);
        QCOMPARE(lowest, (std::vector<unsigned char>{1, 2, 3, 0, 0, 255}));
        QCOMPARE(m_image.bytes.size(), std::size_t{18});
    }

    void readsOpacity()
    {
        QImage picture(1, 1, QImage::Format_ARGB32);
        picture.setPixelColor(0, 0, QColor(255, 0, 0, 128));
        QVERIFY(picture.save(file("scene/clear.png")));
        QCOMPARE(read("clear.png"), NxImageState::Loaded);
        QCOMPARE(m_image.bytes, (std::vector<unsigned char>{255, 0, 0, 128}));
    }

    void findsNamesFromTheFolderOfTheScene()
    {
        savePixel("scene/images/one.png");
        QCOMPARE(read("images/one.png"), NxImageState::Loaded);
        QCOMPARE(read("images/../images/./one.png"), NxImageState::Loaded);
        QCOMPARE(read(file("scene/images/one.png").toStdString()), NxImageState::Loaded);
        QCOMPARE(read("one.png"), NxImageState::Failed);
        QCOMPARE(m_reason, file("scene/one.png").toStdString() + ": No such file or directory");
        m_files->setFolder(QString());
        QCOMPARE(read("images/one.png"), NxImageState::Failed);
        QVERIFY(m_reason.starts_with("the scene has no folder"));
    }

    void aSceneThatGetsAFolderFindsItsImages()
    {
        savePixel("scene/one.png");
        m_files->setFolder(QString());
        QCOMPARE(read("one.png"), NxImageState::Failed);
        QSignalSpy changed(m_files.get(), &TextureFiles::changed);
        m_files->setFolder(file("scene"));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(read("one.png"), NxImageState::Loaded);
    }

    void refusesWhatIsNoImage()
    {
        writeFile(file("scene/text.png"), "no picture");
        writeFile(file("scene/empty.png"), "");
        // The tool's own decoders would read the device for ever.
        writeFile(file("scene/vector.png"),
            "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"9\" "
            "height=\"9\"><image width=\"9\" height=\"9\" xlink:href=\"/dev/zero\"/></svg>");
        for (const char* name : {"text.png", "empty.png", "vector.png", "missing.png", "images", "images/", ".", ""})
            QVERIFY2(read(name) == NxImageState::Failed, name);
        QVERIFY(m_image.bytes.empty());
    }

    void opensRegularFilesOnly()
    {
        QCOMPARE(::mkfifo(file("scene/pipe.png").toLocal8Bit().constData(), S_IRUSR | S_IWUSR), 0);
        QCOMPARE(read("pipe.png"), NxImageState::Failed);
        QCOMPARE(m_reason, std::string("it isn't a regular file"));
        m_files->setAllowedFolders({QStringLiteral("/")});
        for (const char* name :
            {"/dev/zero", "/dev/null", "/proc/self/environ", "/proc/kmsg", "/sys/kernel/uevent_seqnum"}) {
            QVERIFY2(read(name) == NxImageState::Failed, name);
            QVERIFY2(m_reason == "it isn't a regular file" || !QFile::exists(QLatin1String(name)), m_reason.c_str());
        }
    }

    void refusesWhatIsTooLarge()
    {
        QImage wide(TextureFiles::largestSide + 1, 1, QImage::Format_Mono);
        wide.fill(0);
        QVERIFY(wide.save(file("scene/wide.png")));
        QCOMPARE(read("wide.png"), NxImageState::Failed);
        // A small file that claims to be a huge image.
        writeFile(file("scene/huge.ppm"), "P6 16384 16384 255 ");
        QCOMPARE(read("huge.ppm"), NxImageState::Failed);
        QFile long_(file("scene/long.png"));
        QVERIFY(long_.open(QIODevice::WriteOnly) && long_.resize(qint64{257} << 20));
        QCOMPARE(read("long.png"), NxImageState::Failed);
        QCOMPARE(m_reason, std::string("it is larger than 256 MiB"));
    }

    void imagesOutsideTheFolderOfTheSceneAreWithheld_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("folder");
        const QString other = QStringLiteral("/other");
        QTest::newRow("above") << QStringLiteral("../one.png") << QString();
        QTest::newRow("beside") << QStringLiteral("../other/one.png") << other;
        QTest::newRow("beside, a longer way") << QStringLiteral("images/../.././other/one.png") << other;
        QTest::newRow("absolute") << QStringLiteral("%1/other/one.png") << other;
        QTest::newRow("absolute, from inside") << QStringLiteral("%1/scene/../other/one.png") << other;
        QTest::newRow("a folder whose name begins alike")
            << QStringLiteral("../scene2/one.png") << QStringLiteral("/scene2");
        QTest::newRow("behind a link to a file") << QStringLiteral("file.png") << other;
        QTest::newRow("behind a link to a folder") << QStringLiteral("folder/one.png") << other;
    }
    void imagesOutsideTheFolderOfTheSceneAreWithheld()
    {
        QFETCH(QString, name);
        QFETCH(QString, folder);
        for (const char* each : {"one.png", "other/one.png"})
            savePixel(each);
        QVERIFY(QDir(m_root->path()).mkdir(QStringLiteral("scene2")));
        savePixel("scene2/one.png");
        QVERIFY(QFile::link(file("other/one.png"), file("scene/file.png")));
        QVERIFY(QFile::link(QStringLiteral("../other"), file("scene/folder")));
        QSignalSpy refused(m_files.get(), &TextureFiles::folderRefused);
        const std::string path = name.replace(QStringLiteral("%1"), m_root->path()).toStdString();
        QCOMPARE(read(path), NxImageState::Withheld);
        QCOMPARE(read(path), NxImageState::Withheld);
        QCOMPARE(refused.size(), 1);
        QCOMPARE(refused.front().front().toString(), m_root->path() + folder);
        // With the user's consent they are loaded.
        QSignalSpy changed(m_files.get(), &TextureFiles::changed);
        m_files->setAllowedFolders({m_root->path() + folder});
        QCOMPARE(changed.size(), 1);
        QCOMPARE(read(path), NxImageState::Loaded);
    }

    void aFolderIsAllowedWithWhatIsBelow()
    {
        savePixel("other/deep/one.png");
        savePixel("one.png");
        m_files->setAllowedFolders({file("other")});
        QCOMPARE(read("../other/deep/one.png"), NxImageState::Loaded);
        QCOMPARE(read("../one.png"), NxImageState::Withheld);
    }

    void linksInsideAreFollowed()
    {
        savePixel("scene/images/one.png");
        QVERIFY(QFile::link(QStringLiteral("images/one.png"), file("scene/link.png")));
        QVERIFY(QFile::link(file("scene"), file("shortcut")));
        QCOMPARE(read("link.png"), NxImageState::Loaded);
        // A scene whose folder is a link itself, and paths that name the folder behind it.
        m_files->setFolder(file("shortcut"));
        QCOMPARE(read("link.png"), NxImageState::Loaded);
        QCOMPARE(read(file("scene/images/one.png").toStdString()), NxImageState::Loaded);
    }

    void aFolderThatIsALinkIsAllowedByItsName()
    {
        savePixel("other/one.png");
        QVERIFY(QFile::link(file("other"), file("shortcut")));
        m_files->setAllowedFolders({file("shortcut")});
        QCOMPARE(read("../shortcut/one.png"), NxImageState::Loaded);
    }

    void oneProcessDecodesAllImages()
    {
        QTemporaryDir scripts;
        start(fakeHelper(scripts,
            "echo run >> '" + scripts.filePath(QStringLiteral("runs")).toUtf8() + "'\nexec '" + ORVANE_IMPORT_PROGRAM
                + "' \"$@\""));
        for (int index = 0; index < 5; ++index) {
            savePixel(qPrintable(QStringLiteral("scene/%1.png").arg(index)));
            NxImage image;
            std::string reason;
            QCOMPARE(m_files->load(std::to_string(index) + ".png", image, reason), NxImageState::Pending);
        }
        QTRY_VERIFY(!m_files->isLoading());
        NxImage image;
        std::string reason;
        QCOMPARE(m_files->load("4.png", image, reason), NxImageState::Loaded);
        QFile runs(scripts.filePath(QStringLiteral("runs")));
        QVERIFY(runs.open(QIODevice::ReadOnly));
        QCOMPARE(runs.readAll(), QByteArray("run\n"));
    }

    void anImageComesFromAnotherProcessIfOneDies()
    {
        QTemporaryDir scripts;
        savePixel("scene/a.png");
        savePixel("scene/b.png");
        // It answers once.
        start(fakeHelper(
            scripts, "IFS= read -r line\nhead -c \"${line#picture }\" >/dev/null\nprintf 'picture 1 1 1\\nA'"));
        NxImage image;
        std::string reason;
        QCOMPARE(m_files->load("a.png", image, reason), NxImageState::Pending);
        QCOMPARE(m_files->load("b.png", image, reason), NxImageState::Pending);
        QTRY_VERIFY(!m_files->isLoading());
        for (const char* name : {"a.png", "b.png"}) {
            QCOMPARE(m_files->load(name, image, reason), NxImageState::Loaded);
            QCOMPARE(image.bytes, (std::vector<unsigned char>{'A'}));
        }
    }

    void aHelperThatFailsIsAReason_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("reason");
        const QByteArray take = "IFS= read -r line\nhead -c \"${line#picture }\" >/dev/null\n";
        QTest::newRow("crashes") << take + "kill -SEGV $$"
                                 << QStringLiteral("the import helper crashed with signal 11");
        QTest::newRow("says why") << take + "echo 'no luck' >&2; exit 1" << QStringLiteral("no luck");
        QTest::newRow("gives nothing") << take << QStringLiteral("the import helper ended without a picture");
        QTest::newRow("gives half") << take + "printf 'picture 2 2 1\\nA'"
                                    << QStringLiteral("the import helper ended without a picture");
        const QString noPicture = QStringLiteral("the import helper sent something that isn't a picture");
        QTest::newRow("gives too much") << take + "printf 'picture 1 1 1\\nAB'" << noPicture;
        QTest::newRow("lies about the size") << take + "printf 'picture 1000000 1000000 4\\nAB'" << noPicture;
        QTest::newRow("chatters") << take + "yes" << noPicture;
    }
    void aHelperThatFailsIsAReason()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, reason);
        QTemporaryDir scripts;
        savePixel("scene/one.png");
        start(fakeHelper(scripts, script));
        QCOMPARE(read("one.png"), NxImageState::Failed);
        QCOMPARE(QString::fromStdString(m_reason), reason);
    }

    void everyImageIsAnnouncedOnce()
    {
        constexpr int count = 200;
        for (int index = 0; index < count; ++index)
            savePixel(qPrintable(QStringLiteral("scene/%1.png").arg(index)));
        QSignalSpy changed(m_files.get(), &TextureFiles::changed);
        NxImage image;
        std::string reason;
        for (int index = 0; index < count; ++index)
            QCOMPARE(m_files->load(std::to_string(index) + ".png", image, reason), NxImageState::Pending);
        QTRY_VERIFY(!m_files->isLoading());
        QCOMPARE(changed.size(), count);
        for (int index = 0; index < count; ++index)
            QCOMPARE(m_files->load(std::to_string(index) + ".png", image, reason), NxImageState::Loaded);
    }

    void aPictureMeanwhileLosesNoImage()
    {
        for (const char* name : {"scene/a.png", "scene/b.png"})
            savePixel(name);
        NxImage image;
        std::string reason;
        QSignalSpy changed(m_files.get(), &TextureFiles::changed);
        connect(m_files.get(), &TextureFiles::changed, this,
            [&](const std::string& name) { QCOMPARE(m_files->load(name, image, reason), NxImageState::Loaded); });
        QCOMPARE(m_files->load("a.png", image, reason), NxImageState::Pending);
        QCOMPARE(m_files->load("b.png", image, reason), NxImageState::Pending);
        while (m_files->isLoading()) {
            m_files->dropResults(); // as after each picture
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QCOMPARE(changed.size(), 2);
    }

    void nobodyWaitsForAnImage()
    {
        QTemporaryDir scripts;
        savePixel("scene/one.png");
        start(fakeHelper(scripts, "exec sleep 1000"));
        QSignalSpy changed(m_files.get(), &TextureFiles::changed);
        NxImage image;
        std::string reason;
        QCOMPARE(m_files->load("one.png", image, reason), NxImageState::Pending);
        QCOMPARE(m_files->load("one.png", image, reason), NxImageState::Pending);
        QVERIFY(m_files->isLoading());
        QCoreApplication::processEvents();
        // Another scene: what was asked for doesn't come any more.
        m_files->clear();
        QVERIFY(!m_files->isLoading());
        QVERIFY(changed.isEmpty());
    }

    void whatNoPictureAskedForIsForgotten()
    {
        savePixel("scene/one.png");
        QCOMPARE(read("one.png"), NxImageState::Loaded);
        m_files->dropResults();
        NxImage image;
        std::string reason;
        QCOMPARE(m_files->load("one.png", image, reason), NxImageState::Pending);
        QCOMPARE(read("one.png"), NxImageState::Loaded);
    }

private:
    [[nodiscard]] QString file(const char* name) const { return m_root->filePath(QLatin1String(name)); }

    void savePixel(const char* name) const
    {
        QImage picture(1, 1, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(file(name)));
    }

    void start(HelperOptions options)
    {
        if (options.program.isEmpty())
            options.program = QStringLiteral(ORVANE_IMPORT_PROGRAM);
        m_files = std::make_unique<TextureFiles>(options);
        m_files->setFolder(file("scene"));
    }

    /// What becomes of a file in the end.
    NxImageState read(const std::string& name)
    {
        m_files->dropResults();
        m_image = {};
        m_reason.clear();
        NxImageState state = m_files->load(name, m_image, m_reason);
        if (state == NxImageState::Pending && QTest::qWaitFor([this] { return !m_files->isLoading(); }, testPatience))
            state = m_files->load(name, m_image, m_reason);
        return state;
    }

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<TextureFiles> m_files;
    NxImage m_image;
    std::string m_reason;
};

QTEST_GUILESS_MAIN(TestTextureFiles)
#include "tst_TextureFiles.moc"
