#include "orvane/app/actions/FixedKeys.h"

#include <QCoreApplication>

namespace {

struct FixedKeysText {
    Q_DECLARE_TR_FUNCTIONS(FixedKeys)
};

} // namespace

QList<orvane::FixedKey> orvane::fixedKeys()
{
    const QString window = FixedKeysText::tr("Window");
    const QString view = FixedKeysText::tr("View");
    const QString tree = FixedKeysText::tr("Scene");
    const QString fields = FixedKeysText::tr("Fields");
    const QString list = FixedKeysText::tr("List");
    const QString tables = FixedKeysText::tr("Tables");
    return {
        {window, FixedKeysText::tr("Go on to the next part of the window, or back"), FixedKeysText::tr("F6, Shift+F6")},
        {window, FixedKeysText::tr("From one control to the next, or back"), FixedKeysText::tr("Tab, Shift+Tab")},
        {window, FixedKeysText::tr("Menus"), FixedKeysText::tr("Alt and the underlined letter, F10")},
        {window, FixedKeysText::tr("Context menu of what is selected"), FixedKeysText::tr("Menu")},
        {window, FixedKeysText::tr("Leave an editor or a popup, restoring what was there"), FixedKeysText::tr("Esc")},
        {view, FixedKeysText::tr("Go round the scene"), FixedKeysText::tr("Arrow keys")},
        {view, FixedKeysText::tr("Fly, with the right button held: on, back, sideways, down, up"),
            FixedKeysText::tr("W, S, A, D, Q, E")},
        {view, FixedKeysText::tr("Move the picture"), FixedKeysText::tr("Shift and arrow keys")},
        {view, FixedKeysText::tr("Come closer, go back"), FixedKeysText::tr("+, -")},
        {view, FixedKeysText::tr("Select nothing"), FixedKeysText::tr("Esc")},
        {tree, FixedKeysText::tr("Unfold and fold a node"), FixedKeysText::tr("Right, Left")},
        {tree, FixedKeysText::tr("Unfold a node with all below it"), FixedKeysText::tr("*")},
        {tree, FixedKeysText::tr("Go to the next node whose name begins with letters"), FixedKeysText::tr("Letters")},
        {tree, FixedKeysText::tr("Select several nodes"), FixedKeysText::tr("Shift and arrow keys, Ctrl+Space")},
        {fields, FixedKeysText::tr("Edit the value"), FixedKeysText::tr("Return, F2")},
        {fields, FixedKeysText::tr("Go on in the editor of the field"), FixedKeysText::tr("Ctrl+Return")},
        {fields, FixedKeysText::tr("Fold and unfold a group"), FixedKeysText::tr("Left, Right")},
        {fields, FixedKeysText::tr("Step a number while it is edited"),
            FixedKeysText::tr("Up, Down; Ctrl and Shift make it coarser and finer")},
        {list, FixedKeysText::tr("Edit the cell"), FixedKeysText::tr("Return, F2")},
        {list, FixedKeysText::tr("Next cell while one is edited"), FixedKeysText::tr("Tab, Shift+Tab")},
        {tables, FixedKeysText::tr("Go to what the row is about"), FixedKeysText::tr("Return")},
    };
}
