#include "FieldEditors/LayoutMetrics.h"

#include <QByteArray>
#include <QLayout>
#include <QString>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct LayoutMetric {
    std::string_view name;
    int value;
};

// Sorted by name. Contract: there is no SFColorRGBAInterSpacing, so the editor that asks for it gets 0.
constexpr auto layoutMetrics = std::to_array<LayoutMetric>({
    {"MFAccessMoveSpacerHeight", 0},
    {"MFAccessMoveSpacerWidth", 0},
    {"MFAccessWidth", 60},
    {"MFButtonLayoutMargin", 0},
    {"MFButtonLayoutSpacing", 0},
    {"MFGlobalButtonsLayoutMargin", 0},
    {"MFGlobalButtonsLayoutSpacing", 5},
    {"MFGlobalLayoutMarging", 6}, // Contract: spelt like this here and where it is used.
    {"MFGlobalLayoutSpacing", 2},
    {"MFManageAccessSpacerHeight", 0},
    {"MFManageAccessSpacerWidth", 0},
    {"MFTableMinHeightUnix", 46}, // the same metric for two platforms
    {"MFTableMinHeightWin", 43},
    {"PopupFrameHeight", 100},
    {"PopupFrameWidth", 260},
    {"PopupLayoutMargin", 6},
    {"PopupLayoutSpacing", 8},
    {"SF2BoxHMargin", 2},
    {"SF2BoxHSpacing", 25},
    {"SF2BoxVSpacing", 4},
    {"SF3fBoxHMargin", 2},
    {"SF3fBoxHSpacing", 20},
    {"SF3fBoxVSpacing", 4},
    {"SF4fBoxHMargin", 2},
    {"SF4fBoxHSpacing", 4},
    {"SF4fBoxVSpacing", 4},
    {"SFBoolWidth", 16},
    {"SFButtonLayoutMargin", 2},
    {"SFButtonLayoutSpacing", 0},
    {"SFColorDispWidth", 20},
    {"SFColorInterSpacing", 2},
    {"SFColorMargin", 0},
    {"SFColorSpacing", 6},
    {"SFComponentHeight", 18},
    {"SFEditionAreaLayMargin", 0},
    {"SFEditionAreaLaySpacing", 2},
    {"SFVecLabelHeight", 14},
    {"SFVecLineHeight", 16},
    {"SFieldEditLayoutMargin", 0},
    {"SFieldEditLayoutSpacing", 0},
    {"SFieldLayoutMargin", 4},
    {"SFieldLayoutSpacing", 6},
    {"buttonHeight", 20},
    {"buttonWidth", 20},
    {"frameLineWidth", 0},
    {"labelHeight", 20}, // no widget uses it
    {"labelLineWidth", 0},
    {"labelPointSize", 10},
});
static_assert(std::ranges::is_sorted(layoutMetrics, {}, &LayoutMetric::name));

} // namespace

int getLayoutMetric(const QString& name)
{
    const QByteArray latin1 = name.toLatin1();
    const std::string_view key = latin1.constData();
    const auto* const metric = std::ranges::lower_bound(layoutMetrics, key, {}, &LayoutMetric::name);
    return metric != layoutMetrics.end() && metric->name == key ? metric->value : 0;
}

void setLayoutMetrics(QLayout* layout, const QString& marginMetric, const QString& spacingMetric)
{
    const int margin = getLayoutMetric(marginMetric);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(getLayoutMetric(spacingMetric));
}
