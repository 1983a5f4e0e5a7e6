#pragma once

#include "orvane/app/actions/ActionList.h"
#include "orvane/app/actions/PickerSource.h"
#include "orvane/app/actions/UseCounts.h"

class QMainWindow;

/// The actions of a window for the command palette: what was used most comes first, what can't be used now comes last,
/// with the reason.
class ActionSource : public PickerSource {
    Q_OBJECT

public:
    /// Both live longer.
    ActionSource(QMainWindow* window, AppSettings& settings);
    ~ActionSource() override;

    [[nodiscard]] Texts texts() const override;
    void search(const QString& text) override;
    bool work() override { return false; }
    [[nodiscard]] QList<PickerItem> items() override { return m_items; }
    void choose(quint64 id) override;
    void end() override;

private:
    [[nodiscard]] PickerItem itemOf(quint64 id) const;

    QMainWindow* m_window;
    UseCounts m_uses;
    QList<ListedAction> m_actions; // while the palette is open
    QList<PickerItem> m_items;
};
