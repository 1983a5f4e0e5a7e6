#include "orvane/app/fields/RowLook.h"

#include "orvane/app/look/Look.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

QColor orvane::quietTextColor()
{
    const QPalette palette = QGuiApplication::palette();
    return look::quietColor(palette.color(QPalette::Text), palette.color(QPalette::Base));
}

QVariant orvane::rowFont(bool isBold, bool isStruckOut)
{
    if (!isBold && !isStruckOut)
        return {};
    QFont font;
    font.setBold(isBold);
    font.setStrikeOut(isStruckOut);
    return font;
}
