#include "FieldEditors/LayoutMetrics.h"

#include <QLayout>
#include <QMap>
#include <QString>

#include <cstring>

namespace {

struct LayoutMetric {
    const char* name;
    int value;
};

// The whole visual grid of the editors. There is no SFColorRGBAInterSpacing: the editor that asks for it is to get 0.
constexpr LayoutMetric layoutMetrics[] = {
    {"frameLineWidth", 0},
    {"labelLineWidth", 0},
    {"labelPointSize", 10},
    {"labelHeight", 20}, // read by nothing
    {"buttonWidth", 20},
    {"buttonHeight", 20},
    {"PopupFrameWidth", 260},
    {"PopupFrameHeight", 100},
    {"PopupLayoutMargin", 6},
    {"PopupLayoutSpacing", 8},
    {"SFieldLayoutMargin", 4},
    {"SFieldLayoutSpacing", 6},
    {"SFieldEditLayoutMargin", 0},
    {"SFieldEditLayoutSpacing", 0},
    {"SFButtonLayoutMargin", 2},
    {"SFButtonLayoutSpacing", 0},
    {"SFEditionAreaLayMargin", 0},
    {"SFEditionAreaLaySpacing", 2},
    {"SFComponentHeight", 18},
    {"SFBoolWidth", 16},
    {"SFColorSpacing", 6},
    {"SFColorMargin", 0},
    {"SFColorInterSpacing", 2},
    {"SFColorDispWidth", 20},
    {"SFVecLineHeight", 16},
    {"SFVecLabelHeight", 14},
    {"SF4fBoxVSpacing", 4},
    {"SF4fBoxHSpacing", 4},
    {"SF4fBoxHMargin", 2},
    {"SF3fBoxVSpacing", 4},
    {"SF3fBoxHSpacing", 20},
    {"SF3fBoxHMargin", 2},
    {"SF2BoxHSpacing", 25},
    {"SF2BoxHMargin", 2},
    {"SF2BoxVSpacing", 4},
    {"MFGlobalLayoutSpacing", 2},
    {"MFGlobalLayoutMarging", 6}, // spelt so, here and where it is read
    {"MFGlobalButtonsLayoutMargin", 0},
    {"MFGlobalButtonsLayoutSpacing", 5},
    {"MFButtonLayoutMargin", 0},
    {"MFButtonLayoutSpacing", 0},
    {"MFAccessWidth", 60},
    {"MFManageAccessSpacerWidth", 0},
    {"MFManageAccessSpacerHeight", 0},
    {"MFAccessMoveSpacerHeight", 0},
    {"MFAccessMoveSpacerWidth", 0},
    {"MFTableMinHeightWin", 43}, // one metric, two platforms
    {"MFTableMinHeightUnix", 46},
    {nullptr, 0},
};

} // namespace

int getLayoutMetric(const QString& name)
{
    // Every widget asks for some dozen names when it is built: the cache spares the walk with its conversion.
    static QMap<QString, int> cache;
    if (const auto hit = cache.constFind(name); hit != cache.constEnd())
        return *hit;
    const QByteArray latin1 = name.toLatin1();
    const LayoutMetric* metric = layoutMetrics;
    while (metric->name != nullptr && std::strcmp(metric->name, latin1.constData()) != 0)
        ++metric;
    if (metric->name == nullptr)
        return 0;
    cache.insert(name, metric->value);
    return metric->value;
}

void setLayoutMetrics(QLayout* layout, const QString& marginMetric, const QString& spacingMetric)
{
    const int margin = getLayoutMetric(marginMetric);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(getLayoutMetric(spacingMetric));
}
