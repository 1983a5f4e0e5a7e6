#include "orvane/app/look/Symbols.h"

#include "orvane/app/base/DrawnIcon.h"

#include <QAction>
#include <QDockWidget>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>
#include <utility>

// The application's library is linked into the program, which finds resources of such a library when it is told of
// them.
static void initializeSymbols()
{
    Q_INIT_RESOURCE(symbols);
}

namespace orvane::look {

namespace {

/// The drawing of an action or dock. Actions that are checked have none: in a menu it would hide the check mark.
struct Use {
    std::string_view name;
    std::string_view drawing;
};

constexpr std::array uses{
    Use{"comparisonDock", "compare"},
    Use{"edit.redo", "redo"},
    Use{"edit.undo", "undo"},
    Use{"field.copyValue", "copy"},
    Use{"field.edit", "edit"},
    Use{"field.pasteValue", "paste"},
    Use{"field.reset", "undo"},
    Use{"fieldsDock", "table"},
    Use{"file.close", "close"},
    Use{"file.compare", "compare"},
    Use{"file.export", "export"},
    Use{"file.import", "import"},
    Use{"file.new", "new"},
    Use{"file.open", "open"},
    Use{"file.quit", "quit"},
    Use{"file.reload", "reload"},
    Use{"file.save", "save"},
    Use{"file.saveAs", "save-as"},
    Use{"find.begin", "find"},
    Use{"find.deleteKept", "delete"},
    Use{"find.keep", "bookmark-add"},
    Use{"find.next", "find-next"},
    Use{"find.previous", "find-previous"},
    Use{"find.renameKept", "edit"},
    Use{"go.palette", "command"},
    Use{"go.to", "go-to"},
    Use{"help.about", "information"},
    Use{"help.contents", "help"},
    Use{"help.keys", "keys"},
    Use{"help.plugins", "plug-in"},
    Use{"history.goTo", "go-to"},
    Use{"history.putBack", "undo"},
    Use{"historyDock", "history"},
    Use{"inspector.new", "inspector"},
    Use{"list.beginFilter", "filter"},
    Use{"list.beginGoTo", "go-to"},
    Use{"list.copy", "copy"},
    Use{"list.cut", "cut"},
    Use{"list.duplicate", "duplicate"},
    Use{"list.insert", "add"},
    Use{"list.moveDown", "move-down"},
    Use{"list.moveUp", "move-up"},
    Use{"list.paste", "paste"},
    Use{"list.remove", "delete"},
    Use{"listDock", "list"},
    Use{"logDock", "list"},
    Use{"node.add", "add"},
    Use{"node.copy", "copy"},
    Use{"node.cut", "cut"},
    Use{"node.delete", "delete"},
    Use{"node.duplicate", "duplicate"},
    Use{"node.findClass", "find"},
    Use{"node.group", "group"},
    Use{"node.hide", "hide"},
    Use{"node.isolate", "isolate"},
    Use{"node.lookThrough", "camera"},
    Use{"node.makeOwn", "make-own"},
    Use{"node.moveDown", "move-down"},
    Use{"node.moveIn", "move-in"},
    Use{"node.moveOut", "move-out"},
    Use{"node.moveUp", "move-up"},
    Use{"node.paste", "paste"},
    Use{"node.pasteShared", "paste-shared"},
    Use{"node.rename", "edit"},
    Use{"node.ungroup", "ungroup"},
    Use{"problems.checkAgain", "reload"},
    Use{"problems.goTo", "go-to"},
    Use{"problems.mend", "check"},
    Use{"problemsDock", "warning"},
    Use{"sceneDock", "tree"},
    Use{"selection.back", "back"},
    Use{"selection.forward", "forward"},
    Use{"settings.open", "settings"},
    Use{"view.addBookmark", "bookmark-add"},
    Use{"view.editBookmarks", "bookmark"},
    Use{"view.exportPicture", "picture"},
    Use{"view.frameAll", "frame-all"},
    Use{"view.frameSelection", "frame-selection"},
    Use{"view.newCamera", "camera"},
    Use{"view.showAll", "show"},
};

/// The drawing as it is in the resources, read once.
std::shared_ptr<QSvgRenderer> drawingOf(const QString& name)
{
    [[maybe_unused]] static const bool isInitialized = (initializeSymbols(), true);
    static QHash<QString, std::shared_ptr<QSvgRenderer>> drawings;
    std::shared_ptr<QSvgRenderer>& drawing = drawings[name];
    if (drawing == nullptr)
        drawing = std::make_shared<QSvgRenderer>(QStringLiteral(":/orvane/symbols/%1.svg").arg(name));
    return drawing;
}

QColor inkOf(std::optional<Tint> tint, QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    if (tint && mode != QIcon::Disabled)
        return markColor(*tint, palette.color(mode == QIcon::Selected ? QPalette::Highlight : QPalette::Base));
    return palette.color(group, mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText);
}

} // namespace

QIcon symbol(const QString& name, std::optional<Tint> tint)
{
    static QHash<std::pair<QString, int>, QIcon> icons;
    QIcon& icon = icons[{name, tint ? static_cast<int>(*tint) : -1}];
    if (icon.isNull()) {
        icon = drawnIcon([drawing = drawingOf(name), tint](QPainter& painter, QIcon::Mode mode) {
            drawing->render(&painter, QRectF(0, 0, 16, 16));
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(QRectF(0, 0, 16, 16), inkOf(tint, mode));
        });
    }
    return icon;
}

void paintSymbol(QPainter& painter, const QString& name, const QRect& place, const QColor& color)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    QImage image((QSizeF(place.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter inside(&image);
    drawingOf(name)->render(&inside);
    inside.setCompositionMode(QPainter::CompositionMode_SourceIn);
    inside.fillRect(image.rect(), color);
    inside.end();
    painter.drawImage(place, image);
}

void setSymbols(const QObject& parent)
{
    const auto iconOf = [](const QObject& object) {
        const std::string name = object.objectName().toStdString();
        const auto* const use = std::ranges::find_if(uses, [&](const Use& one) { return one.name == name; });
        return use == uses.end() ? QIcon()
                                 : symbol(QString::fromUtf8(use->drawing.data(), qsizetype(use->drawing.size())));
    };
    for (QAction* const action : parent.findChildren<QAction*>()) {
        if (QIcon icon = iconOf(*action); !icon.isNull())
            action->setIcon(icon);
    }
    for (QDockWidget* const dock : parent.findChildren<QDockWidget*>()) {
        if (QIcon icon = iconOf(*dock); !icon.isNull())
            dock->setWindowIcon(icon);
    }
}

} // namespace orvane::look
