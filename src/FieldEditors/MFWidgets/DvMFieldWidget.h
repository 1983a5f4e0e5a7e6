#pragma once

#include "FieldEditors/OrvFieldEditors.h"

#include <QPixmap>

#include <memory>

class AccessButtonPrivate;
class CountLabel;
class DvMFieldTable;
class NxMField;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QSpacerItem;

/// The common body of every multi-value editor: the type label, a strip of controls for the rows, and the row table.
///
/// It knows nothing of values. A concrete editor sets handled type and name in its constructor. Its `load` calls
/// `setElementTypeLabel`, then this `load`, and sets up the table's columns. It reads and writes the text of a cell.
/// Rows and columns are counted from 0; the access box counts rows from 1.
class DvMFieldWidget : public OrvFieldEditors {
    Q_OBJECT

public:
    /// Without a name the object is named after this class.
    explicit DvMFieldWidget(const char* name);
    /// `tableKind` is the number of an `orvane::TableKind`; any other gives the plain table.
    DvMFieldWidget(int tableKind, const char* name);
    ~DvMFieldWidget() override;

    /// Builds the controls. Needs the type label to be there.
    void load() override;
    /// Takes the field if `prepareForField` accepts it, and keeps the former one otherwise.
    /// Contract: the sensor is attached to a refused field, too.
    void setField(NxField* field) override;
    /// Updates row count and controls from the field and repaints the visible cells.
    void updateFromField() override;
    void setRefreshEnabled(bool enabled) override;
    void swapRows(int first, int second) override;
    void reservedRowOperation() override;
    void setCellValue(int row, int column, QString value) override;
    void setRowColor(int row, const VbVec4f& value) override;
    void applyChanges() override;

    /// The text of a cell; empty for one that doesn't exist.
    virtual QString getCellValue(int row, int column);
    /// The alignment of a cell's text. Contract: nothing uses it, since the table centres every cell.
    virtual int getCellAlignment();
    /// Returns whether the editor can edit a field, which may be null, and sets up the table for it.
    virtual bool prepareForField(NxField* field);

    /// The edited field: null until one was accepted, and null again after its death.
    [[nodiscard]] NxMField* field() const noexcept { return m_field; }
    [[nodiscard]] AccessButtonPrivate* accessBox() const noexcept { return m_accessBox; }

public Q_SLOTS:
    virtual void languageChange();
    void ignoreButtonStateChanged();
    virtual void setDefaultFieldValue();

protected:
    /// Makes the label on first need. The text is set once: a later call changes nothing.
    void setElementTypeLabel(const QString& type);
    /// Shows the number of values. Does nothing without a field.
    void refreshElementCount();
    /// Changes whenever the field or its value may have changed: at once, not only when the sensor is called. What was
    /// read from the field can be kept as long as this number stays the same.
    [[nodiscard]] unsigned fieldRevision() const noexcept { return m_fieldRevision; }

    AccessButtonPrivate* m_accessBox = nullptr;
    QPushButton* m_upButton = nullptr;
    QPushButton* m_downButton = nullptr;
    QPushButton* m_defaultButton = nullptr;
    QPushButton* m_ignoreButton = nullptr;
    QPushButton* m_deleteButton = nullptr;
    QPushButton* m_addButton = nullptr;
    QLabel* m_label = nullptr;
    CountLabel* m_labelNumElement = nullptr;
    DvMFieldTable* m_table = nullptr;
    NxMField* m_field = nullptr;
    QGridLayout* m_globalLayout = nullptr;
    QHBoxLayout* m_buttonsLayout = nullptr;
    QHBoxLayout* m_manageButtonsLayout = nullptr;
    QHBoxLayout* m_moveButtonsLayout = nullptr;
    QHBoxLayout* m_stateButtonsLayout = nullptr;
    QSpacerItem* m_manageAccessSpacer = nullptr;
    QSpacerItem* m_accessMoveSpacer = nullptr;
    QPixmap m_deletePixmap;
    QPixmap m_addPixmap;
    QPixmap m_upPixmap;
    QPixmap m_downPixmap;
    QPixmap m_defaultPixmap;
    QPixmap m_ignorePixmap;
    bool m_refreshEnabled = true;

private:
    class FieldWatch;

    void buildLabel();
    void buildManageButtons();
    void buildAccess();
    void buildMoveButtons();
    void buildStateButtons();
    void connectControls();

    std::unique_ptr<FieldWatch> m_fieldWatch;
    unsigned m_fieldRevision = 0;
};
