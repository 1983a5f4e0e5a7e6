#include "FieldEditors/EditorIcons.h"

#include "editor_icons/edit.xpm"
#include "editor_icons/ignore.xpm"
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

} // namespace orvane
