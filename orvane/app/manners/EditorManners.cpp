#include "orvane/app/manners/EditorManners.h"

#include "orvane/app/manners/CellFocus.h"
#include "orvane/app/manners/ConsoleGround.h"
#include "orvane/app/manners/GridGuard.h"
#include "orvane/app/manners/LineHeights.h"
#include "orvane/app/manners/LineWatch.h"
#include "orvane/app/manners/NumberTyping.h"
#include "orvane/app/manners/PaneKeys.h"
#include "orvane/app/manners/ShortTips.h"
#include "orvane/app/manners/WheelFocus.h"

#include "meridane/base/NxPreferences.h"

#include <QEvent>
#include <QMainWindow>

EditorManners::EditorManners(QMainWindow* window, OrvServices& services, FieldPanel* fields)
    : QObject(window)
    , m_window(window)
    , m_services(services)
    , m_fields(fields)
{
    window->installEventFilter(this);
}

EditorManners::~EditorManners() = default;

bool EditorManners::eventFilter(QObject* /*object*/, QEvent* event)
{
    // Before that of any widget in the window.
    if (event->type() == QEvent::Polish) {
        m_window->removeEventFilter(this);
        begin();
    }
    return false;
}

void EditorManners::begin()
{
    if (NxPreferences::getBool("ORVANE_MANNERS", 1) == 0)
        return;
    // The filter that is installed last is asked first: the watch must see each key after the others.
    auto* const watch = new LineWatch(this);
    new WheelFocus(this);
    new ShortTips(this);
    new LineHeights(this);
    new CellFocus(this);
    new ConsoleGround(m_window);
    new GridGuard(this);
    new NumberTyping(m_services, *watch, this);
    new PaneKeys(m_window, m_fields, *watch);
}
