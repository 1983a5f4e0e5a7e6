#include "ToolHarness.h"

namespace {

QString nameOf(const OrvExtension* extension)
{
    return QString::fromUtf8(extension->getName().toUtf8());
}

} // namespace

RecordingServices::RecordingServices() = default;
RecordingServices::~RecordingServices() = default;

void RecordingServices::pushCommand(OrvCommand* command)
{
    ++pushed;
    commands.push_back(command);
    OrvServices::pushCommand(command);
}

RecordingShell::RecordingShell() = default;
RecordingShell::~RecordingShell() = default;

void RecordingShell::addDockWidget(QDockWidget* dock, int area)
{
    calls << QStringLiteral("addDockWidget %1 %2").arg(dock->windowTitle()).arg(area);
    window.addDockWidget(static_cast<Qt::DockWidgetArea>(area), dock);
    dock->hide();
}

void RecordingShell::removeDockWidget(QDockWidget* dock)
{
    calls << QStringLiteral("removeDockWidget %1").arg(dock->windowTitle());
    window.removeDockWidget(dock);
    dock->setParent(nullptr);
}

void RecordingShell::announceExtension(OrvExtension* extension, int value)
{
    calls << QStringLiteral("announceExtension %1 %2").arg(nameOf(extension)).arg(value);
}

void RecordingShell::withdrawExtension(OrvExtension* extension)
{
    calls << QStringLiteral("withdrawExtension %1").arg(nameOf(extension));
}

void RecordingShell::addToolBar(QToolBar* toolBar, int area)
{
    calls << QStringLiteral("addToolBar %1 %2").arg(toolBar->windowTitle()).arg(area);
    window.addToolBar(static_cast<Qt::ToolBarArea>(area), toolBar);
}

void RecordingShell::removeToolBar(QToolBar* toolBar)
{
    calls << QStringLiteral("removeToolBar %1").arg(toolBar->windowTitle());
    window.removeToolBar(toolBar);
    toolBar->setParent(nullptr);
}

ToolHarness::ToolHarness()
    : node(new NxFieldGallery)
{
    // All but those that the platform without a display gives for every window and popup, and those that converting
    // an image and taking a cell's editor away from its table cause on purpose.
    QTest::failOnWarning(QRegularExpression(
        QStringLiteral("^(?!This plugin does not support (propagateSizeHints|raise|grabbing the (keyboard|mouse))|"
                       "QImage::setColor: Index out of bound 0$|"
                       "QAbstractItemView::(commitData|closeEditor) called with an editor that does not belong)")));
}

ToolHarness::~ToolHarness() = default;

void ToolHarness::pump()
{
    NxDelayQueue::getDefault().process();
}

QString ToolHarness::textOf(const NxField& field)
{
    VbString text;
    field.get(text);
    return QString::fromUtf8(text.toUtf8());
}

NxField* ToolHarness::fieldOf(NxFieldGallery& gallery, const QString& type)
{
    const QByteArray name = "sf" + type.mid(2).toLatin1();
    return gallery.getField(VbName(name.constData()));
}

bool ToolHarness::noWidgetIsLeft()
{
    return QApplication::topLevelWidgets().isEmpty();
}
