#pragma once

#include <QLineEdit>

class DvTablePopupWidget;

/// One number in the popup of a list. Any change of its text writes all lines of the popup to the current row.
class DvTablePopupLineEdit final : public QLineEdit {
    Q_OBJECT

public:
    DvTablePopupLineEdit(DvTablePopupWidget* owner, QWidget* parent, const char* name);

public Q_SLOTS:
    /// Has the owner write its lines; the text itself doesn't matter.
    void setCurrentValue(const QString& text);

private:
    DvTablePopupWidget* m_owner;
};
