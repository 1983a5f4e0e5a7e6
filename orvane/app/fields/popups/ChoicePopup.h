#pragma once

#include "orvane/app/fields/popups/PopupFrame.h"

#include <QStringList>

class QLineEdit;
class QListWidget;

/// Chooses one of several names. What is typed leaves the names that have these letters in this order; the arrow keys
/// move in the list while the line keeps the focus.
class ChoicePopup : public PopupFrame {
    Q_OBJECT

public:
    explicit ChoicePopup(QWidget* parent);

    /// Shows these names; `current` is the present one, -1 for none.
    void setChoices(const QStringList& names, int current);
    /// The name that Return would take; -1 for none.
    [[nodiscard]] int current() const;
    /// Begins with this text in the filter line, such as the key that opened the popup.
    void setFilter(const QString& text);

Q_SIGNALS:
    /// The user chose the name with that number. The popup closes after this.
    void chosen(int number);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void filter();
    void choose();

    QLineEdit* m_line;
    QListWidget* m_list;
    int m_present = -1;
};

namespace orvane {

/// Whether the text has all letters in that order, in upper or lower case.
[[nodiscard]] bool hasLettersInOrder(const QString& text, const QString& letters);

} // namespace orvane
