#include "app/AppScenes.h"
#include "app/StepClock.h"

#include "orvane/app/images/ImageFolderQuestion.h"
#include "orvane/app/images/TextureFiles.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/problems/LiveCheck.h"
#include "orvane/app/scene/Session.h"

#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

std::size_t all(const NxSceneCheck& check)
{
    return check.count(NxSeverity::Error) + check.count(NxSeverity::Warning) + check.count(NxSeverity::Information);
}

} // namespace

/// The check of the open scene, as it goes on and off.
class TestLiveCheck : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_session = std::make_unique<Session>(AppSettings::Mode::None);
        m_textures = std::make_unique<TextureFiles>();
        m_messages = std::make_unique<MessageBar>();
        m_folders = std::make_unique<ImageFolderQuestion>(*m_textures, m_session->settings(), *m_messages, nullptr);
        m_check = std::make_unique<LiveCheck>(*m_session, *m_folders, &StepClock::now);
    }

    void cleanup()
    {
        m_check.reset();
        m_folders.reset();
        m_messages.reset();
        m_textures.reset();
        m_session.reset();
    }

    void itChecksTheOpenSceneWhileItIsOn()
    {
        QVERIFY(m_check->check() == nullptr);
        m_check->setOn(true);
        QVERIFY(m_check->check() == nullptr);
        m_session->document().open(AppScenes::robot(), {});
        QVERIFY(m_check->check() != nullptr && !m_check->isSettled());
        QTRY_VERIFY(m_check->isSettled());
        QCOMPARE(all(*m_check->check()), std::size_t{4}); // three meshes without positions, and a light
        QSignalSpy replaced(m_check.get(), &LiveCheck::replaced);
        m_session->document().close();
        QVERIFY(m_check->check() == nullptr);
        QCOMPARE(replaced.size(), 1);
        m_session->document().newScene();
        QTRY_VERIFY(m_check->isSettled());
        m_check->setOn(false);
        QVERIFY(m_check->check() == nullptr);
    }

    void noSliceIsLongerThanItMay()
    {
        constexpr int nodes = 30000;
        m_session->document().open(AppScenes::wide(nodes), {});
        const TurnCounter turns;
        m_check->setOn(true);
        QTRY_VERIFY(m_check->isSettled());
        QCOMPARE(m_check->check()->count(NxSeverity::Information), std::size_t{nodes});
        QVERIFY2(turns.turns() > 10, qPrintable(QString::number(turns.turns())));
        // The slice is 4 readings long; its beginning and its end are read, too.
        QVERIFY2(turns.mostReadings() <= 6, qPrintable(QString::number(turns.mostReadings())));
    }

    void changesAreCheckedWhileAStepGoesOn()
    {
        m_session->document().open(
            AppScenes::read("#mrd 1.0\nMaterial \"m\" {}\nMesh { positions = [0 0 0]; primitive = POINTS }"), {});
        m_check->setOn(true);
        QTRY_VERIFY(m_check->isSettled());
        QCOMPARE(all(*m_check->check()), std::size_t{0});
        auto& material = dynamic_cast<NxMaterial&>(*m_session->document().scene()->getChild(0));
        material.transparency.setValue(3);
        QTRY_COMPARE(m_check->check()->count(NxSeverity::Warning), std::size_t{1});
        material.transparency.setValue(1);
        QTRY_COMPARE(m_check->check()->count(NxSeverity::Warning), std::size_t{0});
        QTRY_VERIFY(m_check->isSettled());
    }

    void filesAreLookedForInTheFoldersOfImages()
    {
        const QTemporaryDir folder;
        const QTemporaryDir other;
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("image.png")));
        m_session->document().open(AppScenes::read("#mrd 1.0\nTexture \"a\" { filePath = \"image.png\" }\n"
                                                   "Texture \"b\" { filePath = \"none.png\" }\n"
                                                   "Texture \"c\" {}\n"
                                                   "FieldGallery { sfFilePathString = \"/nowhere/file\" }"),
            folder.filePath(QStringLiteral("scene.mrd")));
        auto& texture = dynamic_cast<NxTexture&>(*m_session->document().scene()->getChild(2));
        texture.filePath.setValue(VbString(other.filePath(QStringLiteral("x.png")).toStdString()));
        m_check->setOn(true);
        // A folder, a file that isn't there, and one outside; what isn't an image is left alone.
        QTRY_COMPARE(m_check->check()->count(NxSeverity::Error), std::size_t{3});
        QStringList sentences;
        m_check->check()->reportAll([&](const NxSceneProblem& problem, std::span<const int> /*places*/) {
            if (problem.about().severity == NxSeverity::Error)
                sentences += QString::fromStdString(problem.sentence());
            return true;
        });
        QCOMPARE(sentences.value(0), QStringLiteral("The file 'image.png' isn't a regular file."));
        QCOMPARE(sentences.value(1), QStringLiteral("The file 'none.png' doesn't exist."));
        QVERIFY(sentences.value(2).endsWith(QStringLiteral("is in a folder that images aren't loaded from.")));
    }

private:
    std::unique_ptr<Session> m_session;
    std::unique_ptr<TextureFiles> m_textures;
    std::unique_ptr<MessageBar> m_messages;
    std::unique_ptr<ImageFolderQuestion> m_folders;
    std::unique_ptr<LiveCheck> m_check;
};

QTEST_MAIN(TestLiveCheck)
#include "tst_LiveCheck.moc"
