#include "plugin/Monkey.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>

Monkey::Monkey(unsigned seed)
    : m_random(seed)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
    m_dialogs.setInterval(1);
    QObject::connect(&m_dialogs, &QTimer::timeout, &m_dialogs, [this] { answerDialog(); });
    m_dialogs.start();
}

QPoint Monkey::within(const QWidget* widget)
{
    return {below(std::max(widget->width(), 1)), below(std::max(widget->height(), 1))};
}

void Monkey::poke(QWidget* widget)
{
    QWidget* const popup = QApplication::activePopupWidget();
    if (popup != nullptr && chance(40)) {
        closePopup(popup);
        return;
    }
    QList<QWidget*> controls;
    for (QWidget* const child : (popup != nullptr ? popup : widget)->findChildren<QWidget*>()) {
        // A spin box is worked through its own line as well as by its own keys.
        const bool isControl = qobject_cast<QLineEdit*>(child) != nullptr
            || qobject_cast<QAbstractButton*>(child) != nullptr || qobject_cast<QAbstractSlider*>(child) != nullptr
            || qobject_cast<QComboBox*>(child) != nullptr || qobject_cast<QAbstractSpinBox*>(child) != nullptr
            || qobject_cast<QAbstractItemView*>(child) != nullptr || child->hasMouseTracking();
        if (isControl && child->isVisible() && child->isEnabled())
            controls << child;
    }
    if (controls.isEmpty() && popup != nullptr)
        closePopup(popup);
    else if (!controls.isEmpty())
        pokeControl(controls.at(below(static_cast<int>(controls.size()))));
}

void Monkey::pokeControl(QWidget* control)
{
    if (auto* const slider = qobject_cast<QAbstractSlider*>(control))
        pokeSlider(slider);
    else if (auto* const list = qobject_cast<QComboBox*>(control))
        pokeList(list);
    else if (auto* const items = qobject_cast<QAbstractItemView*>(control))
        pokeItems(items);
    else if (qobject_cast<QCheckBox*>(control) != nullptr)
        QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
    else if (qobject_cast<QAbstractButton*>(control) != nullptr)
        QTest::mouseClick(control, Qt::LeftButton);
    else if (qobject_cast<QLineEdit*>(control) != nullptr || qobject_cast<QAbstractSpinBox*>(control) != nullptr)
        pokeLine(control);
    else
        QTest::mouseMove(control, within(control));
}

void Monkey::pokeLine(QWidget* line)
{
    constexpr Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Backspace, Qt::Key_Delete,
        Qt::Key_Home, Qt::Key_End, Qt::Key_Left, Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_Escape};
    // Numbers mostly, and what makes texts, lists and names of bits.
    static const QString characters = QString::fromUtf8("001234567899--++..eexXaf  \"|[],\\LOW\xC3\xA9\xE2\x82\xAC");
    line->setFocus();
    if (chance(20))
        QTest::keySequence(line, QKeySequence::SelectAll);
    for (int count = below(4); count > 0; --count)
        QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown,
            QString(characters.at(below(static_cast<int>(characters.size())))), {});
    if (chance(60))
        QTest::keyClick(line, keys[below(static_cast<int>(std::size(keys)))]);
}

void Monkey::pokeSlider(QAbstractSlider* slider)
{
    constexpr Qt::Key keys[]
        = {Qt::Key_Left, Qt::Key_Right, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    if (chance(40)) {
        QTest::keyClick(slider, keys[below(static_cast<int>(std::size(keys)))]);
        return;
    }
    QTest::mousePress(slider, Qt::LeftButton, {}, within(slider));
    for (int moves = below(3); moves > 0; --moves)
        QTest::mouseMove(slider, within(slider));
    QTest::mouseRelease(slider, Qt::LeftButton, {}, within(slider));
}

void Monkey::pokeList(QComboBox* list)
{
    constexpr Qt::Key keys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_H, Qt::Key_F4};
    QTest::keyClick(list, keys[below(static_cast<int>(std::size(keys)))]);
}

void Monkey::pokeItems(QAbstractItemView* items)
{
    constexpr Qt::Key keys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
        Qt::Key_Tab, Qt::Key_Return, Qt::Key_F2, Qt::Key_Space, Qt::Key_Escape, Qt::Key_Delete};
    constexpr Qt::KeyboardModifier modifiers[] = {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
    if (chance(40)) {
        QTest::keyClick(items, keys[below(static_cast<int>(std::size(keys)))]);
        return;
    }
    const QPoint place = within(items->viewport());
    QTest::mouseClick(
        items->viewport(), Qt::LeftButton, modifiers[below(static_cast<int>(std::size(modifiers)))], place);
    // The click may have closed what it fell on.
    if (chance(30) && items->isVisible())
        QTest::mouseDClick(items->viewport(), Qt::LeftButton, {}, place);
}

void Monkey::closePopup(QWidget* popup)
{
    if (chance(50))
        QTest::keyClick(popup, Qt::Key_Escape);
    if (popup->isVisible())
        QTest::mouseClick(popup, Qt::LeftButton, {}, QPoint(1, 1));
    if (popup->isVisible())
        popup->close();
}

void Monkey::answerDialog()
{
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr)
        return;
    if (chance(40)) {
        dialog->reject();
        return;
    }
    if (auto* const colors = qobject_cast<QColorDialog*>(dialog))
        colors->setCurrentColor(QColor(below(256), below(256), below(256), below(256)));
    else if (auto* const files = qobject_cast<QFileDialog*>(dialog))
        files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral(GALLERY_FILE));
    QTest::keyClick(dialog, Qt::Key_Return);
    if (dialog->isVisible())
        dialog->reject();
}
