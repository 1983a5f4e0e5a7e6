#pragma once

#include "FieldEditors/OrvFieldEditors.h"

#include <QFrame>
#include <QStringList>

/// A field editor that writes down what is done to it, into a list that several may share.
class RecordingEditor final : public OrvFieldEditors {
public:
    RecordingEditor(const char* name, NxType handledType, QStringList& calls)
        : m_calls(calls)
    {
        m_name = name;
        m_handledType = handledType;
    }

    void activate() override
    {
        note("activate");
        OrvFieldEditors::activate();
    }
    void deactivate() override
    {
        note("deactivate");
        OrvFieldEditors::deactivate();
    }
    void hide() override
    {
        note("hide");
        OrvFieldEditors::hide();
    }
    void load() override
    {
        note("load");
        OrvFieldEditors::load();
    }
    void show() override
    {
        note("show");
        OrvFieldEditors::show();
    }
    void unload() override
    {
        note("unload");
        OrvFieldEditors::unload();
    }
    void setEditedObject(NxTypedObject* object) override
    {
        note(object != nullptr ? "setEditedObject" : "setEditedObject null");
        OrvFieldEditors::setEditedObject(object);
    }
    [[nodiscard]] QWidget* getWidget() const override
    {
        note("getWidget");
        return OrvFieldEditors::getWidget();
    }
    void setField(NxField* field) override
    {
        note("setField");
        OrvFieldEditors::setField(field);
    }
    void updateFromField() override { note("updateFromField"); }
    void setRefreshEnabled(bool /*enabled*/) override { }
    void swapRows(int /*first*/, int /*second*/) override { }
    void reservedRowOperation() override { }
    void setCellValue(int /*row*/, int /*column*/, QString /*value*/) override { }
    void setRowColor(int /*row*/, const VbVec4f& /*value*/) override { }
    void applyChanges() override { note("applyChanges"); }

    [[nodiscard]] const FieldRange& range() const { return m_range; }

private:
    void note(const char* call) const
    {
        m_calls << QString::fromUtf8(m_name.toUtf8()) + QLatin1Char(' ') + QLatin1String(call);
    }

    QStringList& m_calls;
};
