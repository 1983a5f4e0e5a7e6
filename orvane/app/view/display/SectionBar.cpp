#include "orvane/app/view/display/SectionBar.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/view/SceneView.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace {

constexpr int sliderSteps = 1000;

} // namespace

SectionBar::SectionBar(SceneView* view)
    : QFrame(view)
    , m_view(view)
    , m_axis(new QComboBox(this))
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_position(new QDoubleSpinBox(this))
    , m_flip(new QToolButton(this))
{
    setObjectName(QStringLiteral("sectionBar"));
    orvane::followLanguage(this, [this] { setAccessibleName(tr("Section plane")); });
    setAutoFillBackground(true);
    setFrameShape(QFrame::StyledPanel);
    auto* const line = new QHBoxLayout(this);
    const int unit = orvane::look::unit(fontMetrics());
    line->setContentsMargins(2 * unit, unit, 2 * unit, unit);
    line->setSpacing(2 * unit);
    auto* const title = new QLabel(this);
    line->addWidget(title);
    m_axis->setObjectName(QStringLiteral("sectionAxis"));
    orvane::followLanguage(this, [this, title] {
        title->setText(tr("Section"));
        m_axis->setAccessibleName(tr("Axis"));
    });
    m_axis->addItems({QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")});
    line->addWidget(m_axis);
    m_slider->setObjectName(QStringLiteral("sectionSlider"));
    orvane::followLanguage(this, [this] { m_slider->setAccessibleName(tr("Position of the section")); });
    m_slider->setRange(0, sliderSteps);
    line->addWidget(m_slider, 1);
    m_position->setObjectName(QStringLiteral("sectionPosition"));
    orvane::followLanguage(this, [this] {
        m_position->setAccessibleName(tr("Position of the section"));
        m_position->setToolTip(tr("The place of the plane on its axis, in scene units"));
    });
    constexpr double most = 1e12;
    m_position->setRange(-most, most);
    m_position->setKeyboardTracking(false);
    line->addWidget(m_position);
    m_flip->setObjectName(QStringLiteral("sectionFlip"));
    orvane::followLanguage(this, [this] {
        m_flip->setText(tr("Flip"));
        m_flip->setToolTip(tr("Shows the other side of the plane"));
    });
    m_flip->setCheckable(true);
    line->addWidget(m_flip);
    auto* const close = new QToolButton(this);
    close->setObjectName(QStringLiteral("sectionClose"));
    orvane::followLanguage(close, [close] {
        close->setText(tr("Close"));
        close->setToolTip(tr("Shows all of the scene again"));
    });
    line->addWidget(close);
    connect(m_axis, &QComboBox::currentIndexChanged, this, &SectionBar::takeRange);
    connect(m_slider, &QSlider::valueChanged, this,
        [this](int value) { moveTo(m_least + (m_greatest - m_least) * value / sliderSteps); });
    connect(m_position, &QDoubleSpinBox::valueChanged, this, &SectionBar::moveTo);
    connect(m_flip, &QToolButton::toggled, this, &SectionBar::apply);
    connect(close, &QToolButton::clicked, this, &SectionBar::closed);
    view->installEventFilter(this);
    hide();
}

void SectionBar::setOn(bool isOn)
{
    setVisible(isOn);
    if (isOn) {
        place();
        takeRange();
    } else {
        apply();
    }
}

// The slider goes over the whole scene, and begins in its middle.
void SectionBar::takeRange()
{
    const NxBounds bounds = m_view->drawing().bounds();
    const auto axis = static_cast<std::size_t>(m_axis->currentIndex());
    m_least = bounds.isEmpty() ? -1 : static_cast<double>(bounds.min[axis]);
    m_greatest = bounds.isEmpty() ? 1 : static_cast<double>(bounds.max[axis]);
    const double extent = std::max(m_greatest - m_least, 1e-6);
    constexpr int digits = 3;
    m_position->setDecimals(std::clamp(digits - static_cast<int>(std::floor(std::log10(extent))), 0, 9));
    m_position->setSingleStep(extent / 100);
    moveTo((m_least + m_greatest) / 2);
}

void SectionBar::moveTo(double position)
{
    const QSignalBlocker slider(m_slider);
    const QSignalBlocker box(m_position);
    m_position->setValue(position);
    const double extent = m_greatest - m_least;
    if (extent > 0 && !m_slider->isSliderDown())
        m_slider->setValue(qRound(std::clamp((position - m_least) / extent, 0.0, 1.0) * sliderSteps));
    apply();
}

void SectionBar::apply()
{
    NxDrawingStyle style = m_view->style();
    style.section.isOn = !isHidden();
    VbVec3f normal(0, 0, 0);
    const float side = m_flip->isChecked() ? -1 : 1;
    normal[static_cast<std::size_t>(m_axis->currentIndex())] = side;
    style.section.normal = normal;
    style.section.position = static_cast<double>(side) * m_position->value();
    m_view->setStyle(style);
}

void SectionBar::place()
{
    const int height = sizeHint().height();
    setGeometry(0, m_view->height() - height, m_view->width(), height);
}

bool SectionBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && !isHidden())
        place();
    return QFrame::eventFilter(watched, event);
}

void SectionBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closed();
    // The view's own keys aren't meant for what is typed here.
    event->accept();
}
