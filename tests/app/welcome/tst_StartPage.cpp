#include "Patience.h"
#include "TestFiles.h"
#include "app/ItemClicks.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/files/RecentFiles.h"
#include "orvane/app/welcome/RecentModel.h"
#include "orvane/app/welcome/RecentView.h"
#include "orvane/app/welcome/StartPage.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

/// A drive that doesn't answer before it is told to.
class HangingDrive {
public:
    ~HangingDrive() { answer(); }

    /// What the page gets to look at files with. It may be called when this object is gone.
    [[nodiscard]] FileLookup::Look look()
    {
        return [state = m_state](const QString& fileName) {
            ++state->asked;
            std::unique_lock lock(state->mutex);
            state->changed.wait(lock, [&state] { return state->answers; });
            return FileLookup::look(fileName);
        };
    }
    void answer()
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->answers = true;
        m_state->changed.notify_all();
    }
    [[nodiscard]] int asked() const { return m_state->asked; }

private:
    struct State {
        std::mutex mutex;
        std::condition_variable changed;
        bool answers = false;
        std::atomic<int> asked = 0;
    };
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace

/// The page while no scene is open, with its recent files.
class TestStartPage : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }
    QString makeFile(const QString& name)
    {
        writeFile(path(name), "#mrd 1.0\n");
        return path(name);
    }
    void addFiles(int count)
    {
        for (int i = 1; i <= count; ++i)
            m_recent->add(makeFile(u"scene%1.mrd"_s.arg(i)));
    }
    void show(
        const FileLookup::Look& look = &FileLookup::look, std::chrono::milliseconds patience = std::chrono::minutes(1))
    {
        m_page = std::make_unique<StartPage>(*m_recent, thumbnails(), look, patience);
        m_page->resize(900, 700);
        m_page->show();
        m_page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get(), testPatience));
    }
    [[nodiscard]] Thumbnails thumbnails() const { return Thumbnails(path(u"thumbnails"_s)); }
    [[nodiscard]] RecentView* files() const { return m_page->findChild<RecentView*>(u"recentFiles"_s); }
    [[nodiscard]] QStringList shown() const
    {
        QStringList names;
        for (int row = 0; row < files()->model()->rowCount(); ++row)
            names.append(files()->model()->index(row, 0).data().toString());
        return names;
    }
    [[nodiscard]] FileState::Kind state(int row) const
    {
        return static_cast<FileState::Kind>(files()->model()->index(row, 0).data(RecentModel::StateRole).toInt());
    }
    [[nodiscard]] QAction* action(const QString& name) const { return m_page->findChild<QAction*>(name); }
    /// Gives the list the focus and marks a tile by keys.
    void mark(int row)
    {
        files()->setFocus(Qt::TabFocusReason);
        QTest::keyClick(files(), Qt::Key_Home);
        for (int i = 0; i < row; ++i)
            QTest::keyClick(files(), Qt::Key_Right);
        QCOMPARE(files()->currentIndex().row(), row);
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_settings = std::make_unique<AppSettings>(AppSettings::Mode::File, path(u"orvane.ini"_s));
        m_recent = std::make_unique<RecentFiles>(*m_settings);
    }
    void cleanup()
    {
        m_page.reset();
        m_recent.reset();
        m_settings.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void withoutRecentFilesThereIsNoList()
    {
        show();
        QVERIFY(!files()->isVisible());
        QVERIFY(m_page->findChild<QPushButton*>(u"startOpen"_s)->isVisible());
        m_recent->add(makeFile(u"a.mrd"_s));
        QVERIFY(files()->isVisible());
    }

    void aClickOpensAFile()
    {
        addFiles(3);
        show();
        QCOMPARE(shown(), QStringList({u"scene3.mrd"_s, u"scene2.mrd"_s, u"scene1.mrd"_s}));
        const QSignalSpy chosen(m_page.get(), &StartPage::fileChosen);
        ItemClicks::click(files(), files()->model()->index(1, 0));
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.front().front().toString(), path(u"scene2.mrd"_s));
    }

    void keysMarkAndOpen()
    {
        addFiles(3);
        show();
        const QSignalSpy chosen(m_page.get(), &StartPage::fileChosen);
        mark(2);
        QTest::keyClick(files(), Qt::Key_Left);
        QTest::keyClick(files(), Qt::Key_Return);
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.front().front().toString(), path(u"scene2.mrd"_s));
        const QSignalSpy windows(m_page.get(), &StartPage::windowRequested);
        QTest::keyClick(files(), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(windows.size(), 1);
        QCOMPARE(windows.front().front().toString(), path(u"scene2.mrd"_s));
        QCOMPARE(chosen.size(), 1);
    }

    void deleteRemovesFromTheList()
    {
        addFiles(3);
        show();
        mark(1);
        QTest::keyClick(files(), Qt::Key_Delete);
        QCOMPARE(shown(), QStringList({u"scene3.mrd"_s, u"scene1.mrd"_s}));
        QCOMPARE(files()->currentIndex().row(), 1);
        QTest::keyClick(files(), Qt::Key_Delete);
        QTest::keyClick(files(), Qt::Key_Delete);
        QVERIFY(m_recent->fileNames().isEmpty());
        QVERIFY(QFile::exists(path(u"scene2.mrd"_s)));
        QVERIFY(!files()->isVisible());
    }

    void theMenuHasWhatCanBeDone()
    {
        addFiles(2);
        show();
        const QPoint place = files()->visualRect(files()->model()->index(1, 0)).center();
        QTest::mouseClick(files()->viewport(), Qt::RightButton, {}, place);
        QContextMenuEvent request(QContextMenuEvent::Mouse, place, files()->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(files()->viewport(), &request);
        auto* const menu = files()->findChild<QMenu*>(u"recentFileMenu"_s);
        QVERIFY(menu != nullptr && menu->isVisible());
        QStringList names;
        for (const QAction* const entry : menu->actions()) {
            if (!entry->isSeparator()) {
                names.append(entry->objectName());
                QVERIFY(entry->isEnabled());
                QVERIFY(!entry->statusTip().isEmpty());
            }
        }
        QCOMPARE(names,
            QStringList({u"recent.open"_s, u"recent.openInNewWindow"_s, u"recent.showInFolder"_s, u"recent.pin"_s,
                u"recent.remove"_s}));
        const QSignalSpy windows(m_page.get(), &StartPage::windowRequested);
        QTest::keyClick(menu, Qt::Key_N);
        QCOMPARE(windows.size(), 1);
        QCOMPARE(windows.front().front().toString(), path(u"scene1.mrd"_s));
    }

    void aPinnedFileStaysFirst()
    {
        addFiles(3);
        show();
        mark(2);
        action(u"recent.pin"_s)->trigger();
        QCOMPARE(shown(), QStringList({u"scene1.mrd"_s, u"scene3.mrd"_s, u"scene2.mrd"_s}));
        m_recent->clear();
        QCOMPARE(shown(), QStringList({u"scene1.mrd"_s}));
        mark(0);
        QVERIFY(action(u"recent.pin"_s)->text().contains(u"Un"_s));
        action(u"recent.pin"_s)->trigger();
        QVERIFY(shown().isEmpty());
        m_recent->setPinned(path(u"scene2.mrd"_s), true);
        QCOMPARE(RecentFiles(*m_settings).pinned(), QStringList(path(u"scene2.mrd"_s)));
    }

    void manyFilesAreSearched()
    {
        addFiles(StartPage::manyFiles);
        show();
        auto* const search = m_page->findChild<QLineEdit*>(u"recentSearch"_s);
        QVERIFY(!search->isVisible());
        m_recent->add(makeFile(u"Robot arm.mrd"_s));
        QVERIFY(search->isVisible());
        QTest::keyClicks(search, u"ARM rob"_s);
        QCOMPARE(shown(), QStringList(u"Robot arm.mrd"_s));
        QTest::keyClicks(search, u"x"_s);
        QVERIFY(shown().isEmpty());
        search->clear();
        QCOMPARE(shown().size(), StartPage::manyFiles + 1);
    }

    void missingFilesAreMarkedAndCanBeRemoved()
    {
        addFiles(3);
        QVERIFY(QFile::remove(path(u"scene2.mrd"_s)));
        show();
        QTRY_COMPARE(state(1), FileState::Kind::Missing);
        QTRY_COMPARE(state(0), FileState::Kind::There);
        QVERIFY(files()->model()->index(1, 0).data(Qt::AccessibleTextRole).toString().contains(u"Missing"_s));
        auto* const remove = m_page->findChild<QPushButton*>(u"removeMissing"_s);
        QVERIFY(remove->isVisible());
        QTest::mouseClick(remove, Qt::LeftButton);
        QTRY_COMPARE(shown(), QStringList({u"scene3.mrd"_s, u"scene1.mrd"_s}));
        QVERIFY(!remove->isVisible());
    }

    void aFileThatComesBackIsSeenWhenThePageIsShownAgain()
    {
        addFiles(1);
        QVERIFY(QFile::remove(path(u"scene1.mrd"_s)));
        show();
        QTRY_COMPARE(state(0), FileState::Kind::Missing);
        makeFile(u"scene1.mrd"_s);
        m_page->hide();
        m_page->show();
        QTRY_COMPARE(state(0), FileState::Kind::There);
    }

    /// The window never waits for a drive, and files of other drives are still found.
    void aDriveThatHangsIsntWaitedFor()
    {
        QStringList names;
        for (int i = 0; i < RecentFiles::capacity; ++i)
            names.append(u"/net/away/scene%1.mrd"_s.arg(i));
        m_settings->setValue(u"recentFiles"_s, names);
        HangingDrive drive;
        show(drive.look(), std::chrono::milliseconds(20));
        QCOMPARE(shown().size(), RecentFiles::capacity);
        QTRY_COMPARE(state(0), FileState::Kind::NoAnswer);
        // Those behind the ones that hang haven't been asked for at all.
        QCOMPARE(drive.asked(), FileLookup::mostThreads);
        QVERIFY(!m_page->findChild<QPushButton*>(u"removeMissing"_s)->isVisible());
        // Everything works meanwhile.
        const QSignalSpy chosen(m_page.get(), &StartPage::fileChosen);
        mark(1);
        QTest::keyClick(files(), Qt::Key_Return);
        QCOMPARE(chosen.size(), 1);
        QTest::keyClick(files(), Qt::Key_End);
        QTRY_COMPARE(state(RecentFiles::capacity - 1), FileState::Kind::NoAnswer);
        drive.answer();
        QTRY_COMPARE(state(0), FileState::Kind::Missing);
    }

    void thePageGoesWhileADriveHangs()
    {
        addFiles(3);
        HangingDrive drive;
        show(drive.look(), std::chrono::milliseconds(20));
        QTRY_VERIFY(drive.asked() > 0);
        m_page.reset();
        drive.answer();
    }

    void aFileHasItsPicture()
    {
        addFiles(2);
        QImage picture(640, 400, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(thumbnails().write(path(u"scene1.mrd"_s), picture));
        show();
        const QModelIndex index = files()->model()->index(1, 0);
        QTRY_VERIFY(!index.data(Qt::DecorationRole).value<QImage>().isNull());
        const QRect tile = files()->visualRect(index);
        const QImage seen = files()->viewport()->grab(tile).toImage();
        QCOMPARE(seen.pixelColor(seen.width() / 2, seen.height() / 3), QColor(Qt::red));
    }

    void theFolderIsShownInTheFileManager()
    {
        addFiles(1);
        show();
        mark(0);
        m_shownUrl.clear();
        QDesktopServices::setUrlHandler(u"file"_s, this, "takeUrl");
        action(u"recent.showInFolder"_s)->trigger();
        QDesktopServices::unsetUrlHandler(u"file"_s);
        QCOMPARE(m_shownUrl, QUrl::fromLocalFile(m_folder->path() + u'/'));
    }

    void aTileIsDraggedAsAFile()
    {
        addFiles(1);
        show();
        const QModelIndex index = files()->model()->index(0, 0);
        const std::unique_ptr<QMimeData> data(files()->model()->mimeData({index}));
        QCOMPARE(data->urls(), QList<QUrl>{QUrl::fromLocalFile(path(u"scene1.mrd"_s))});
    }

    void theModelKeepsTheRules()
    {
        RecentModel model(thumbnails());
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        model.setFiles({makeFile(u"a.mrd"_s)}, {makeFile(u"b.mrd"_s), path(u"a.mrd"_s), path(u"gone.mrd"_s)});
        QCOMPARE(model.rowCount(), 3);
        for (int row = 0; row < model.rowCount(); ++row)
            model.look(row);
        QTRY_COMPARE(model.missing(), QStringList(path(u"gone.mrd"_s)));
        model.setFiles({}, {path(u"gone.mrd"_s)});
        QCOMPARE(model.missing().size(), 1);
        model.setFiles({}, {});
    }

    void tilesGrowWithTheFont()
    {
        addFiles(1);
        show();
        const QSize before = files()->gridSize();
        QFont large = m_page->font();
        large.setPointSizeF(2 * large.pointSizeF());
        m_page->setFont(large);
        QVERIFY(files()->gridSize().height() > before.height() * 3 / 2);
    }

public Q_SLOTS:
    void takeUrl(const QUrl& url) { m_shownUrl = url; }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<AppSettings> m_settings;
    std::unique_ptr<RecentFiles> m_recent;
    std::unique_ptr<StartPage> m_page;
    QUrl m_shownUrl;
};

QTEST_MAIN(TestStartPage)

#include "tst_StartPage.moc"
