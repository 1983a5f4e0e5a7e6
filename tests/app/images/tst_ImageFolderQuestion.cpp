#include "Patience.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/images/ImageFolderQuestion.h"
#include "orvane/app/images/TextureFiles.h"
#include "orvane/app/messages/MessageBar.h"

#include <QDir>
#include <QImage>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

class TestImageFolderQuestion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        for (const char* folder : {"scene", "one", "two"}) {
            QVERIFY(QDir(m_root->path()).mkdir(QLatin1String(folder)));
            QImage picture(1, 1, QImage::Format_RGB32);
            picture.fill(Qt::red);
            QVERIFY(picture.save(path(folder) + QStringLiteral("/a.png")));
        }
        start();
    }

    void theUserIsAskedOnceAboutEachFolder()
    {
        load("../one/a.png");
        load("../one/b.png");
        QCOMPARE(m_messages->texts(), QStringList(questionOf("one")));
        load("../two/a.png");
        QCOMPARE(m_messages->texts(), QStringList(questionOf("one")));
        press("acceptMessage");
        QCOMPARE(m_messages->texts(), QStringList(questionOf("two")));
        QCOMPARE(load("../one/a.png"), NxImageState::Loaded);
        QCOMPARE(load("../two/a.png"), NxImageState::Withheld);
        press("acceptMessage");
        QCOMPARE(m_messages->texts(), QStringList());
        QCOMPARE(load("../two/a.png"), NxImageState::Loaded);
    }

    void whatIsAllowedIsRemembered()
    {
        load("../one/a.png");
        press("acceptMessage");
        start();
        QCOMPARE(m_question->allowedFolders(), QStringList(path("one")));
        QCOMPARE(load("../one/a.png"), NxImageState::Loaded);
        QCOMPARE(m_messages->texts(), QStringList());
    }

    void whatIsForgottenIsAskedAbout()
    {
        load("../one/a.png");
        press("acceptMessage");
        m_question->forgetFolders();
        m_textures->dropResults();
        QCOMPARE(load("../one/a.png"), NxImageState::Withheld);
        QCOMPARE(m_messages->texts(), QStringList(questionOf("one")));
        start();
        QCOMPARE(m_question->allowedFolders(), QStringList());
    }

    void aClosedQuestionIsANoForTheRestOfTheScene()
    {
        load("../one/a.png");
        load("../two/a.png");
        press("closeMessage");
        QCOMPARE(m_messages->texts(), QStringList());
        load("../a.png");
        QCOMPARE(m_messages->texts(), QStringList());
        QCOMPARE(m_question->allowedFolders(), QStringList());
        // The next scene is another matter.
        m_question->reset();
        m_textures->clear();
        load("../one/a.png");
        QCOMPARE(m_messages->texts(), QStringList(questionOf("one")));
        m_question->reset();
        QCOMPARE(m_messages->texts(), QStringList());
    }

private:
    [[nodiscard]] QString path(const char* name) const { return m_root->filePath(QLatin1String(name)); }

    [[nodiscard]] QString questionOf(const char* folder) const
    {
        return QStringLiteral(
            "The scene refers to images in %1, outside its own folder. They aren't loaded unless you allow it.")
            .arg(path(folder));
    }

    /// As the next run of the tool would have it.
    void start()
    {
        m_question.reset();
        m_settings = std::make_unique<AppSettings>(AppSettings::Mode::File, path("orvane.ini"));
        m_messages = std::make_unique<MessageBar>();
        HelperOptions options;
        options.program = QStringLiteral(ORVANE_IMPORT_PROGRAM);
        m_textures = std::make_unique<TextureFiles>(options);
        m_question = std::make_unique<ImageFolderQuestion>(*m_textures, *m_settings, *m_messages, nullptr);
        m_textures->setFolder(path("scene"));
    }

    NxImageState load(const char* name)
    {
        NxImage image;
        std::string reason;
        const NxImageState state = m_textures->load(name, image, reason);
        if (state == NxImageState::Pending
            && QTest::qWaitFor([this] { return !m_textures->isLoading(); }, testPatience))
            return m_textures->load(name, image, reason);
        return state;
    }

    void press(const char* button)
    {
        QVERIFY(QTest::qWaitForWindowExposed(m_messages.get(), testPatience));
        for (QAbstractButton* each : m_messages->findChildren<QAbstractButton*>(QLatin1String(button))) {
            if (each->isVisible()) {
                QTest::mouseClick(each, Qt::LeftButton);
                return;
            }
        }
        QFAIL("no such button");
    }

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<AppSettings> m_settings;
    std::unique_ptr<MessageBar> m_messages;
    std::unique_ptr<TextureFiles> m_textures;
    std::unique_ptr<ImageFolderQuestion> m_question;
};

QTEST_MAIN(TestImageFolderQuestion)
#include "tst_ImageFolderQuestion.moc"
