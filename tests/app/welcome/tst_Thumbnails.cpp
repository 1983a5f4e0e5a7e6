#include "Patience.h"
#include "TestFiles.h"

#include "orvane/app/welcome/BackgroundJobs.h"
#include "orvane/app/welcome/Thumbnails.h"

#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <future>
#include <memory>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// Pictures of scene files in the cache, and the threads that read and write them.
class TestThumbnails : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }
    [[nodiscard]] Thumbnails thumbnails() const { return Thumbnails(path(u"cache/thumbnails"_s)); }
    static QImage picture(Qt::GlobalColor color, const QSize& size = QSize(1280, 800))
    {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(color);
        return image;
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_scene = path(u"a b.mrd"_s);
        writeFile(m_scene, "#mrd 1.0\n");
    }

    void aPictureIsKeptSmall()
    {
        QVERIFY(thumbnails().read(m_scene).isNull());
        QCOMPARE(thumbnails().write(m_scene, picture(Qt::blue)).error(), QString());
        const QImage kept = thumbnails().read(m_scene);
        QCOMPARE(kept.size(), QSize(256, 160));
        QCOMPARE(kept.pixelColor(10, 10), QColor(Qt::blue));
        QCOMPARE(thumbnails().write(m_scene, picture(Qt::green, QSize(20, 10))).error(), QString());
        QCOMPARE(thumbnails().read(m_scene).size(), QSize(20, 10));
    }

    /// As the standard of the desktop has it: other programs find it, and know of which file and state it is.
    void otherProgramsFindIt()
    {
        // The hash of file:///home/jens/photos/me.png is the example of the standard.
        QVERIFY(thumbnails()
                    .pathOf(u"/home/jens/photos/me.png"_s)
                    .endsWith(u"/large/c6ee772d9e49320e97ec29a7eb5b1697.png"_s));
        QVERIFY(thumbnails().write(m_scene, picture(Qt::blue)));
        const QImage kept(thumbnails().pathOf(m_scene));
        QCOMPARE(kept.text(u"Thumb::URI"_s), u"file://"_s + m_folder->path() + u"/a%20b.mrd"_s);
        QCOMPARE(kept.text(u"Thumb::MTime"_s), QString::number(QFileInfo(m_scene).lastModified().toSecsSinceEpoch()));
        struct stat status { };
        QCOMPARE(::stat(qPrintable(thumbnails().pathOf(m_scene)), &status), 0);
        QCOMPARE(status.st_mode & 0777, mode_t{0600});
        QCOMPARE(::stat(qPrintable(path(u"cache/thumbnails/large"_s)), &status), 0);
        QCOMPARE(status.st_mode & 0777, mode_t{0700});
    }

    void whatIsNoPictureOfTheFileIsntShown_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("no picture");
        QTest::newRow("much") << QByteArray(2 << 20, 'x');
    }
    void whatIsNoPictureOfTheFileIsntShown()
    {
        QFETCH(const QByteArray, bytes);
        QVERIFY(thumbnails().write(m_scene, picture(Qt::blue)));
        writeFile(thumbnails().pathOf(m_scene), bytes);
        QVERIFY(thumbnails().read(m_scene).isNull());
    }

    void thePictureOfAnotherFileIsntShown()
    {
        QVERIFY(thumbnails().write(m_scene, picture(Qt::blue)));
        const QString other = path(u"other.mrd"_s);
        QVERIFY(QFile::copy(thumbnails().pathOf(m_scene), thumbnails().pathOf(other)));
        QVERIFY(thumbnails().read(other).isNull());
        QVERIFY(!thumbnails().read(m_scene).isNull());
    }

    void withoutAPlaceThereIsAReason()
    {
        writeFile(path(u"file"_s), "x");
        const auto written = Thumbnails(path(u"file/thumbnails"_s)).write(m_scene, picture(Qt::blue));
        QVERIFY(!written);
        QVERIFY(!written.error().isEmpty());
        QVERIFY(!thumbnails().write(path(u"gone.mrd"_s), picture(Qt::blue)));
    }

    void jobsComeBackToTheThreadThatAskedFor()
    {
        BackgroundJobs jobs(2);
        const Qt::HANDLE here = QThread::currentThreadId();
        int taken = 0;
        for (int i = 0; i < 20; ++i) {
            jobs.run([&taken, here]() -> BackgroundJobs::Take {
                const bool isElsewhere = QThread::currentThreadId() != here;
                return [&taken, here, isElsewhere] {
                    if (isElsewhere && QThread::currentThreadId() == here)
                        ++taken;
                };
            });
        }
        QVERIFY(jobs.wait(std::chrono::milliseconds(testPatience)));
        QTRY_COMPARE(taken, 20);
    }

    void aJobThatHangsIsntWaitedFor()
    {
        auto gate = std::make_shared<std::promise<void>>();
        const std::shared_future<void> opened = gate->get_future().share();
        bool isTaken = false;
        {
            BackgroundJobs jobs(1);
            jobs.run([opened, &isTaken]() -> BackgroundJobs::Take {
                opened.wait();
                return [&isTaken] { isTaken = true; };
            });
            QVERIFY(!jobs.wait(std::chrono::milliseconds(20)));
        }
        gate->set_value();
        QCoreApplication::processEvents();
        QVERIFY(!isTaken);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_scene;
};

QTEST_GUILESS_MAIN(TestThumbnails)

#include "tst_Thumbnails.moc"
