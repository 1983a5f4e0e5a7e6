#pragma once

#include "orvane/app/fields/popups/PopupFrame.h"

#include <QString>

#include <vector>

class QListWidget;
class QListWidgetItem;

/// A menu of check boxes, one for each bit of a mask, which stays open while several are checked. Space and a click
/// change a bit.
class MaskPopup : public PopupFrame {
    Q_OBJECT

public:
    /// Some bits of a mask.
    struct Bits {
        QString name; ///< empty for bits without a name, which are shown as a number
        unsigned bits = 0;
        Qt::CheckState state = Qt::Unchecked; ///< partly checked for values that differ
    };

    explicit MaskPopup(QWidget* parent);

    void setBits(const std::vector<Bits>& bits);
    /// Shows the state of the bits with that number and announces nothing.
    void setState(int number, Qt::CheckState state);

Q_SIGNALS:
    /// The user set or cleared the bits with that number.
    void toggled(int number, bool on);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void toggle(QListWidgetItem* item);

    QListWidget* m_list;
};
