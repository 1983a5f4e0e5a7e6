#include "orvane/sdk/detail/FieldButtons.h"

#include "editor_icons/ignore.xpm"
#include "editor_icons/set_default.xpm"

#include "orvane/sdk/Edit.h"
#include "orvane/sdk/detail/WidgetTexts.h"

#include "meridane/scene/fields/NxField.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QPushButton>

namespace orv {

namespace {

struct ButtonTexts {
    Q_DECLARE_TR_FUNCTIONS(FieldButtons)
};

QPushButton* makeButton(QWidget& parent, const QString& name, const char* tip, const char* const* icon)
{
    auto* const button = new QPushButton(&parent);
    button->setObjectName(name);
    setWidgetTexts(*button, [button, tip] {
        button->setToolTip(ButtonTexts::tr(tip));
        button->setAccessibleName(ButtonTexts::tr(tip));
    });
    button->setIcon(QPixmap(icon));
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // A click must not take the focus from a line that is being edited.
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

} // namespace

FieldButtons::FieldButtons(QWidget& parent)
    : m_default(makeButton(
        parent, QStringLiteral("defaultButton"), QT_TRANSLATE_NOOP("FieldButtons", "Set to default"), set_default_xpm))
    , m_ignore(makeButton(
          parent, QStringLiteral("ignoreButton"), QT_TRANSLATE_NOOP("FieldButtons", "Ignore this field"), ignore_xpm))
{
    m_ignore->setCheckable(true);
    m_binding.addWidget(*m_ignore, [this] { m_ignore->setChecked(m_binding.field()->isIgnored()); });
    QObject::connect(m_default, &QPushButton::clicked, &parent, [this] {
        if (NxField* const field = m_binding.field())
            editToDefault(*field);
    });
    QObject::connect(m_ignore, &QPushButton::clicked, &parent, [this](bool checked) {
        if (NxField* const field = m_binding.field())
            editIgnored(*field, checked);
    });
}

} // namespace orv
