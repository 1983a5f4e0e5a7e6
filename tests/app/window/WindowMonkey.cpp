#include "app/window/WindowMonkey.h"

#include "Patience.h"
#include "app/window/UsableControls.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/scene/SceneDocument.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

WindowMonkey::WindowMonkey(unsigned seed, QHash<QString, int>& done)
    : m_random(seed)
    , m_done(done)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
    makeWindow();
    connect(&m_others, &QTimer::timeout, this, &WindowMonkey::answerOthers);
    m_others.start(1);
}

WindowMonkey::~WindowMonkey()
{
    m_window.reset();
    m_session.reset();
}

void WindowMonkey::makeWindow()
{
    m_window.reset();
    m_session.reset();
    m_marks.clear();
    m_session = std::make_unique<Session>(AppSettings::Mode::File, m_files.path("orvane.ini"));
    m_window = std::make_unique<MainWindow>(*m_session);
    connect(&m_session->document(), &SceneDocument::sceneChanged, this, &WindowMonkey::takeNewScene);
    connect(flow(), &FileFlow::reloaded, this, [this] {
        m_marks.renew(scene());
        m_session->services().clearHistory();
    });
    m_session->loadPlugins(OrvPluginsManager::findPlugins(orvane::pluginFolders()));
    m_session->loadProfiles({QStringLiteral(ORVANE_PROFILES)});
    QVERIFY(m_session->activateProfile({}));
    m_window->show();
}

void WindowMonkey::step()
{
    act();
    noteDialog();
    // Often none, so that the next thing happens in the middle of this one.
    for (int turns = below(6); turns > 0; --turns) {
        QCoreApplication::processEvents();
        noteDialog();
    }
    if (chance(5))
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (m_window->isHidden())
        leaveWindow();
    checkAdds();
    if (chance(3))
        checkFiles();
}

void WindowMonkey::act()
{
    // A dialog holds the window, so a user can do little else; the window system can.
    if (QDialog* const dialog = openDialog(); dialog != nullptr && chance(70)) {
        answer(dialog);
        return;
    }
    const int what = below(100);
    if (what < 35)
        askForFile();
    else if (what < 65)
        edit();
    else if (what < 85)
        useWindow();
    else if (what < 90)
        m_window->findChild<JobBar*>()->cancel();
    else if (what < 94)
        m_window->close();
    else if (what < 96)
        QApplication::closeAllWindows();
    else if (what < 97 && chance(30))
        makeWindow(); // as if the process had ended: nothing is asked
}

void WindowMonkey::askForFile()
{
    const int what = below(12);
    ++m_done[QStringLiteral("request %1").arg(what)];
    switch (what) {
    case 0:
        return flow()->newScene();
    case 1:
    case 2:
        return m_window->openFile(m_files.toRead(m_random()));
    case 3:
    case 4:
        ++m_addsAsked;
        m_files.restorePart();
        return flow()->import(m_files.path(chance(80) ? "part.mrd" : "part.obj"));
    case 5:
        return flow()->save();
    case 6: {
        const QString fileName = m_files.toWrite(m_random());
        noteSave(fileName);
        return flow()->saveTo(fileName);
    }
    case 7:
        return flow()->closeScene();
    default:
        break;
    }
    static const QStringList dialogs{QStringLiteral("file.saveAs"), QStringLiteral("file.export"),
        QStringLiteral("file.open"), QStringLiteral("file.import"), QStringLiteral("file.compare"),
        QStringLiteral("file.reload")};
    m_window->findChild<QAction*>(dialogs.at(below(static_cast<int>(dialogs.size()))))->trigger();
}

// Through the services, as the parts of the window do. What may not be changed while it is written isn't.
void WindowMonkey::edit()
{
    NxGroup* const open = scene();
    if (open == nullptr || m_window->findChild<QDialog*>() != nullptr)
        return;
    const int count = open->getNumChildren();
    OrvServices& services = m_session->services();
    const int what = below(5);
    if (what == 0) {
        services.undo();
    } else if (what == 1) {
        services.redo();
    } else if (what == 2) {
        QTest::keyClick(m_window->findChild<QTreeView*>(), Qt::Key_Down);
    } else if (count > 0) {
        NxNode* const node = open->getChild(below(count));
        services.selectNode(node);
        if (what == 3 && !node->getFields().empty())
            services.selectField(
                node->getFields()[static_cast<std::size_t>(below(static_cast<int>(node->getFields().size())))]);
    }
}

