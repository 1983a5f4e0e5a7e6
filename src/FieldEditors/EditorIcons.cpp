#include "FieldEditors/EditorIcons.h"

#include "editor_icons/add_row.xpm"
#include "editor_icons/delete_row.xpm"
#include "editor_icons/edit.xpm"
#include "editor_icons/ignore.xpm"
#include "editor_icons/move_down.xpm"
#include "editor_icons/move_up.xpm"
#include "editor_icons/set_default.xpm"

#include <QPixmap>

namespace orvane {

QPixmap setDefaultIcon()
{
    return QPixmap(set_default_xpm);
}

QPixmap ignoreIcon()
{
    return QPixmap(ignore_xpm);
}

QPixmap editIcon()
{
    return QPixmap(edit_xpm);
}

QPixmap addRowIcon()
{
    return QPixmap(add_row_xpm);
}

QPixmap deleteRowIcon()
{
    return QPixmap(delete_row_xpm);
}

QPixmap moveUpIcon()
{
    return QPixmap(move_up_xpm);
}

QPixmap moveDownIcon()
{
    return QPixmap(move_down_xpm);
}

} // namespace orvane
