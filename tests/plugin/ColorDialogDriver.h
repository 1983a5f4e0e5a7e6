#pragma once

#include <QApplication>
#include <QColorDialog>
#include <QTimer>
#include <QtTest>

#include <optional>

/// Answers the next colour dialog, the toolkit's own, with its buttons, and keeps what it showed at first.
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
    ~ColorDialogDriver() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false); }

    int answered = 0;
    QColor first;
    QString title;
    QWidget* parent = nullptr;
    bool showsAlpha = false;

private:
    ColorDialogDriver(std::optional<QColor> choice, Qt::Key key)
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
        QTimer::singleShot(0, &m_context, [this, choice, key] { answer(choice, key); });
    }

    void answer(const std::optional<QColor>& choice, Qt::Key key)
    {
        auto* const dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        ++answered;
        first = dialog->currentColor();
        title = dialog->windowTitle();
        parent = dialog->parentWidget();
        showsAlpha = dialog->testOption(QColorDialog::ShowAlphaChannel);
        if (choice)
            dialog->setCurrentColor(*choice);
        QTest::keyClick(dialog, key);
    }

    QObject m_context;
};