// Keys and mouse on whatever can be seen.
void WindowMonkey::useWindow()
{
    const QList<QWidget*> widgets = usableControls(*m_window);
    if (widgets.isEmpty() || QApplication::activePopupWidget() != nullptr) {
        if (QWidget* const popup = QApplication::activePopupWidget())
            popup->close();
        return;
    }
    QWidget* const widget = widgets.at(below(static_cast<int>(widgets.size())));
    if (chance(50))
        pressRandomKey(widget);
    else if (auto* const view = qobject_cast<QAbstractItemView*>(widget))
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(30, below(std::max(view->height(), 1))));
    else
        QTest::mouseClick(widget, Qt::LeftButton);
}

void WindowMonkey::pressRandomKey(QWidget* widget)
{
    constexpr Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Up, Qt::Key_Left, Qt::Key_Right,
        Qt::Key_F2, Qt::Key_Escape, Qt::Key_1, Qt::Key_Backspace, Qt::Key_Space, Qt::Key_Delete};
    QTest::keyClick(widget, keys[below(static_cast<int>(std::size(keys)))]);
}

QDialog* WindowMonkey::openDialog() const
{
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    static const QSet<QString> ours{QStringLiteral("saveQuestion"), QStringLiteral("overwriteQuestion"),
        QStringLiteral("saveDialog"), QStringLiteral("openDialog"), QStringLiteral("importDialog"),
        QStringLiteral("exportDialog"), QStringLiteral("compareDialog")};
    return dialog != nullptr && ours.contains(dialog->objectName()) ? dialog : nullptr;
}

void WindowMonkey::answer(QDialog* dialog)
{
    ++m_done[dialog->objectName()];
    ++m_done[QStringLiteral("dialog")];
    m_files.restorePart();
    if (auto* const files = qobject_cast<QFileDialog*>(dialog))
        return choose(files);
    const auto buttons = qobject_cast<QMessageBox*>(dialog)->buttons();
    if (dialog->objectName() == QLatin1String("overwriteQuestion"))
        return QTest::mouseClick(buttons.at(below(static_cast<int>(buttons.size()))), Qt::LeftButton);
    static const QList<QMessageBox::StandardButton> answers{
        QMessageBox::Save, QMessageBox::Discard, QMessageBox::Discard, QMessageBox::Cancel};
    const QMessageBox::StandardButton chosen = answers.at(below(static_cast<int>(answers.size())));
    m_discarded = m_discarded || chosen == QMessageBox::Discard;
    QTest::mouseClick(qobject_cast<QMessageBox*>(dialog)->button(chosen), Qt::LeftButton);
}

void WindowMonkey::choose(QFileDialog* dialog)
{
    if (chance(25)) {
        dialog->reject();
        return;
    }
    QString fileName = m_files.toRead(m_random());
    if (dialog->objectName() == QLatin1String("saveDialog"))
        m_marks.allow(fileName = m_files.toWrite(m_random()), m_dialogMark);
    else if (dialog->objectName() == QLatin1String("exportDialog"))
        fileName = m_files.path(chance(50) ? "out.obj" : "out.glb");
    else if (dialog->objectName() == QLatin1String("importDialog"))
        fileName = m_files.path("part.mrd");
    if (dialog->objectName() == QLatin1String("importDialog"))
        ++m_addsAsked;
    dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(fileName);
    const auto* buttons = dialog->findChild<QDialogButtonBox*>();
    for (QAbstractButton* const button : buttons->buttons()) {
        if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
            QTest::mouseClick(button, Qt::LeftButton);
    }
}

// They run event loops of their own, so no step could answer them.
void WindowMonkey::answerOthers()
{
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || openDialog() != nullptr || chance(60))
        return;
    ++m_done[QStringLiteral("other dialog")];
    if (auto* const box = qobject_cast<QMessageBox*>(dialog); box != nullptr && chance(70)) // replace a file
        QTest::mouseClick(box->defaultButton() != nullptr && chance(20) ? box->defaultButton() : box->buttons().front(),
            Qt::LeftButton);
    else if (chance(50))
        dialog->reject();
    else
        dialog->accept();
}

void WindowMonkey::leaveWindow()
{
    ++m_done[QStringLiteral("quit")];
    QVERIFY2(!m_session->document().isModified() || m_discarded, "changes were lost without a question");
    checkFiles();
    makeWindow();
}

void WindowMonkey::takeNewScene()
{
    m_addsAsked = 0;
    m_discarded = false;
    m_addsThere = 0;
    NxGroup* const open = scene();
    if (open == nullptr)
        return;
    ++m_done[QStringLiteral("scene")];
    m_addsThere = MonkeyFiles::countParts(open);
    m_marks.mark(open);
    m_session->services().clearHistory(); // an undo would take the mark away
    noteSave(m_session->document().saveFileName()); // by any key or button, from now on
}

void WindowMonkey::noteSave(const QString& fileName)
{
    if (scene() != nullptr && !fileName.isEmpty())
        m_marks.allow(fileName, m_marks.current());
}

