#include "orvane/app/settings/window/SettingRow.h"

#include "orvane/app/base/DrawnIcon.h"
#include "orvane/app/fields/MarkIcons.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/settings/Setting.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/settings/window/FoundLabel.h"
#include "orvane/app/settings/window/SettingControl.h"

#include <QGridLayout>
#include <QPainter>
#include <QToolButton>

namespace {

QIcon resetIcon(const QPalette& palette)
{
    return orvane::drawnIcon([palette](QPainter& painter, QIcon::Mode /*mode*/) {
        using orvane::look::Tint;
        orvane::drawMark(painter, FieldMark::Reset, QRect(0, 0, 16, 16),
            orvane::look::markColor(Tint::Changed, palette.color(QPalette::Window)), true);
    });
}

} // namespace

SettingRow::SettingRow(const Setting& setting, SettingsStore& store, QWidget* parent)
    : QWidget(parent)
    , m_setting(setting)
    , m_store(store)
    , m_title(new FoundLabel(this))
    , m_description(new FoundLabel(this))
    , m_facts(new FoundLabel(this))
    , m_note(new QLabel(this))
    , m_control(SettingControl::make(setting, this))
    , m_reset(new QToolButton(this))
{
    setObjectName(setting.key);
    setFocusProxy(m_control);
    build();
    connect(m_control, &SettingControl::chosen, this, [this](const QVariant& value) {
        m_store.set(m_setting.key, value);
        update();
    });
    connect(m_reset, &QToolButton::clicked, this, [this] {
        m_control->setFocus(); // the arrow is about to go
        m_store.reset(m_setting.key);
        update();
    });
    connect(&store, &SettingsStore::changed, this, [this](const QString& key) {
        if (key == m_setting.key)
            update();
    });
    orvane::followLanguage(this, [this] { updateTexts(); });
}

void SettingRow::build()
{
    const int unit = orvane::look::unit(fontMetrics());
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, unit, 0, 2 * unit);
    grid->setHorizontalSpacing(2 * unit);
    grid->setVerticalSpacing(unit / 2);
    grid->addWidget(m_title, 0, 0, Qt::AlignVCenter);
    grid->addWidget(m_control, 0, 1, Qt::AlignVCenter);
    grid->addWidget(m_reset, 0, 2, Qt::AlignVCenter);
    grid->addWidget(m_description, 1, 0, 1, 3);
    grid->addWidget(m_facts, 2, 0, 1, 3);
    grid->addWidget(m_note, 3, 0, 1, 3);
    grid->setColumnStretch(0, 1);
    m_control->setFixedWidth(fontMetrics().averageCharWidth() * 32);
    m_facts->setQuiet(true);
    m_note->setObjectName(QStringLiteral("note"));
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_reset->setObjectName(QStringLiteral("reset"));
    m_reset->setAutoRaise(true);
    m_reset->setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy = m_reset->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_reset->setSizePolicy(policy);
}

bool SettingRow::matches(const meridane::Query& query) const
{
    QStringList texts{m_setting.titleText(), m_setting.descriptionText(), m_setting.key};
    for (const Setting::Choice& choice : m_setting.choices)
        texts.append(m_setting.valueText(QString::fromLatin1(choice.value)));
    return query.matchesText(texts.join(u'\n').toStdString());
}

void SettingRow::setQuery(const meridane::Query& query)
{
    for (FoundLabel* const label : {m_title, m_description, m_facts})
        label->setQuery(query);
}

void SettingRow::updateTexts()
{
    m_title->setText(m_setting.titleText());
    m_description->setText(m_setting.descriptionText());
    m_facts->setText(tr("Default: %1 · %2").arg(m_setting.valueText(m_setting.defaultValue), m_setting.key));
    m_reset->setToolTip(tr("Back to the default: %1").arg(m_setting.valueText(m_setting.defaultValue)));
    m_reset->setAccessibleName(tr("Reset %1").arg(m_setting.titleText()));
    m_control->updateTexts();
    update();
}

void SettingRow::update()
{
    const QVariant preferred = m_store.preferred(m_setting);
    m_control->setValue(preferred.isValid() ? preferred : m_store.ownValue(m_setting));
    const bool isChanged = m_store.isChanged(m_setting);
    QFont font = m_title->font();
    font.setBold(isChanged);
    m_title->setFont(font);
    m_reset->setIcon(resetIcon(palette()));
    m_reset->setVisible(isChanged || !m_store.unusableValue(m_setting).isEmpty());
    const QString text = note();
    m_note->setText(text);
    m_note->setVisible(!text.isEmpty());
    QPalette colors;
    colors.setColor(
        QPalette::WindowText, orvane::look::textColor(orvane::look::Tint::Warning, palette().color(QPalette::Window)));
    m_note->setPalette(colors);
}

QString SettingRow::note() const
{
    if (const auto overruled = m_store.overruling(m_setting)) {
        if (!overruled->value.isValid())
            return tr("%1 has a value that can't be used; allowed is: %2.")
                .arg(overruled->source, m_setting.allowedText());
        return tr("%1 sets \"%2\" for this run, whatever is chosen here.")
            .arg(overruled->source, m_setting.valueText(overruled->value));
    }
    if (const QString value = m_store.unusableValue(m_setting); !value.isEmpty())
        return tr("The file has the value \"%1\", which can't be used; allowed is: %2. The default counts.")
            .arg(value, m_setting.allowedText());
    if (m_store.preferred(m_setting).isValid())
        return tr("The file preferences.conf sets this, until something is chosen here.");
    return {};
}
