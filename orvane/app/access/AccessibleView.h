#pragma once

#include <QAccessibleWidget>

class SceneView;

/// What screen readers get of a view of the scene: its description says what is shown.
class AccessibleView final : public QAccessibleWidget {
public:
    explicit AccessibleView(SceneView* view);

    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
};
