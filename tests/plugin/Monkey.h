#pragma once

#include <QPoint>
#include <QTimer>

#include <random>

class QAbstractItemView;
class QAbstractSlider;
class QComboBox;

/// Pokes at the controls of a widget at random, by keys and mouse, and answers every dialog that comes up. It knows
/// kinds of controls, not editors, so that one that is made later is worked as well.
class Monkey {
public:
    explicit Monkey(unsigned seed);

    /// A number from 0 to below the limit.
    [[nodiscard]] int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    /// Whether something happens that does so that many times of a hundred.
    [[nodiscard]] bool chance(int percent) { return below(100) < percent; }

    /// Does something to one of the controls that can be seen in the widget, or in the popup that is open.
    void poke(QWidget* widget);

private:
    void pokeControl(QWidget* control);
    void pokeLine(QWidget* line);
    void pokeSlider(QAbstractSlider* slider);
    void pokeList(QComboBox* list);
    void pokeItems(QAbstractItemView* items);
    void closePopup(QWidget* popup);
    void answerDialog();
    [[nodiscard]] QPoint within(const QWidget* widget);

    std::mt19937 m_random;
    QTimer m_dialogs;
};
