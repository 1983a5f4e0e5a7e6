#pragma once

#include "FieldEditors/FieldRange.h"

#include "orvane/extender/OrvEditor.h"

#include <QString>

class NxField;
class NxFieldSensor;
class NxSensor;
class QFrame;
class VbVec4f;

/// The base of every field editor: owns the frame of the editor's widgets and the sensor that reports each change of
/// the field.
///
/// A concrete editor avoids a loop between widget and field: the slots of user actions write the field and push a
/// command; `updateFromField` writes widgets only, by calls that emit none of these signals or with the signals
/// blocked.
class OrvFieldEditors : public OrvEditor {
    Q_OBJECT

public:
    ~OrvFieldEditors() override;

    /// Follows the edited object and shows it. If that is no field, it only records that it is active.
    void activate() override;
    /// Stops following the field. The widgets keep what they show.
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

    /// Starts following the field. An override stores the field first and calls this body last.
    virtual void setField(NxField* field);
    /// Updates the widgets from the field.
    virtual void updateFromField() = 0;
    /// Enables `updateFromField`, or disables it: a slider in a table cell does so while it writes the cell.
    virtual void setRefreshEnabled(bool enabled) = 0;
    /// Exchanges two rows of the field.
    virtual void swapRows(int first, int second) = 0;
    /// Contract: it keeps its position among the virtual operations. Nothing calls it, and it does nothing.
    virtual void reservedRowOperation() = 0;
    /// Writes a table cell to the field.
    virtual void setCellValue(int row, int column, QString value) = 0;
    /// Writes a colour to a row of the field, which takes as many components as its values have.
    virtual void setRowColor(int row, const VbVec4f& value) = 0;
    /// Writes the value of the widgets to the field and pushes a command.
    virtual void applyChanges() = 0;

    /// The parent of an editor's widgets. The editor owns the frame while no dock shows it.
    [[nodiscard]] QFrame* getFrame() const noexcept { return m_frame; }

protected:
    OrvFieldEditors();

    FieldRange m_range;
    NxFieldSensor* m_fieldSensor = nullptr;
    QFrame* m_frame;

private:
    static void fieldChanged(void* data, NxSensor* sensor);
};
