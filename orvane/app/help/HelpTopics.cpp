#include "orvane/app/help/HelpTopics.h"

#include "orvane/app/help/HelpPages.h"

#include <QHash>
#include <QWidget>

QString orvane::helpTopicOf(const QWidget* widget)
{
    static const QHash<QString, QString> pages{
        {QStringLiteral("sceneDock"), QStringLiteral("scene-tree.md")},
        {QStringLiteral("fieldsDock"), QStringLiteral("editing.md")},
        {QStringLiteral("historyDock"), QStringLiteral("history.md")},
        {QStringLiteral("listDock"), QStringLiteral("editing.md#lists")},
        {QStringLiteral("problemsDock"), QStringLiteral("checking.md")},
        {QStringLiteral("comparisonDock"), QStringLiteral("compare.md")},
        {QStringLiteral("logDock"), QStringLiteral("log.md")},
        {QStringLiteral("OrvConsole"), QStringLiteral("console.md")},
        {QStringLiteral("sceneView"), QStringLiteral("view.md")},
    };
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const auto found = pages.constFind(widget->objectName()); found != pages.constEnd())
            return *found;
    }
    return HelpPages::contents();
}
