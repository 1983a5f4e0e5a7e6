#pragma once

#include "FieldEditors/FieldRange.h"

#include "orvane/extender/OrvEditor.h"

#include <QString>

class NxField;
class NxFieldSensor;
class NxSensor;
class QFrame;
class VbVec4f;

/// The base of every field editor: owns the frame that the editor's widgets live in and the sensor that tells it of
/// each change of the field.
///
/// A concrete editor keeps the loop between widget and field open: what user-driven signals call writes the field and
/// pushes a command; `updateFromField` writes widgets only, through calls that raise none of these signals or with the
/// signals blocked.
class OrvFieldEditors : public OrvEditor {
    Q_OBJECT

public:
    ~OrvFieldEditors() override;

    /// Takes the edited object as the field to follow and shows it. Nothing else happens when that is no field.
    void activate() override;
    /// Stops following the field. The widgets keep what they show.
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

    /// Starts following the field. An override stores the field first and calls this body last.
    virtual void setField(NxField* field);
    /// Brings the widgets in line with the field.
    virtual void updateFromField() = 0;
    /// Lets `updateFromField` run, or not: a slider in a table cell holds it back while it writes the cell.
    virtual void setRefreshEnabled(bool enabled) = 0;
    /// Exchanges two rows of the field.
    virtual void swapRows(int first, int second) = 0;
    /// Keeps its place among the virtual operations; nothing calls it and nothing happens in it.
    virtual void reservedRowOperation() = 0;
    /// Writes a table cell to the field.
    virtual void setCellValue(int row, int column, QString value) = 0;
    /// Writes a colour to a row of the field, which takes as many components as it has.
    virtual void setRowColor(int row, const VbVec4f& value) = 0;
    /// Writes the value of the widgets to the field and pushes a command.
    virtual void applyChanges() = 0;

    /// The parent of what an editor builds. The editor owns the frame while no dock shows it.
    [[nodiscard]] QFrame* getFrame() const noexcept { return m_frame; }

protected:
    OrvFieldEditors();

    FieldRange m_range;
    NxFieldSensor* m_fieldSensor = nullptr;
    QFrame* m_frame;

private:
    static void fieldChanged(void* data, NxSensor* sensor);
};
