#include "orvane/app/settings/window/SettingControl.h"

#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/NumberLimits.h"
#include "orvane/app/input/NumberLine.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/settings/Setting.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <cmath>

namespace {

/// A layout without margins, in which the parts keep the usual distance.
QHBoxLayout* lineIn(QWidget* widget)
{
    auto* const line = new QHBoxLayout(widget);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(orvane::look::unit(widget->fontMetrics()));
    return line;
}

class SwitchControl : public SettingControl {
public:
    SwitchControl(const Setting& setting, QWidget* parent)
        : SettingControl(parent)
        , m_setting(setting)
        , m_box(new QCheckBox(this))
    {
        lineIn(this)->addWidget(m_box);
        setFocusProxy(m_box);
        connect(m_box, &QCheckBox::clicked, this, [this](bool isOn) { Q_EMIT chosen(isOn); });
    }

    void setValue(const QVariant& value) override
    {
        m_box->setChecked(value.toBool());
        m_box->setText(m_setting.valueText(value));
    }
    void updateTexts() override
    {
        m_box->setAccessibleName(m_setting.titleText());
        m_box->setAccessibleDescription(m_setting.descriptionText());
        m_box->setText(m_setting.valueText(m_box->isChecked()));
    }

private:
    const Setting& m_setting;
    QCheckBox* m_box;
};

class ChoiceControl : public SettingControl {
public:
    ChoiceControl(const Setting& setting, QWidget* parent)
        : SettingControl(parent)
        , m_setting(setting)
        , m_box(new QComboBox(this))
    {
        lineIn(this)->addWidget(m_box, 1);
        setFocusProxy(m_box);
        // The wheel scrolls the page rather than choosing something by the way.
        m_box->setFocusPolicy(Qt::StrongFocus);
        m_box->installEventFilter(this);
        for (const Setting::Choice& choice : setting.choices)
            m_box->addItem(QString(), QString::fromLatin1(choice.value));
        connect(m_box, &QComboBox::activated, this, [this](int index) { Q_EMIT chosen(m_box->itemData(index)); });
    }

    void setValue(const QVariant& value) override { m_box->setCurrentIndex(m_box->findData(value)); }
    void updateTexts() override
    {
        for (int index = 0; index < m_box->count(); ++index)
            m_box->setItemText(index, m_setting.valueText(m_box->itemData(index)));
        m_box->setAccessibleName(m_setting.titleText());
        m_box->setAccessibleDescription(m_setting.descriptionText());
    }
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel || m_box->hasFocus())
            return SettingControl::eventFilter(object, event);
        event->ignore();
        return true;
    }

private:
    const Setting& m_setting;
    QComboBox* m_box;
};

class NumberControl : public SettingControl {
public:
    NumberControl(const Setting& setting, QWidget* parent)
        : SettingControl(parent)
        , m_setting(setting)
        , m_line(new NumberLine(this))
        , m_unit(new QLabel(this))
    {
        QHBoxLayout* const line = lineIn(this);
        line->addWidget(m_line, 1);
        line->addWidget(m_unit);
        setFocusProxy(m_line);
        orvane::NumberLimits limits;
        limits.hardMinimum = setting.range.least;
        limits.hardMaximum = setting.range.most;
        limits.isWhole = setting.range.decimals == 0;
        m_line->setLimits(limits);
        connect(m_line, &NumberLine::accepted, this, [this] { Q_EMIT chosen(m_line->number()); });
        connect(m_line, &NumberLine::stepped, this, [this](double factor) {
            const double value = m_line->value().value_or(m_setting.range.least);
            const double step = m_line->limits().stepFrom(value) * factor;
            Q_EMIT chosen(std::clamp(m_line->limits().isWhole ? std::round(value + step) : value + step,
                m_setting.range.least, m_setting.range.most));
        });
    }

    void setValue(const QVariant& value) override { m_line->setValue(value.toDouble()); }
    void updateTexts() override
    {
        m_unit->setText(m_setting.unitText());
        m_line->setAccessibleName(m_setting.titleText());
        m_line->setAccessibleDescription(m_setting.descriptionText());
    }

private:
    const Setting& m_setting;
    NumberLine* m_line;
    QLabel* m_unit;
};

/// Of texts and folders.
class TextControl : public SettingControl {
public:
    TextControl(const Setting& setting, QWidget* parent)
        : SettingControl(parent)
        , m_setting(setting)
        , m_line(new QLineEdit(this))
    {
        QHBoxLayout* const line = lineIn(this);
        line->addWidget(m_line, 1);
        setFocusProxy(m_line);
        connect(m_line, &QLineEdit::editingFinished, this, &TextControl::accept);
        if (setting.kind != Setting::Kind::Folder)
            return;
        m_browse = new QPushButton(this);
        m_browse->setObjectName(setting.key + QStringLiteral("/browse"));
        m_browse->setAutoDefault(false);
        line->addWidget(m_browse);
        connect(m_browse, &QPushButton::clicked, this, &TextControl::browse);
    }

    void setValue(const QVariant& value) override
    {
        m_value = value.toString();
        m_line->setText(shown());
    }
    void updateTexts() override
    {
        m_line->setAccessibleName(m_setting.titleText());
        m_line->setAccessibleDescription(m_setting.descriptionText());
        if (m_browse != nullptr) {
            m_browse->setText(SettingControl::tr("Choose…"));
            m_browse->setAccessibleName(SettingControl::tr("Choose: %1").arg(m_setting.titleText()));
        }
    }

private:
    [[nodiscard]] QString shown() const
    {
        return m_setting.kind == Setting::Kind::Folder ? QDir::toNativeSeparators(m_value) : m_value;
    }

    void accept()
    {
        QString text = m_line->text();
        if (text == shown())
            return;
        if (m_setting.kind == Setting::Kind::Folder)
            text = QDir::fromNativeSeparators(text.trimmed());
        if (m_setting.usable(text))
            Q_EMIT chosen(text);
        else
            InputMessage::showFor(
                m_line, SettingControl::tr("This can't be used; allowed is: %1.").arg(m_setting.allowedText()));
    }

    void browse()
    {
        auto* const dialog = new QFileDialog(this, m_setting.titleText(), m_value);
        dialog->setObjectName(QStringLiteral("settingFolderDialog"));
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& folder) { Q_EMIT chosen(folder); });
        dialog->open();
    }

    const Setting& m_setting;
    QString m_value;
    QLineEdit* m_line;
    QPushButton* m_browse = nullptr;
};

} // namespace

SettingControl* SettingControl::make(const Setting& setting, QWidget* parent)
{
    switch (setting.kind) {
    case Setting::Kind::Switch:
        return new SwitchControl(setting, parent);
    case Setting::Kind::Number:
        return new NumberControl(setting, parent);
    case Setting::Kind::Choice:
        return new ChoiceControl(setting, parent);
    case Setting::Kind::Text:
    case Setting::Kind::Folder:
        return new TextControl(setting, parent);
    }
    return nullptr;
}
