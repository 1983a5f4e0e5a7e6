#pragma once

#include "Patience.h"

#include "orvane/app/scene/Session.h"
#include "orvane/app/window/MainWindow.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// A test of the main window, which has a session, settings and a folder of its own.
class WindowCase : public QObject {
protected:
    /// Gives the test an empty folder and a window.
    void startTool()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        makeWindow();
    }

    /// Closes the window, which must leave nothing behind.
    void endTool()
    {
        m_window.reset();
        m_session.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    /// Makes a window in place of the former one, as the next run of the tool would have it.
    void makeWindow()
    {
        m_window.reset();
        m_session.reset();
        m_session = std::make_unique<Session>(AppSettings::Mode::File, filePath("orvane.ini"));
        m_window = std::make_unique<MainWindow>(*m_session);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get(), testPatience));
    }

    /// Opens a file as a user does. The result is the reason of a failure.
    QString open(const QString& fileName)
    {
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        m_window->openFile(fileName);
        if (settled.isEmpty())
            settled.wait(testPatience);
        return settled.isEmpty() ? QStringLiteral("nothing settled")
                                 : settled.front().front().value<orvane::Result<>>().error();
    }

    [[nodiscard]] QString filePath(const char* name) const { return m_folder->filePath(QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<MainWindow> m_window;
};
