#include "EditorHost.h"

#include "orvane/extender/OrvProfile.h"

#include "meridane/base/Files.h"
#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QToolBar>

namespace bench {

namespace {

NxRef<NxFieldGallery> readGallery()
{
    std::string text;
    if (meridane::readFile(GALLERY_FILE, text))
        qFatal("%s can't be read", GALLERY_FILE);
    NxSceneReader reader(std::move(text), GALLERY_FILE);
    reader.run();
    const NxRef<NxGroup> scene = reader.takeScene();
    if (!scene)
        qFatal("%s isn't a scene", GALLERY_FILE);
    return dynamic_cast<NxFieldGallery*>(scene->getChild(0));
}

} // namespace

EditorHost::EditorHost()
    : node(readGallery())
{
    if (const auto error = manager.addPlugin(&plugin))
        qFatal("%s", qUtf8Printable(*error));
    const QString name = QStringLiteral("Editors");
    const QList<OrvProfile::Entry> entries{{QStringLiteral("Field Editor"), true, {QStringLiteral("*")}}};
    if (const auto error = manager.addProfile(std::make_unique<OrvProfile>(name, entries)))
        qFatal("%s", qUtf8Printable(*error));
    manager.setActiveProfile(manager.findProfile(name));
    window.show();
}

EditorHost::~EditorHost()
{
    services.selectField(nullptr);
    manager.unloadPlugins();
}

void EditorHost::addDockWidget(QDockWidget* added, int area)
{
    dock = added;
    window.addDockWidget(static_cast<Qt::DockWidgetArea>(area), added);
    added->hide();
}

void EditorHost::removeDockWidget(QDockWidget* removed)
{
    window.removeDockWidget(removed);
    removed->setParent(nullptr);
}

void EditorHost::announceExtension(OrvExtension* /*extension*/, int /*value*/) { }

void EditorHost::withdrawExtension(OrvExtension* /*extension*/) { }

void EditorHost::addToolBar(QToolBar* toolBar, int area)
{
    window.addToolBar(static_cast<Qt::ToolBarArea>(area), toolBar);
}

void EditorHost::removeToolBar(QToolBar* toolBar)
{
    window.removeToolBar(toolBar);
    toolBar->setParent(nullptr);
}

NxField* EditorHost::fieldOf(OrvEditor& editor) const
{
    // The generic editor of single values is there for the types that have no other.
    if (editor.getHandledType() == NxSField::getClassTypeId())
        return &node->sfTime;
    for (NxField* const field : node->getFields()) {
        if (field->getTypeId() == editor.getHandledType())
            return field;
    }
    return nullptr;
}

} // namespace bench
