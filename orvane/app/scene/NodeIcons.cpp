#include "orvane/app/scene/NodeIcons.h"

#include "orvane/app/base/DrawnIcon.h"

#include "meridane/base/values/VbName.h"

#include <QHash>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <array>
#include <string_view>

namespace orvane {

namespace {

// The icons are drawn on a square of 16 units. Their colours are of middle lightness, so that they stand out from light
// and from dark backgrounds alike.
constexpr QColor amber(224, 164, 48);
constexpr QColor blue(70, 130, 215);
constexpr QColor teal(32, 160, 150);
constexpr QColor violet(150, 95, 200);
constexpr QColor red(214, 80, 70);
constexpr QColor green(80, 165, 70);
constexpr QColor grey(135, 140, 148);

QPen outline(const QColor& color, qreal width = 1.3)
{
    return QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void drawGroup(QPainter& painter)
{
    QPainterPath folder;
    folder.moveTo(1.5, 13);
    folder.lineTo(1.5, 3.5);
    folder.lineTo(6, 3.5);
    folder.lineTo(7.5, 5.2);
    folder.lineTo(14.5, 5.2);
    folder.lineTo(14.5, 13);
    folder.closeSubpath();
    painter.setPen(outline(amber.darker(125), 1));
    painter.setBrush(amber);
    painter.drawPath(folder);
    painter.drawLine(QPointF(2, 7), QPointF(14, 7));
}

void drawArrow(QPainter& painter, const QColor& color, QPointF from, QPointF to, QPointF wing)
{
    painter.setPen(outline(color, 1.6));
    painter.drawLine(from, to);
    painter.setBrush(color);
    const QPointF back = to + (from - to) * 0.35;
    painter.drawPolygon(QPolygonF{to, back + wing, back - wing});
}

void drawTransform(QPainter& painter)
{
    const QPointF origin(5, 11);
    drawArrow(painter, blue, origin, {5, 1.5}, {1.2, 0});
    drawArrow(painter, red, origin, {14.5, 11}, {0, 1.2});
    drawArrow(painter, green, origin, {1.3, 14.7}, {0.7, 0.7});
}

void drawSwitch(QPainter& painter)
{
    painter.setPen(outline(violet, 1.6));
    painter.drawLine(QPointF(2, 8), QPointF(6, 8));
    painter.drawLine(QPointF(6, 8), QPointF(12, 3.5));
    painter.setBrush(violet);
    for (const QPointF end : {QPointF(13, 3), QPointF(13, 8), QPointF(13, 13)})
        painter.drawEllipse(end, 1.3, 1.3);
}

void drawMesh(QPainter& painter)
{
    const QPolygonF top{{8, 1.5}, {14, 4.5}, {8, 7.5}, {2, 4.5}};
    const QPolygonF left{{2, 4.5}, {8, 7.5}, {8, 14.5}, {2, 11.5}};
    const QPolygonF right{{14, 4.5}, {8, 7.5}, {8, 14.5}, {14, 11.5}};
    painter.setPen(outline(teal.darker(140), 0.8));
    painter.setBrush(teal.lighter(135));
    painter.drawPolygon(top);
    painter.setBrush(teal);
    painter.drawPolygon(left);
    painter.setBrush(teal.darker(125));
    painter.drawPolygon(right);
}

void drawMaterial(QPainter& painter)
{
    QRadialGradient shade(QPointF(6, 5.5), 9);
    shade.setColorAt(0, red.lighter(165));
    shade.setColorAt(0.5, red);
    shade.setColorAt(1, red.darker(170));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shade);
    painter.drawEllipse(QPointF(8, 8), 6.5, 6.5);
}

void drawTexture(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            painter.setBrush((row + column) % 2 == 0 ? violet : violet.lighter(165));
            painter.drawRect(QRectF(2 + 4 * column, 2 + 4 * row, 4, 4));
        }
    }
}

void drawPointLight(QPainter& painter)
{
    painter.setPen(outline(amber, 1.5));
    for (int ray = 0; ray < 8; ++ray) {
        painter.save();
        painter.translate(8, 8);
        painter.rotate(45 * ray);
        painter.drawLine(QPointF(0, 5.2), QPointF(0, 6.8));
        painter.restore();
    }
    painter.setBrush(amber);
    painter.drawEllipse(QPointF(8, 8), 3, 3);
}

void drawDirectionalLight(QPainter& painter)
{
    for (const qreal shift : {-4.5, 0.0, 4.5})
        drawArrow(
            painter, amber, {3 + shift / 2 + 1, 3 - shift / 2}, {11 + shift / 2 + 1, 13 - shift / 2}, {1.2, -0.9});
}

