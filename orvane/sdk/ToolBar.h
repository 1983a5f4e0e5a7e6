#pragma once

#include "orvane/extender/OrvExtension.h"
#include "orvane/sdk/Selected.h"

#include <QPointer>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

class QAction;
class QToolBar;

namespace orv {

/// A tool bar of the main window. A derived class adds its buttons in `build`.
///
///     class LampBar final : public orv::ToolBar {
///         void build() override
///         {
///             addButton<Lamp>("Off", "Turns the selected lamp off", [](Lamp& lamp) { orv::edit(lamp.on, false); });
///         }
///     };
class ToolBar : public OrvExtension {
    Q_OBJECT

public:
    ~ToolBar() override;

    void activate() override;
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

protected:
    /// The name is that of the extension and the title of the tool bar; without one, `ORV_PLUGIN` takes that of the
    /// class.
    explicit ToolBar(const QString& name = {}, Qt::ToolBarArea area = Qt::TopToolBarArea);

    /// Adds the buttons. Called once, in the first `activate`.
    virtual void build() = 0;

    /// Adds a button with a text and one sentence for the tool tip and the status bar, which runs `action`.
    QAction& addButton(const QString& text, const QString& tip, std::function<void()> action);
    /// The same for the selected node, or the selected field, of that class. It is disabled while there is none.
    template <typename Object>
    QAction& addButton(const QString& text, const QString& tip, std::function<void(Object&)> action)
    {
        const auto run = [action = std::move(action)] {
            if (auto* const object = selected<Object>())
                action(*object);
        };
        QAction& button = addButton(text, tip, run);
        enableBy(button, Object::getClassTypeId(), [] { return selected<Object>() != nullptr; });
        return button;
    }

    /// Null before `load` and after `unload`.
    [[nodiscard]] QToolBar* toolBar() const noexcept;

private:
    struct Condition {
        QPointer<QAction> action;
        QString tip;
        QString reason; // why it is disabled
        std::function<bool()> holds;
    };

    void enableBy(QAction& action, NxType type, std::function<bool()> condition);
    void update();

    Qt::ToolBarArea m_area;
    QPointer<QToolBar> m_toolBar;
    std::vector<Condition> m_conditions;
    bool m_isBuilt = false;
};

} // namespace orv
