#pragma once

#include "plugin/DialogDriver.h"

#include <QColorDialog>

#include <optional>

/// Answers the next colour dialog with its buttons, and keeps what it showed at first.
class ColorDialogDriver {
public:
    /// Chooses a colour, or takes the one that is there, and accepts.
    static ColorDialogDriver accepting(std::optional<QColor> choice = {})
    {
        return ColorDialogDriver(choice, Qt::Key_Return);
    }
    static ColorDialogDriver cancelling(std::optional<QColor> choice = {})
    {
        return ColorDialogDriver(choice, Qt::Key_Escape);
    }
    ColorDialogDriver(const ColorDialogDriver&) = delete;
    ColorDialogDriver& operator=(const ColorDialogDriver&) = delete;

    [[nodiscard]] int answered() const { return m_driver.answered; }

    QColor first;
    QString title;
    QWidget* parent = nullptr;
    bool showsAlpha = false;

private:
    ColorDialogDriver(std::optional<QColor> choice, Qt::Key key)
        : m_driver([this, choice, key](QColorDialog& dialog) { answer(dialog, choice, key); })
    {
    }

    void answer(QColorDialog& dialog, const std::optional<QColor>& choice, Qt::Key key)
    {
        first = dialog.currentColor();
        title = dialog.windowTitle();
        parent = dialog.parentWidget();
        showsAlpha = dialog.testOption(QColorDialog::ShowAlphaChannel);
        if (choice)
            dialog.setCurrentColor(*choice);
        QTest::keyClick(&dialog, key);
    }

    DialogDriver<QColorDialog> m_driver;
};
