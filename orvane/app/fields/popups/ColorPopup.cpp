#include "orvane/app/fields/popups/ColorPopup.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/fields/popups/ColorBar.h"
#include "orvane/app/fields/popups/ColorSquare.h"
#include "orvane/app/fields/popups/Eyedropper.h"
#include "orvane/app/fields/popups/ShownNumber.h"
#include "orvane/app/fields/popups/Swatch.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/NumberLine.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/look/Symbols.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QToolButton>

#include <algorithm>

/// The colour that the popup was opened with beside the present one. A click on the former takes it back.
class ColorPopup::Swatches : public QWidget {
public:
    using QWidget::QWidget;

    void setBefore(const orvane::ColorNumbers& color) { m_before = color; }
    void setNow(const orvane::ColorNumbers& color)
    {
        m_now = color;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QRect left(0, 0, width() / 2, height());
        orvane::paintSwatch(painter, left, m_before, palette());
        orvane::paintSwatch(painter, rect().adjusted(left.width(), 0, 0, 0), m_now, palette());
    }

private:
    orvane::ColorNumbers m_before{};
    orvane::ColorNumbers m_now{};
};

ColorPopup::ColorPopup(bool hasOpacity, QWidget* parent)
    : PopupFrame(parent)
    , m_hasOpacity(hasOpacity)
    , m_square(new ColorSquare(this))
    , m_hueBar(new ColorBar(ColorBar::Kind::Hue, this))
    , m_swatches(new Swatches(this))
    , m_eyedropper(new Eyedropper(this))
{
    setObjectName(QStringLiteral("colorPopup"));
    setAccessibleName(tr("Colour"));
    auto* const grid = new QGridLayout(this);
    const int unit = orvane::look::unit(fontMetrics());
    grid->setContentsMargins(2 * unit, 2 * unit, 2 * unit, 2 * unit);
    grid->setSpacing(unit);
    grid->addWidget(m_square, 0, 0, 5, 1);
    grid->addWidget(m_hueBar, 5, 0);
    if (hasOpacity) {
        m_opacityBar = new ColorBar(ColorBar::Kind::Opacity, this);
        grid->addWidget(m_opacityBar, 6, 0);
    }
    m_swatches->setObjectName(QStringLiteral("swatches"));
    m_swatches->setAccessibleName(tr("Colour before and now"));
    m_swatches->setMinimumHeight(2 * fontMetrics().height());
    grid->addWidget(m_swatches, 0, 1, 1, 4);
    addNumberLine(grid, Red, tr("R"), tr("Red"), 1, 1);
    addNumberLine(grid, Green, tr("G"), tr("Green"), 2, 1);
    addNumberLine(grid, Blue, tr("B"), tr("Blue"), 3, 1);
    if (hasOpacity)
        addNumberLine(grid, Opacity, tr("A"), tr("Opacity"), 6, 1);
    addNumberLine(grid, Hue, tr("H°"), tr("Hue in degrees"), 1, 3);
    addNumberLine(grid, Saturation, tr("S"), tr("Saturation"), 2, 3);
    addNumberLine(grid, Value, tr("V"), tr("Value"), 3, 3);
    addHexLine(grid);
    addEyedropper(grid);

    connect(m_square, &ColorSquare::chosen, this, [this](double saturation, double value) {
        takeHue({m_hue.hue, saturation, value});
    });
    connect(m_hueBar, &ColorBar::chosen, this, [this](double hue) { takeHue({hue, m_hue.saturation, m_hue.value}); });
    if (m_opacityBar != nullptr)
        connect(m_opacityBar, &ColorBar::chosen, this, [this](double opacity) { takeNumber(Opacity, opacity); });
    m_square->setFocus();
}

void ColorPopup::addNumberLine(
    QGridLayout* grid, Line line, const QString& label, const QString& name, int row, int column)
{
    auto* const edit = new NumberLine(this);
    edit->setAccessibleName(name);
    edit->setObjectName(QStringLiteral("colorLine%1").arg(line));
    orvane::NumberLimits limits;
    limits.softMinimum = 0;
    limits.softMaximum = line == Hue ? 360.0 : 1.0;
    limits.step = line == Hue ? 1.0 : 0.01;
    if (line >= Hue) {
        limits.hardMinimum = 0;
        if (line != Value)
            limits.hardMaximum = limits.softMaximum;
    }
    edit->setLimits(limits);
    edit->setMinimumWidth(9 * fontMetrics().averageCharWidth());
    auto* const title = new QLabel(label, this);
    title->setBuddy(edit);
    grid->addWidget(title, row, column);
    grid->addWidget(edit, row, column + 1);
    m_lines[line] = edit;
    addLine(edit);
    connect(edit, &NumberLine::accepted, this, [this, line, edit] { takeNumber(line, edit->number()); });
    connect(edit, &NumberLine::stepped, this, [this, line, limits](double factor) {
        double number = numberOf(line) + factor * limits.step;
        if (line != Red && line != Green && line != Blue)
            number = std::clamp(number, 0.0, line == Value ? number : limits.softMaximum);
        takeNumber(line, number);
    });
}

