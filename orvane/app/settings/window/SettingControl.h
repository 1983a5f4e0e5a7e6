#pragma once

#include <QVariant>
#include <QWidget>

struct Setting;

/// What a setting is edited with, by its kind: a check box, a line for a number, a list of choices, a line for a text,
/// a line and a button for a folder.
class SettingControl : public QWidget {
    Q_OBJECT

public:
    /// The setting lives longer.
    [[nodiscard]] static SettingControl* make(const Setting& setting, QWidget* parent);

    /// Shows a usable value of the setting.
    virtual void setValue(const QVariant& value) = 0;
    /// Writes the texts of the setting in the present language.
    virtual void updateTexts() = 0;

Q_SIGNALS:
    /// The user has chosen a usable value.
    void chosen(const QVariant& value);

protected:
    using QWidget::QWidget;
};
