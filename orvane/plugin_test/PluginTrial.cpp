#include "PluginTrial.h"

#include "WidgetDriver.h"

#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvEditor.h"
#include "orvane/extender/OrvProfile.h"
#include "orvane/extender/OrvShell.h"
#include "orvane/extender/VbText.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/scene/fields/NxField.h"

#include <QAction>
#include <QApplication>
#include <QProcess>
#include <QTemporaryFile>
#include <QTextStream>
#include <QToolBar>

#include <algorithm>
#include <utility>

namespace {

const QString everything = QStringLiteral("Everything");
const QString nothing = QStringLiteral("Nothing");

QString titled(const OrvExtension& extension)
{
    return QStringLiteral("\"%1\"").arg(orvane::toQString(extension.getName()));
}

void select(OrvServices& services, NxTypedObject* object)
{
    if (auto* const field = dynamic_cast<NxField*>(object))
        services.select(field->getContainer(), field);
    else
        services.select(dynamic_cast<NxFieldContainer*>(object), nullptr);
}

/// The value of a field, or those of all fields of a node.
std::string valueOf(NxTypedObject& object)
{
    VbString text;
    if (const auto* const field = dynamic_cast<const NxField*>(&object)) {
        field->get(text);
        return text.toUtf8();
    }
    std::string all;
    for (NxField* const field : static_cast<NxFieldContainer&>(object).getFields())
        all += valueOf(*field) + '\n';
    return all;
}

} // namespace

PluginTrial::PluginTrial(QString fileName, QString program)
    : m_fileName(std::move(fileName))
    , m_program(std::move(program))
{
    NxDebugError::setHandlerCallback(&PluginTrial::noteError, this);
}

PluginTrial::~PluginTrial()
{
    NxDebugError::setHandlerCallback(nullptr, nullptr);
}

bool PluginTrial::run()
{
    if (!load())
        return false;
    driveEditors(true);
    driveShell();
    driveEditors(false);
    saveAndReopen();
    switchProfiles();
    unload();
    return m_failures == 0;
}

bool PluginTrial::load()
{
    m_step = QStringLiteral("loading");
    const std::vector<NxType> before = TrialScene::nodeClasses();
    if (const auto failure = m_manager.loadPlugin(m_fileName)) {
        fail(*failure);
        return false;
    }
    std::vector<NxType> classes = TrialScene::nodeClasses();
    std::erase_if(classes, [&](NxType type) { return std::ranges::find(before, type) != before.end(); });
    const auto added = static_cast<qsizetype>(classes.size());
    const QList<OrvExtension*> extensions = m_manager.getExtensions();
    for (OrvExtension* const extension : extensions) {
        auto* const editor = qobject_cast<OrvEditor*>(extension);
        if (editor != nullptr && std::ranges::find(classes, editor->getHandledType()) == classes.end())
            classes.push_back(editor->getHandledType());
    }
    m_scene.emplace(classes);
    m_services.document().open(OrvDocument::makeJournal(m_scene->root()));
    const QList<OrvProfileEntry> all{{QStringLiteral("*"), true, {QStringLiteral("*")}}};
    for (auto& profile : {std::pair(everything, all), std::pair(nothing, QList<OrvProfileEntry>())}) {
        if (const auto refused = m_manager.addProfile(std::make_unique<OrvProfile>(profile.first, profile.second)))
            fail(*refused);
    }
    m_manager.setActiveProfile(m_manager.findProfile(everything));
    note(QStringLiteral("loaded: %1 extension(s), %2 class(es) of nodes").arg(extensions.size()).arg(added));
    return true;
}

void PluginTrial::driveEditors(bool thenUndo)
{
    const QList<OrvExtension*> extensions = m_manager.getExtensions();
    for (OrvExtension* const extension : extensions) {
        auto* const editor = qobject_cast<OrvEditor*>(extension);
        if (editor == nullptr)
            continue;
        const std::vector<NxTypedObject*> objects = m_scene->objectsOf(editor->getHandledType());
        for (NxTypedObject* const object : objects)
            driveEditor(*editor, *object, thenUndo);
        if (objects.empty() && thenUndo)
            note(QStringLiteral("%1: not driven, since no class of nodes has what it edits").arg(titled(*editor)));
    }
}

