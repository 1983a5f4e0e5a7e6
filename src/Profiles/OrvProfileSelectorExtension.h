#pragma once

#include "orvane/extender/OrvExtension.h"

class QComboBox;
class QToolBar;

/// A tool bar at the top that lists the profiles and makes the one that the user picks the active one.
///
/// The list is made at each `activate`, and a profile is told by its place in it. What changes elsewhere shows at the
/// next `activate` only.
class OrvProfileSelectorExtension final : public OrvExtension {
    Q_OBJECT

public:
    OrvProfileSelectorExtension();
    ~OrvProfileSelectorExtension() override;

    void activate() override;
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

private Q_SLOTS:
    void s_currentIndexChanged(int index);

private:
    QToolBar* m_toolBar = nullptr;
    QComboBox* m_comboBox = nullptr;
};