void ColorPopup::addHexLine(QGridLayout* grid)
{
    m_hex = new QLineEdit(this);
    m_hex->setObjectName(QStringLiteral("hexLine"));
    m_hex->setAccessibleName(tr("Hexadecimal colour"));
    m_hex->setMaxLength(100);
    auto* const title = new QLabel(tr("Hex"), this);
    title->setBuddy(m_hex);
    grid->addWidget(title, 4, 1);
    grid->addWidget(m_hex, 4, 2, 1, 3);
    connect(m_hex, &QLineEdit::editingFinished, this, &ColorPopup::acceptHex);
}

void ColorPopup::addEyedropper(QGridLayout* grid)
{
    auto* const button = new QToolButton(this);
    button->setObjectName(QStringLiteral("eyedropper"));
    button->setText(tr("Pick from the screen"));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setIcon(orvane::look::symbol(QStringLiteral("eyedropper")));
    button->setToolTip(orvane::plainToolTip(tr("Takes the colour of the pixel that is clicked next. Escape ends it.")));
    button->setFocusPolicy(Qt::StrongFocus);
    grid->addWidget(button, 5, 1, 1, 4);
    connect(button, &QToolButton::clicked, this, [this, button] {
        if (!m_eyedropper->start())
            InputMessage::showFor(button, tr("The colours of the screen can't be read here."));
    });
    connect(m_eyedropper, &Eyedropper::hovered, this,
        [this](const QColor& color) { m_swatches->setNow(componentsOf(color)); });
    connect(m_eyedropper, &Eyedropper::picked, this, &ColorPopup::pick);
    connect(m_eyedropper, &Eyedropper::cancelled, this, &ColorPopup::showColor);
}

void ColorPopup::acceptHex()
{
    if (!m_hex->isModified())
        return;
    const auto color = orvane::fromHex(m_hex->text(), m_color);
    if (color) {
        take(*color);
        return;
    }
    m_hex->selectAll();
    InputMessage::showFor(m_hex,
        tr("“%1” isn't a hexadecimal colour. Needed are six digits such as #ff8000, or three.")
            .arg(orvane::shortLine(m_hex->text())));
}

void ColorPopup::setColor(const orvane::ColorNumbers& color)
{
    m_color = color;
    m_hue = orvane::toHue(color, m_hue.hue);
    m_swatches->setBefore(color);
    showColor();
}

void ColorPopup::takeNumber(Line line, double number)
{
    if (line <= Opacity) {
        orvane::ColorNumbers color = m_color;
        color[line] = number;
        take(color);
        return;
    }
    orvane::HueNumbers hue = m_hue;
    (line == Hue ? hue.hue : line == Saturation ? hue.saturation : hue.value) = number;
    takeHue(hue);
}

void ColorPopup::take(const orvane::ColorNumbers& color)
{
    m_color = color;
    m_hue = orvane::toHue(color, m_hue.hue);
    showColor();
    Q_EMIT colorChanged(m_color);
}

void ColorPopup::takeHue(const orvane::HueNumbers& color)
{
    m_hue = color;
    m_color = orvane::fromHue(color, m_color[3]);
    showColor();
    Q_EMIT colorChanged(m_color);
}

// With the opacity of the present colour.
orvane::ColorNumbers ColorPopup::componentsOf(const QColor& color) const
{
    return {static_cast<double>(color.redF()), static_cast<double>(color.greenF()), static_cast<double>(color.blueF()),
        m_color[3]};
}

void ColorPopup::pick(const QColor& color)
{
    take(componentsOf(color));
}

void ColorPopup::showColor()
{
    m_square->setColor(m_hue);
    m_hueBar->setColor(m_hue, m_color[3]);
    if (m_opacityBar != nullptr)
        m_opacityBar->setColor(m_hue, m_color[3]);
    m_swatches->setNow(m_color);
    for (int line = Red; line < LineCount; ++line) {
        if (NumberLine* const edit = m_lines[static_cast<std::size_t>(line)]; edit != nullptr) {
            const double number = numberOf(static_cast<Line>(line));
            edit->setValue(number, line <= Opacity ? orvane::floatText(number) : orvane::roundedText(number, 4));
        }
    }
    m_hex->setText(orvane::toHex(m_color, m_hasOpacity));
}

double ColorPopup::numberOf(Line line) const
{
    switch (line) {
    case Hue:
        return m_hue.hue;
    case Saturation:
        return m_hue.saturation;
    case Value:
        return m_hue.value;
    default:
        return m_color[line];
    }
}