// The choice in a dialog is for the scene that was open when the dialog came up.
void WindowMonkey::noteDialog()
{
    if (openDialog() == m_dialog)
        return;
    m_dialog = openDialog();
    m_dialogMark = m_marks.current();
    // The name that a dialog suggests can be accepted too.
    if (const auto* files = qobject_cast<QFileDialog*>(m_dialog); files != nullptr && !files->selectedFiles().isEmpty())
        m_marks.allow(files->selectedFiles().front(), m_marks.current());
}

void WindowMonkey::checkAdds()
{
    if (scene() == nullptr)
        return;
    const int added = MonkeyFiles::countParts(scene());
    if (added > m_addsThere)
        ++m_done[QStringLiteral("added")];
    QVERIFY2(added <= m_addsThere + m_addsAsked, "a model was added to a scene that it wasn't meant for");
}

void WindowMonkey::checkFiles()
{
    const QString wrong = m_marks.findWrongFile(m_done[QStringLiteral("saved")]);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

void WindowMonkey::checkItStillWorks()
{
    const auto idle = [this] {
        if (QDialog* const dialog = openDialog()) {
            dialog->reject();
            return false;
        }
        m_window->findChild<JobBar*>()->cancel();
        return m_window->findChild<JobBar*>()->isIdle();
    };
    QTRY_VERIFY_WITH_TIMEOUT(idle(), testPatience);
    if (m_window->isHidden())
        makeWindow();
    checkItAnswers();
    if (QTest::currentTestFailed()) // nothing is waited for any more then
        return;
    const int before = m_session->document().sceneNumber();
    flow()->newScene();
    settle();
    QVERIFY2(hasNewScene(before), qPrintable(state()));
    QSignalSpy settled(m_window.get(), &MainWindow::settled);
    m_window->openFile(m_files.path("small.mrd"));
    settle();
    QVERIFY2(scene() != nullptr && m_session->document().fileName() == m_files.path("small.mrd"), qPrintable(state()));
    QTRY_VERIFY_WITH_TIMEOUT(!settled.isEmpty(), testPatience);
    checkFiles();
}

// What waits has its turn first: a quit closes the window, and a save that fails gives the new scene up.
void WindowMonkey::checkItAnswers()
{
    m_window->findChild<MessageBar*>()->clear();
    const int before = m_session->document().sceneNumber();
    if (chance(50))
        flow()->saveTo(m_files.path("folder.mrd")); // which can't be written
    flow()->newScene();
    settle();
    if (m_window->isHidden()) {
        leaveWindow();
        return;
    }
    ++m_done[hasNewScene(before) ? QStringLiteral("new scene made") : QStringLiteral("new scene given up")];
    const QStringList reasons = m_window->findChild<MessageBar*>()->texts().filter(
        QRegularExpression(QStringLiteral("^Not done: .*making a new scene.* wasn't written\\.$")));
    QVERIFY2(hasNewScene(before) != !reasons.isEmpty(), qPrintable(state()));
}

// Ends the dialogs and waits for the jobs, until nothing is left that a request could wait for.
void WindowMonkey::settle()
{
    const auto isFree
        = [this] { return QApplication::activeModalWidget() == nullptr && m_window->findChild<JobBar*>()->isIdle(); };
    const auto isSettled = [this, isFree] {
        if (auto* const question = qobject_cast<QMessageBox*>(openDialog())) {
            m_discarded = true;
            QTest::mouseClick(question->button(QMessageBox::Discard), Qt::LeftButton);
        } else if (QDialog* const dialog = openDialog()) {
            dialog->reject();
        }
        if (!isFree())
            return false;
        QCoreApplication::sendPostedEvents(); // what has waited for the last dialog or job begins with one of them
        return isFree();
    };
    QTRY_VERIFY2_WITH_TIMEOUT(isSettled(), qPrintable(state()), testPatience);
}

bool WindowMonkey::hasNewScene(int before) const
{
    const SceneDocument& document = m_session->document();
    return document.isOpen() && document.fileName().isEmpty() && document.sceneNumber() > before;
}

// For a message about a window that doesn't do what it is asked for.
QString WindowMonkey::state() const
{
    QStringList names;
    for (const QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible())
            names += QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName();
    }
    return QStringLiteral("The scene %1 of \"%2\". Open: %3. Messages: %4")
        .arg(m_session->document().sceneNumber())
        .arg(m_session->document().fileName(), names.join(QStringLiteral(", ")),
            m_window->findChild<MessageBar*>()->texts().join(u' '));
}

FileFlow* WindowMonkey::flow() const
{
    return m_window->findChild<FileFlow*>();
}

NxGroup* WindowMonkey::scene() const
{
    return m_session->document().scene();
}
