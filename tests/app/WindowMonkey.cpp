#include "app/WindowMonkey.h"

#include "app/AppScenes.h"

#include "orvane/app/FileFlow.h"
#include "orvane/app/JobBar.h"
#include "orvane/app/NodeCommands.h"
#include "orvane/app/SceneDocument.h"
#include "orvane/app/SearchFolders.h"
#include "orvane/app/TextConversion.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

namespace {

const QString stampPrefix = QStringLiteral("stamp");
const QString addedName = QStringLiteral("part"); // of the files that are added

QString nameOf(const NxNode* node)
{
    return orvane::toQString(node->getName());
}

int addedGroups(const NxGroup* scene)
{
    int count = 0;
    for (const NxNode* child : scene->getChildren())
        count += nameOf(child) == addedName ? 1 : 0;
    return count;
}

} // namespace

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
    m_stamp = 0;
    m_session = std::make_unique<Session>(AppSettings::Mode::File, m_files.path("orvane.ini"));
    m_window = std::make_unique<MainWindow>(*m_session);
    connect(&m_session->document(), &SceneDocument::sceneChanged, this, &WindowMonkey::takeNewScene);
    m_session->loadPlugins(OrvPluginsManager::findPlugins(orvane::pluginFolders()));
    m_session->loadProfiles({QStringLiteral(ORVANE_PROFILES)});
    QVERIFY(!m_session->activateProfile({}));
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
    static const QStringList dialogs{QStringLiteral("fileSaveAs"), QStringLiteral("fileExport"),
        QStringLiteral("fileOpen"), QStringLiteral("fileImport")};
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
    QList<QWidget*> widgets;
    for (QWidget* const widget : m_window->findChildren<QWidget*>()) {
        const bool isControl = qobject_cast<QLineEdit*>(widget) != nullptr
            || qobject_cast<QAbstractButton*>(widget) != nullptr || qobject_cast<QAbstractItemView*>(widget) != nullptr;
        if (isControl && widget->isVisible() && widget->isEnabled() && widget->window() == m_window.get())
            widgets.append(widget);
    }
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
    static const QSet<QString> ours{QStringLiteral("saveQuestion"), QStringLiteral("saveDialog"),
        QStringLiteral("openDialog"), QStringLiteral("importDialog"), QStringLiteral("exportDialog")};
    return dialog != nullptr && ours.contains(dialog->objectName()) ? dialog : nullptr;
}

void WindowMonkey::answer(QDialog* dialog)
{
    ++m_done[dialog->objectName()];
    ++m_done[QStringLiteral("dialog")];
    m_files.restorePart();
    if (auto* const files = qobject_cast<QFileDialog*>(dialog)) {
        choose(files);
        return;
    }
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
        m_stampsFor.insert(fileName = m_files.toWrite(m_random()), m_dialogStamp);
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
    m_addsThere = addedGroups(open);
    for (int index = open->getNumChildren() - 1; index >= 0; --index) {
        if (nameOf(open->getChild(index)).startsWith(stampPrefix))
            open->removeChild(index);
    }
    static int lastStamp = 0;
    m_stamp = ++lastStamp;
    const NxRef<NxGroup> stamp(new NxGroup);
    // Twice, since a random edit of the name could make it that of another scene.
    stamp->setName(orvane::toVbString(stampPrefix + QStringLiteral("%1-%1z").arg(m_stamp)));
    open->insertChild(stamp.get(), 0);
    noteSave(m_session->document().saveFileName()); // by any key or button, from now on
}

void WindowMonkey::noteSave(const QString& fileName)
{
    if (scene() != nullptr && !fileName.isEmpty())
        m_stampsFor.insert(fileName, m_stamp);
}

// What a dialog chooses is meant for the scene that was open when it came up.
void WindowMonkey::noteDialog()
{
    if (openDialog() == m_dialog)
        return;
    m_dialog = openDialog();
    m_dialogStamp = m_stamp;
    // The name that a dialog suggests can be accepted too.
    if (const auto* files = qobject_cast<QFileDialog*>(m_dialog); files != nullptr && !files->selectedFiles().isEmpty())
        m_stampsFor.insert(files->selectedFiles().front(), m_stamp);
}

void WindowMonkey::checkAdds()
{
    if (scene() == nullptr)
        return;
    const int added = addedGroups(scene());
    if (added > m_addsThere)
        ++m_done[QStringLiteral("added")];
    QVERIFY2(added <= m_addsThere + m_addsAsked, "a model was added to a scene that it wasn't meant for");
}

void WindowMonkey::checkFiles()
{
    static const QRegularExpression pattern(stampPrefix + QStringLiteral("([0-9]+)-\\1z"));
    for (const QString& fileName : m_stampsFor.uniqueKeys()) {
        const QRegularExpressionMatch match = pattern.match(QString::fromUtf8(AppScenes::readFile(fileName).left(200)));
        if (!match.hasMatch())
            continue;
        ++m_done[QStringLiteral("saved")];
        const int stamp = match.captured(1).toInt();
        QVERIFY2(m_stampsFor.contains(fileName, stamp),
            qPrintable(fileName + QStringLiteral(" has the scene %1").arg(stamp)));
    }
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
    QTRY_VERIFY_WITH_TIMEOUT(idle(), 60000);
    if (m_window->isHidden())
        makeWindow();
    m_session->services().clearHistory(); // nothing to ask about
    // What has waited has its turn first. A number that was typed and not confirmed is taken over, and then there is
    // something to ask about.
    const auto isOpen = [this](const QString& fileName) {
        if (auto* const question = qobject_cast<QMessageBox*>(openDialog()))
            QTest::mouseClick(question->button(QMessageBox::Discard), Qt::LeftButton);
        else if (QDialog* const dialog = openDialog())
            dialog->reject();
        return scene() != nullptr && m_session->document().fileName() == fileName;
    };
    const int before = m_session->document().sceneNumber();
    flow()->newScene();
    QTRY_VERIFY2(isOpen({}) && m_session->document().sceneNumber() > before, qPrintable(openNames()));
    QSignalSpy settled(m_window.get(), &MainWindow::settled);
    m_window->openFile(m_files.path("small.mrd"));
    QTRY_VERIFY2(isOpen(m_files.path("small.mrd")), qPrintable(openNames()));
    QTRY_VERIFY(!settled.isEmpty());
    checkFiles();
}

// For a message about a window that doesn't do what it is asked for.
QString WindowMonkey::openNames()
{
    QStringList names;
    for (const QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible())
            names += QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName();
    }
    return QStringLiteral("open: ") + names.join(QStringLiteral(", "));
}

FileFlow* WindowMonkey::flow() const
{
    return m_window->findChild<FileFlow*>();
}

NxGroup* WindowMonkey::scene() const
{
    return m_session->document().scene();
}
