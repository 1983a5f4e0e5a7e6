#pragma once

#include "meridane/scene/fields/NxFieldContainer.h"

#include <QWidget>

class FieldTableModel;
class FieldTableView;
class NxField;
class QLabel;
class QStackedLayout;

/// The fields of the selected node, under a line that names the node.
class FieldPanel : public QWidget {
    Q_OBJECT

public:
    explicit FieldPanel(QWidget* parent = nullptr);

    [[nodiscard]] FieldTableModel* model() const noexcept { return m_model; }
    [[nodiscard]] FieldTableView* view() const noexcept { return m_view; }

    /// Shows the fields of this node; null for none.
    void setNode(NxFieldContainer* node);
    /// Updates the line that names the node.
    void updateHeading();
    /// Makes the field's row current; null for no row.
    void setCurrentField(const NxField* field);
    [[nodiscard]] NxField* currentField() const;

Q_SIGNALS:
    /// The user chose the row of a field, which may be the current one already; null for a row without a field.
    void fieldChosen(NxField* field);

private:
    FieldTableModel* m_model;
    FieldTableView* m_view;
    QLabel* m_icon;
    QLabel* m_heading;
    QWidget* m_hint;
    QStackedLayout* m_pages;
    bool m_settingCurrent = false;
};
