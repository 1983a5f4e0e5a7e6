// Leaves behind what it should have taken back, and changes what it only should show.

#include "orvane/sdk.h"

#include <QDockWidget>
#include <QLabel>

namespace {

class StayingDock final : public orv::Dock {
public:
    void deactivate() override { OrvExtension::deactivate(); }

private:
    QWidget* build() override { return new QLabel(QStringLiteral("It stays.")); }
};

class WritingEditor final : public orv::FieldEditor<NxSFFloat> {
    void build() override { orv::selected<NxSFFloat>()->setValue(1); }
};

class LeavingBar final : public orv::ToolBar {
    void build() override { (new QWidget)->setObjectName(QStringLiteral("stray")); }
};

} // namespace

ORV_PLUGIN("Untidy", "1.0.0", StayingDock, WritingEditor, LeavingBar)
