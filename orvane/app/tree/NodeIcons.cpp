#include "orvane/app/tree/NodeIcons.h"

#include "orvane/app/base/DrawnIcon.h"

#include "meridane/base/values/VbName.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

// The application's library is linked into the program, which finds resources of such a library when it is told of
// them.
static void initializeIcons()
{
    Q_INIT_RESOURCE(node_icons);
}

namespace orvane {

namespace {

// The icons are drawn on a square of 16 units. Their colours are of middle lightness, so that they can be
// seen on light and on dark backgrounds.
struct IconFile {
    std::string_view className;
    const char* fileName;
};

constexpr std::array iconFiles{
    IconFile{"Camera", "camera"},
    IconFile{"Complexity", "complexity"},
    IconFile{"DirectionalLight", "directional-light"},
    IconFile{"FieldGallery", "field-gallery"},
    IconFile{"Group", "group"},
    IconFile{"Light", "point-light"},
    IconFile{"Material", "material"},
    IconFile{"MatrixTransform", "transform"},
    IconFile{"Mesh", "mesh"},
    IconFile{"SpotLight", "spot-light"},
    IconFile{"Switch", "switch"},
    IconFile{"Texture", "texture"},
    IconFile{"Transform", "transform"},
    IconFile{"UnknownNode", "unknown-node"},
};

/// The icon that a plug-in has in its resources for a class, if it can be drawn.
QString fileOfPlugin(const VbName& className)
{
    QString fileName = QStringLiteral(":/orvane/node-icons/%1.svg").arg(QString::fromUtf8(className.getString()));
    return QFile::exists(fileName) && QSvgRenderer(fileName).isValid() ? fileName : QString();
}

// That of the class, else of the closest base class that has one.
QString fileOf(NxType type)
{
    for (NxType step = type; !step.isBad(); step = step.getParent()) {
        const VbName className = step.getName();
        if (QString fileName = fileOfPlugin(className); !fileName.isEmpty())
            return fileName;
        const auto isOfClass = [&](const IconFile& file) { return file.className == className.getString(); };
        if (const auto* const found = std::ranges::find_if(iconFiles, isOfClass); found != iconFiles.end())
            return QStringLiteral(":/orvane/icons/%1.svg").arg(QLatin1StringView(found->fileName));
    }
    return QStringLiteral(":/orvane/icons/node.svg");
}

QIcon iconOf(const QString& fileName)
{
    const auto drawing = std::make_shared<QSvgRenderer>(fileName);
    return drawnIcon([drawing](QPainter& painter, QIcon::Mode mode) {
        // In a selected row the icon would be tinted with a colour that may be its own.
        if (mode == QIcon::Selected) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(255, 255, 255, 215));
            painter.drawRoundedRect(QRectF(0, 0, 16, 16), 3, 3);
        }
        painter.setOpacity(mode == QIcon::Disabled ? 0.5 : 1);
        drawing->render(&painter, QRectF(0, 0, 16, 16));
    });
}

} // namespace

QIcon nodeIcon(NxType type)
{
    [[maybe_unused]] static const bool isInitialized = (initializeIcons(), true);
    // By the name, since a type is taken out of use together with the plug-in that brought it.
    static QHash<QByteArray, QIcon> icons;
    QIcon& icon = icons[QByteArray(type.getName().getString())];
    if (icon.isNull())
        icon = iconOf(fileOf(type));
    return icon;
}

} // namespace orvane