void drawSpotLight(QPainter& painter)
{
    QLinearGradient beam(8, 4, 8, 15);
    beam.setColorAt(0, amber);
    beam.setColorAt(1, QColor(amber.red(), amber.green(), amber.blue(), 60));
    painter.setPen(Qt::NoPen);
    painter.setBrush(beam);
    painter.drawPolygon(QPolygonF{{6, 5}, {10, 5}, {14.5, 14.5}, {1.5, 14.5}});
    painter.setBrush(grey);
    painter.drawRoundedRect(QRectF(5, 1, 6, 4.5), 1, 1);
}

void drawCamera(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(blue);
    painter.drawRoundedRect(QRectF(1.5, 4.5, 9, 7.5), 1.5, 1.5);
    painter.drawPolygon(QPolygonF{{11, 7.5}, {14.8, 5}, {14.8, 11.5}, {11, 9}});
    painter.setBrush(blue.lighter(160));
    painter.drawEllipse(QPointF(6, 8.2), 2, 2);
}

void drawComplexity(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(green);
    for (int bar = 0; bar < 4; ++bar)
        painter.drawRect(QRectF(2 + 3.2 * bar, 11 - 2.6 * bar, 2.4, 3 + 2.6 * bar));
}

void drawGallery(QPainter& painter)
{
    const std::array colors{red, amber, green, teal, blue, violet, grey, amber, teal};
    painter.setPen(Qt::NoPen);
    for (std::size_t cell = 0; cell < colors.size(); ++cell) {
        painter.setBrush(colors[cell]);
        const std::size_t column = cell % 3;
        const std::size_t row = cell / 3;
        const QPointF corner(1.5 + 4.5 * static_cast<qreal>(column), 1.5 + 4.5 * static_cast<qreal>(row));
        painter.drawRoundedRect(QRectF(corner, QSizeF(3.8, 3.8)), 0.8, 0.8);
    }
}

void drawUnknown(QPainter& painter)
{
    painter.setPen(outline(grey, 1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(2, 2, 12, 12), 2, 2);
    QPainterPath mark;
    mark.moveTo(6, 6.2);
    mark.cubicTo(6, 3.6, 10, 3.6, 10, 6.2);
    mark.cubicTo(10, 7.8, 8, 7.8, 8, 9.6);
    painter.setPen(outline(grey, 1.5));
    painter.drawPath(mark);
    painter.drawPoint(QPointF(8, 11.8));
}

void drawNode(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(grey);
    painter.drawEllipse(QPointF(8, 8), 4.5, 4.5);
}

struct Drawing {
    std::string_view className;
    void (*draw)(QPainter&);
};

constexpr std::array drawings{
    Drawing{"Group", &drawGroup},
    Drawing{"Transform", &drawTransform},
    Drawing{"MatrixTransform", &drawTransform},
    Drawing{"Switch", &drawSwitch},
    Drawing{"Mesh", &drawMesh},
    Drawing{"Material", &drawMaterial},
    Drawing{"Texture", &drawTexture},
    Drawing{"PointLight", &drawPointLight},
    Drawing{"Light", &drawPointLight},
    Drawing{"DirectionalLight", &drawDirectionalLight},
    Drawing{"SpotLight", &drawSpotLight},
    Drawing{"Camera", &drawCamera},
    Drawing{"Complexity", &drawComplexity},
    Drawing{"FieldGallery", &drawGallery},
    Drawing{"UnknownNode", &drawUnknown},
};

void (*drawingOf(NxType type))(QPainter&)
{
    for (NxType step = type; !step.isBad(); step = step.getParent()) {
        const VbName name = step.getName();
        for (const Drawing& drawing : drawings) {
            if (drawing.className == name.getString())
                return drawing.draw;
        }
    }
    return &drawNode;
}

QIcon iconOf(void (*draw)(QPainter&))
{
    return drawnIcon([draw](QPainter& painter, QIcon::Mode mode) {
        // In a selected row the icon would be tinted with a colour that may be its own.
        if (mode == QIcon::Selected) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(255, 255, 255, 215));
            painter.drawRoundedRect(QRectF(0, 0, 16, 16), 3, 3);
        }
        painter.setOpacity(mode == QIcon::Disabled ? 0.5 : 1);
        draw(painter);
    });
}

} // namespace

QIcon nodeIcon(NxType type)
{
    // By the name, since a type is taken out of use together with the plug-in that brought it.
    static QHash<QByteArray, QIcon> icons;
    QIcon& icon = icons[QByteArray(type.getName().getString())];
    if (icon.isNull())
        icon = iconOf(drawingOf(type));
    return icon;
}

} // namespace orvane
