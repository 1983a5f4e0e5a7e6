#pragma once

#include "orvane/extender/OrvExtension.h"

class QComboBox;
class QToolBar;

/// A tool bar at the top that lists the profiles. The profile that the user chooses becomes the active one.
///
/// `activate` makes the list, and a profile is found by its position in it. Later changes of the profiles are shown at
/// the next `activate` only.
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