void PluginTrial::driveEditor(OrvEditor& editor, NxTypedObject& object, bool thenUndo)
{
    m_step = QStringLiteral("editing with ") + titled(editor);
    if (editor.getWidget() == nullptr) {
        fail(QStringLiteral("it has no widget"));
        return;
    }
    select(m_services, &object);
    const std::string before = m_scene->text();
    editor.setEditedObject(&object);
    m_dock.setWidget(editor.getWidget());
    editor.activate();
    m_dock.show();
    if (m_scene->text() != before)
        fail(QStringLiteral("it changed the scene by being shown"));
    const std::string value = valueOf(object);
    bool hasChanged = false;
    driveControls(*editor.getWidget(), thenUndo ? Controls::All : Controls::Values,
        [&] { hasChanged = hasChanged || valueOf(object) != value; });
    editor.deactivate();
    editor.setEditedObject(nullptr);
    m_dock.setWidget(nullptr);
    if (editor.getWidget() != nullptr)
        editor.getWidget()->setParent(nullptr);
    if (!thenUndo)
        return;
    undoTo(before,
        QStringLiteral("%1: %2").arg(titled(editor),
            hasChanged ? QStringLiteral("edited and undone") : QStringLiteral("shown; no control changed anything")));
}

// Docks and tool bars, with each node selected.
void PluginTrial::driveShell()
{
    const std::vector<NxTypedObject*> nodes = m_scene->objectsOf(NxNode::getClassTypeId());
    for (NxTypedObject* const node : nodes) {
        m_step = QStringLiteral("docks and tool bars, with a node of the class %1")
                     .arg(orvane::toQString(node->getTypeId().getName()));
        select(m_services, node);
        const std::string before = m_scene->text();
        for (auto* const dock : m_shell.window().findChildren<QDockWidget*>())
            driveControls(*dock, Controls::All, [] {});
        for (const auto* const bar : m_shell.window().findChildren<QToolBar*>()) {
            for (QAction* const action : bar->actions())
                action->trigger();
        }
        undoTo(before, m_step);
    }
}

void PluginTrial::saveAndReopen()
{
    m_step = QStringLiteral("saving");
    const std::string saved = m_scene->text();
    QString failure;
    if (TrialScene::readAgain(saved, failure) != saved)
        fail(QStringLiteral("the scene isn't the same after it was read again: ") + failure);
    QTemporaryFile file;
    if (!file.open() || file.write(saved.data(), static_cast<qint64>(saved.size())) < 0 || !file.flush()) {
        fail(file.errorString());
        return;
    }
    QProcess without;
    without.start(m_program, {QStringLiteral("--reopen"), file.fileName()});
    constexpr int longest = 60'000;
    if (!without.waitForFinished(longest) || without.exitCode() != 0
        || without.readAllStandardOutput() != QByteArray::fromStdString(saved))
        fail(QStringLiteral("the scene isn't the same after it was read without the plug-in: ")
            + QString::fromUtf8(without.readAllStandardError()));
    note(QStringLiteral("saved, and read again with and without the plug-in"));
}

void PluginTrial::switchProfiles()
{
    m_step = QStringLiteral("switching profiles");
    constexpr int times = 3;
    for (int i = 0; i < times; ++i) {
        m_manager.setActiveProfile(m_manager.findProfile(nothing));
        QApplication::processEvents();
        const QStringList leftovers = m_shell.leftovers();
        if (!leftovers.isEmpty())
            fail(QStringLiteral("deactivated extensions left behind: ") + leftovers.join(QStringLiteral(", ")));
        // Nobody may react any more.
        select(m_services, &m_scene->root());
        m_manager.setActiveProfile(m_manager.findProfile(everything));
        QApplication::processEvents();
    }
    note(QStringLiteral("profiles switched"));
}

void PluginTrial::unload()
{
    m_step = QStringLiteral("unloading");
    m_services.select(nullptr, nullptr);
    m_services.clearHistory();
    m_services.document().close();
    m_manager.unloadPlugins();
    QApplication::processEvents();
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget* const widget : widgets) {
        if (widget != &m_shell.window() && widget != &m_dock)
            fail(QStringLiteral("it left a widget behind: %1 \"%2\"")
                     .arg(QString::fromLatin1(widget->metaObject()->className()), widget->objectName()));
    }
    note(QStringLiteral("unloaded"));
}

void PluginTrial::undoTo(const std::string& before, const QString& what)
{
    QApplication::processEvents();
    while (m_services.canUndo())
        m_services.undo();
    QApplication::processEvents();
    if (m_scene->text() == before)
        note(what);
    else
        fail(QStringLiteral("undo doesn't restore the scene"));
}

void PluginTrial::note(const QString& line)
{
    QTextStream(stdout) << "ok: " << line << '\n';
}

void PluginTrial::fail(const QString& line)
{
    ++m_failures;
    QTextStream(stdout) << "FAILED: " << m_step << ": " << line << '\n';
}

void PluginTrial::noteError(const NxError* error, void* trial)
{
    if (NxDebugError::severityOf(*error) == NxDebugError::Error)
        static_cast<PluginTrial*>(trial)->fail(orvane::toQString(error->getDebugString()));
}
