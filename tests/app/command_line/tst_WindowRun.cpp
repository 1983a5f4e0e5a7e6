#include "TestFiles.h"
#include "app/AppScenes.h"

#include "orvane/app/command_line/FieldAccess.h"
#include "orvane/app/command_line/WindowRun.h"
#include "orvane/app/files/FileWork.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/window/MainWindow.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

// What a command line asks for in the scene of its file, while the user does something else.
class TestWindowRun : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_line = {};
        m_line.noSettings = true;
        m_line.file = path("one.mrd");
        m_line.assignments = {{QStringLiteral("/paint.transparency"), QStringLiteral("0.5")}};
        writeFile(m_line.file, "#mrd 1.0\nMaterial \"paint\" {}\n");
        writeFile(path("two.mrd"), "#mrd 1.0\nMaterial \"paint\" {}\n");
    }

    void setsWhatTheCommandLineAsksFor()
    {
        run([](MainWindow& window) { return window.document().isOpen(); });
        QCOMPARE(m_fileName, m_line.file);
        QCOMPARE(m_transparency, QStringLiteral("0.5"));
        QVERIFY(!m_messages.contains(notApplied()));
    }

    void setsNothingWhenTheLoadIsCancelled()
    {
        run([](MainWindow& window) {
            if (beingOpened(window).isEmpty())
                return false;
            window.findChild<JobBar*>()->cancel();
            return true;
        });
        QCOMPARE(m_fileName, QString());
        QVERIFY2(m_messages.contains(notApplied()), qPrintable(m_messages.join(u'\n')));
    }

    void setsNothingWhenTheLoadFails()
    {
        writeFile(m_line.file, "#mrd 1.0\nMaterial {");
        run([](MainWindow& window) { return !beingOpened(window).isEmpty(); });
        QCOMPARE(m_fileName, QString());
        QVERIFY2(m_messages.contains(notApplied()), qPrintable(m_messages.join(u'\n')));
    }

    void leavesAnotherFileAloneThatIsOpenedMeanwhile()
    {
        run([this](MainWindow& window) {
            if (beingOpened(window) != m_line.file)
                return false;
            window.openFile(path("two.mrd"));
            return true;
        });
        QCOMPARE(m_fileName, path("two.mrd"));
        QCOMPARE(m_transparency, QStringLiteral("0"));
        QVERIFY2(m_messages.contains(notApplied()), qPrintable(m_messages.join(u'\n')));
    }

private:
    // Runs the tool, does something as soon as that can be done, lets all work end, and notes what is there.
    void run(const std::function<bool(MainWindow&)>& act)
    {
        m_fileName.clear();
        m_transparency.clear();
        WindowRun windowRun(m_line);
        QTimer timer;
        bool acted = false;
        int quiet = 0;
        connect(&timer, &QTimer::timeout, this, [&] {
            MainWindow* window = mainWindow();
            if (window == nullptr)
                return;
            acted = acted || act(*window);
            constexpr int enough = 20; // turns of the event loop in which nothing is read
            quiet = acted && beingOpened(*window).isEmpty() ? quiet + 1 : 0;
            if (quiet < enough)
                return;
            timer.stop();
            look(*window);
            QCoreApplication::exit(0);
        });
        timer.start(0);
        QCOMPARE(windowRun.run(), 0);
    }

    void look(const MainWindow& window)
    {
        m_fileName = window.document().fileName();
        m_messages = window.findChild<MessageBar*>()->texts();
        if (window.document().isOpen())
            m_transparency
                = orvane::fieldText(window.document().scene(), QStringLiteral("/paint.transparency")).value();
    }

    static MainWindow* mainWindow()
    {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* window = qobject_cast<MainWindow*>(widget))
                return window;
        }
        return nullptr;
    }

    static QString beingOpened(const MainWindow& window) { return window.findChild<FileWork*>()->fileBeingOpened(); }

    [[nodiscard]] QString notApplied() const
    {
        return m_line.file + QStringLiteral(" wasn't opened, so what the command line sets and selects is left out.");
    }
    [[nodiscard]] QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    CommandLine m_line;
    QString m_fileName;
    QString m_transparency;
    QStringList m_messages;
};

QTEST_MAIN(TestWindowRun)
#include "tst_WindowRun.moc"
