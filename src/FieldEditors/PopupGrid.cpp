#include "FieldEditors/PopupGrid.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/LayoutMetrics.h"
#include "FieldEditors/SFWidgets/NumberLine.h"

#include <QDoubleValidator>
#include <QFrame>
#include <QGridLayout>
#include <QIntValidator>
#include <QLineEdit>
#include <QMouseEvent>

#include <limits>

namespace {

/// A click on the popup's own button closes it. It isn't passed on to the button, which would open the popup again.
/// When the popup closes, its line loses the focus at once, even if no other widget takes it, so that a typed text is
/// written to the field for which the popup was opened.
class GridFrame final : public QFrame {
public:
    GridFrame(QWidget* parent, const QWidget* button)
        : QFrame(parent, Qt::Popup)
        , m_button(button)
    {
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        const QPoint position = m_button->mapFromGlobal(event->globalPosition().toPoint());
        if (m_button->rect().contains(position))
            setAttribute(Qt::WA_NoMouseReplay);
        QFrame::mousePressEvent(event);
    }
    void hideEvent(QHideEvent* event) override
    {
        if (QWidget* const line = focusWidget(); line != nullptr)
            line->clearFocus();
        QFrame::hideEvent(event);
    }

private:
    const QWidget* m_button;
};

} // namespace

namespace orvane {

QFrame* makePopupGrid(QWidget* parent, const QWidget* button)
{
    auto* const frame = new GridFrame(parent, button);
    frame->resize(
        getLayoutMetric(QStringLiteral("PopupFrameWidth")), getLayoutMetric(QStringLiteral("PopupFrameHeight")));
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setFrameShadow(QFrame::Raised);
    auto* const grid = new QGridLayout(frame);
    setLayoutMetrics(grid, QStringLiteral("PopupLayoutMargin"), QStringLiteral("PopupLayoutSpacing"));
    grid->setObjectName(QStringLiteral("m_popupFrameLayout"));
    return frame;
}

void setLineValidator(QLineEdit* line, int kind)
{
    using Short = std::numeric_limits<short>;
    switch (static_cast<ValidatorKind>(kind)) {
    case ValidatorKind::None:
        line->setValidator(nullptr);
        break;
    case ValidatorKind::Int16:
        line->setValidator(new QIntValidator(Short::min(), Short::max(), line));
        break;
    case ValidatorKind::Integer:
        line->setValidator(new QIntValidator(line));
        break;
    case ValidatorKind::Float:
        acceptFloats(line);
        break;
    case ValidatorKind::Number:
        line->setValidator(new QDoubleValidator(line));
        break;
    default:
        break;
    }
}

} // namespace orvane
