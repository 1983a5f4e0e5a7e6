#include "FieldEditors/EditorIcons.h"

#include "editor_icons/add_row.xpm"
#include "editor_icons/delete_row.xpm"
#include "editor_icons/edit.xpm"
#include "editor_icons/ignore.xpm"
#include "editor_icons/move_down.xpm"
#include "editor_icons/move_up.xpm"
#include "editor_icons/set_default.xpm"

#include <QPixmap>
#include <QPixmapCache>

namespace orvane {

namespace {

// All editors have buttons with the same pictures. Parsing one takes longer than making its button.
QPixmap picture(const char* const* xpm)
{
    const QString key = QStringLiteral("orvane/editor-icon/%1").arg(reinterpret_cast<quintptr>(xpm));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap(xpm);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

} // namespace

QPixmap setDefaultIcon()
{
    return picture(set_default_xpm);
}

QPixmap ignoreIcon()
{
    return picture(ignore_xpm);
}

QPixmap editIcon()
{
    return picture(edit_xpm);
}

QPixmap addRowIcon()
{
    return picture(add_row_xpm);
}

QPixmap deleteRowIcon()
{
    return picture(delete_row_xpm);
}

QPixmap moveUpIcon()
{
    return picture(move_up_xpm);
}

QPixmap moveDownIcon()
{
    return picture(move_down_xpm);
}

} // namespace orvane
