#pragma once

#include "orvane/extender/OrvExtension.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldContainer.h"

#include <QPointer>
#include <QString>

class QDockWidget;
class QWidget;

namespace orv {

/// A dock of the main window. A derived class makes its contents in `build`.
///
///     class Notes final : public orv::Dock {
///         QWidget* build() override { return new QPlainTextEdit; }
///     };
class Dock : public OrvExtension {
    Q_OBJECT

public:
    ~Dock() override;

    void activate() override;
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

protected:
    /// The name is that of the extension and the title of the dock; without one, `ORV_PLUGIN` takes that of the class.
    explicit Dock(const QString& name = {}, Qt::DockWidgetArea area = Qt::RightDockWidgetArea);

    /// Makes the contents, which the dock owns. Called once, before the first `activate` ends.
    virtual QWidget* build() = 0;
    /// A node was selected, or none, which is null. Called for the present selection as well, after each activation.
    virtual void nodeSelected(NxFieldContainer* node);
    /// The same for a field.
    virtual void fieldSelected(NxField* field);

    /// Null before `load` and after `unload`.
    [[nodiscard]] QDockWidget* dockWidget() const noexcept;

private:
    Qt::DockWidgetArea m_area;
    QPointer<QDockWidget> m_dock;
};

} // namespace orv
