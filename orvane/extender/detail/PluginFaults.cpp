#include "orvane/extender/detail/PluginFaults.h"

#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvEditor.h"
#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvStepList.h"
#include "orvane/extender/VbText.h"
#include "orvane/extender/detail/ClashText.h"
#include "orvane/extender/detail/Guarded.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QWidget>

#include <algorithm>
#include <stdexcept>

namespace {

// The widget of an editor is set by derived classes, of which this pretends to be one.
class WidgetAccess : public OrvEditor {
public:
    static QWidget*& widgetOf(OrvEditor& editor) { return editor.*(&WidgetAccess::m_widget); }
};

void findEditorFaults(OrvEditor& editor, orvane::PluginFaults& faults)
{
    const QString name = orvane::toQString(editor.getName());
    if (editor.getWidget() == nullptr) {
        faults.texts.append(
            QStringLiteral("its editor \"%1\" has no widget after \"load\", so it isn't used").arg(name));
        faults.unusable.append(&editor);
    } else if (editor.getHandledType().isBad()) {
        faults.texts.append(QStringLiteral("its editor \"%1\" handles no type, so it is never used").arg(name));
    }
}

} // namespace

orvane::PluginFaults orvane::faultsOf(const OrvPlugin& plugin)
{
    PluginFaults faults;
    QStringList names;
    QStringList repeated;
    for (OrvExtension* const extension : plugin.getExtensions()) {
        const QString name = toQString(extension->getName());
        if (names.contains(name) && !repeated.contains(name))
            repeated.append(name);
        names.append(name);
        if (auto* const editor = qobject_cast<OrvEditor*>(extension))
            findEditorFaults(*editor, faults);
    }
    if (names.contains(QString()))
        faults.texts.append(QStringLiteral("an extension of it has no name, so that no profile can name it"));
    repeated.removeAll(QString());
    for (const QString& name : std::as_const(repeated))
        faults.texts.append(
            QStringLiteral("two of its extensions have the name \"%1\", so that profiles take both for the same")
                .arg(name));
    for (const QString& name : plugin.getLostExtensions())
        faults.texts.append(
            QStringLiteral("it deleted its extension \"%1\", which must live until it is unloaded").arg(name));
    if (const auto clash = takeClashText())
        faults.texts.append(*clash);
    return faults;
}

std::vector<NxType> orvane::nodeClasses()
{
    std::vector<NxType> classes = NxType::getAllDerivedFrom(NxNode::getClassTypeId());
    std::erase_if(classes, [](const NxType& type) { return !type.canCreateInstance(); });
    return classes;
}

QStringList orvane::dropBrokenClasses(const std::vector<NxType>& before)
{
    QStringList texts;
    for (const NxType& type : nodeClasses()) {
        if (std::ranges::find(before, type) != before.end())
            continue;
        const auto thrown = guarded([&] {
            const NxRef<NxNode> node(static_cast<NxNode*>(static_cast<NxTypedObject*>(type.createInstance(nullptr))));
            if (!node)
                throw std::runtime_error("it makes no node");
            static_cast<void>(node->getFieldData());
        });
        if (!thrown)
            continue;
        texts.append(QStringLiteral("its node class \"%1\" isn't used, since no node of it can be made: %2")
                         .arg(QString::fromUtf8(type.getName().getString()), *thrown));
        NxType::unregisterClass(type);
    }
    return texts;
}

bool orvane::disconnectFromServices(OrvExtension& extension)
{
    OrvServices* const services = OrvServices::getInstance();
    if (services == nullptr)
        return false;
    bool wasConnected = false;
    for (QObject* const sender : {static_cast<QObject*>(services), static_cast<QObject*>(&services->document()),
             static_cast<QObject*>(&services->steps())})
        wasConnected = QObject::disconnect(sender, nullptr, &extension, nullptr) || wasConnected;
    return wasConnected;
}

void orvane::replaceWidget(OrvEditor& editor, const QWidget* destroyed)
{
    QWidget*& widget = WidgetAccess::widgetOf(editor);
    if (widget != destroyed)
        return;
    auto* const empty = new QWidget;
    QObject::connect(&editor, &QObject::destroyed, empty, [empty] { delete empty; });
    widget = empty;
}
