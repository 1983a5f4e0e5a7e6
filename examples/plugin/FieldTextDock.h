#pragma once

#include "orvane/extender/OrvExtension.h"

#include "meridane/scene/fields/NxFieldSensor.h"

class NxField;
class QDockWidget;
class QLabel;

/// A dock that shows the selected field's value as text and follows its changes: a small extension that uses every part
/// of the interface.
class FieldTextDock final : public OrvExtension {
    Q_OBJECT

public:
    FieldTextDock();
    ~FieldTextDock() override;

    void activate() override;
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

private Q_SLOTS:
    void s_selectedFieldChanged(NxField* field);

private:
    void showValue();

    QDockWidget* m_dock = nullptr;
    QLabel* m_label = nullptr;
    NxFieldSensor m_sensor;
};
