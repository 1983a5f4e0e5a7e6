#pragma once

#include "Patience.h"
#include "app/AppScenes.h"
#include "app/files/HeldJobs.h"

#include "orvane/app/files/FileFlow.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/files/RecentFiles.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/scene/NodeCommands.h"
#include "orvane/app/scene/Session.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

#include <array>
#include <memory>

/// A test of the requests around files. The test holds the jobs, and lets each end when it wants.
class FileFlowCase : public QObject {
protected:
    using Kind = FileRequest::Kind;

    /// Opens a scene with a node "old" in a window of its own.
    void startFlow()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_session = std::make_unique<Session>(AppSettings::Mode::None);
        m_window = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(m_window.get());
        m_messages = new MessageBar(m_window.get());
        auto* jobBar = new JobBar(m_window.get());
        layout->addWidget(m_messages);
        layout->addWidget(jobBar);
        m_recent = new RecentFiles(m_session->settings(), m_window.get());
        m_jobs = std::make_unique<HeldJobs>();
        m_flow = new FileFlow(*m_session, *m_recent, *m_messages, *jobBar, m_window.get(), m_jobs->makers());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get(), testPatience));
        document().open(AppScenes::read("#mrd 1.0\nGroup \"old\" {}\n"), path("old.mrd"));
        connect(&document(), &SceneDocument::sceneChanged, m_window.get(), [this] { note("open ", sceneName()); });
        connect(m_flow, &FileFlow::readToCompare, m_window.get(), [this](const NxRef<NxGroup>& other) {
            note("compare ", sceneName() + QStringLiteral(" with ") + HeldJobs::nameOf(other.get()));
        });
    }

    /// Closes everything, which must leave nothing behind.
    void endFlow()
    {
        m_session->shutDown();
        m_window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_session.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    /// The name of a kind in rows.
    static const char* name(Kind kind)
    {
        static constexpr std::array<const char*, 10> names{
            "new", "open", "add", "compare", "reload", "save", "save as", "export", "close", "quit"};
        return names.at(static_cast<std::size_t>(kind));
    }

    /// Makes a request. The file is one to read.
    void ask(Kind kind, const char* file)
    {
        switch (kind) {
        case Kind::New:
            return m_flow->newScene();
        case Kind::Open:
            return m_flow->open(path(file));
        case Kind::Add:
            return m_flow->import(path(file));
        case Kind::Compare:
            return m_flow->compareWith(path(file));
        case Kind::Reload:
            return m_flow->reload();
        case Kind::Save:
            return m_flow->save();
        case Kind::SaveAs:
            return m_flow->saveAs();
        case Kind::Export:
            return m_flow->exportTo(path("out.glb"));
        case Kind::Close:
            return m_flow->closeScene();
        case Kind::Quit:
            return m_flow->leaveForQuit([this] {
                note("quit", {});
                m_flow->abandon();
            });
        }
    }

    /// Adds a node "edit" to the scene.
    void edit()
    {
        const NxRef<NxGroup> node(new NxGroup);
        node->setName(VbString("edit"));
        m_session->services().pushCommand(new AddNodeCommand(document().scene(), node, m_session->disposal()));
    }

    void choose(QFileDialog* dialog, const char* file)
    {
        QVERIFY(QTest::qWaitForWindowActive(dialog, testPatience));
        // Set rather than typed, since the completion of names would take the keys that follow.
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path(file));
        const auto* buttons = dialog->findChild<QDialogButtonBox*>();
        QTest::mouseClick(buttons->button(QDialogButtonBox::Save), Qt::LeftButton);
    }

    QMessageBox* question() { return m_window->findChild<QMessageBox*>(QStringLiteral("saveQuestion")); }

    void answerQuestion(int answer)
    {
        QVERIFY(question() != nullptr);
        QTest::mouseClick(question()->button(static_cast<QMessageBox::StandardButton>(answer)), Qt::LeftButton);
    }

    /// Lets what waits in the event loop run.
    static void settle()
    {
        QEventLoop loop;
        while (loop.processEvents()) { }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Ends the jobs in the order in which they were started, with those that start meanwhile.
    void finishAll()
    {
        settle();
        while (!m_jobs->running().empty()) {
            HeldJobs::finish(m_jobs->running().front());
            settle();
        }
    }

    void note(const char* what, const QString& name) { m_jobs->log() += QLatin1String(what) + name; }
    [[nodiscard]] QString sceneName() { return HeldJobs::nameOf(document().scene()); }
    SceneDocument& document() { return m_session->document(); }
    [[nodiscard]] QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<HeldJobs> m_jobs;
    MessageBar* m_messages = nullptr;
    RecentFiles* m_recent = nullptr;
    FileFlow* m_flow = nullptr;
};
