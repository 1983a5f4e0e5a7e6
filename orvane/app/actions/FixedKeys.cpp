#include "orvane/app/actions/FixedKeys.h"

#include <QCoreApplication>

namespace {

struct FixedKeysText {
    Q_DECLARE_TR_FUNCTIONS(FixedKeys)
};

} // namespace

QList<orvane::FixedKey> orvane::fixedKeys()
{
    const auto tr = [](const char* text) { return FixedKeysText::tr(text); };
    const QString window = tr("Window");
    const QString view = tr("View");
    const QString tree = tr("Scene");
    const QString fields = tr("Fields");
    const QString list = tr("List");
    const QString tables = tr("Tables");
    return {
        {window, tr("Go on to the next part of the window, or back"), tr("F6, Shift+F6")},
        {window, tr("From one control to the next, or back"), tr("Tab, Shift+Tab")},
        {window, tr("Menus"), tr("Alt and the underlined letter, F10")},
        {window, tr("Context menu of what is selected"), tr("Menu")},
        {window, tr("Leave an editor or a popup, restoring what was there"), tr("Esc")},
        {view, tr("Go round the scene"), tr("Arrow keys")},
        {view, tr("Fly, with the right button held: on, back, sideways, down, up"), tr("W, S, A, D, Q, E")},
        {view, tr("Move the picture"), tr("Shift and arrow keys")},
        {view, tr("Come closer, go back"), tr("+, -")},
        {view, tr("Select nothing"), tr("Esc")},
        {tree, tr("Unfold and fold a node"), tr("Right, Left")},
        {tree, tr("Unfold a node with all below it"), tr("*")},
        {tree, tr("Go to the next node whose name begins with letters"), tr("Letters")},
        {tree, tr("Select several nodes"), tr("Shift and arrow keys, Ctrl+Space")},
        {fields, tr("Edit the value"), tr("Return, F2")},
        {fields, tr("Go on in the editor of the field"), tr("Ctrl+Return")},
        {fields, tr("Fold and unfold a group"), tr("Left, Right")},
        {fields, tr("Step a number while it is edited"), tr("Up, Down; Ctrl and Shift make it coarser and finer")},
        {list, tr("Edit the cell"), tr("Return, F2")},
        {list, tr("Next cell while one is edited"), tr("Tab, Shift+Tab")},
        {tables, tr("Go to what the row is about"), tr("Return")},
    };
}
