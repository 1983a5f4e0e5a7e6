#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class FieldTableModel;
class FieldTableSettings;
class QAction;
class QTreeView;

/// The columns of a field table, whose widths the user may choose. Until then that of the names is as wide as the
/// longest name that was shown, but not wider than that of the values.
class FieldColumns : public QObject {
    Q_OBJECT

public:
    /// The model is that of the view, which is the parent. The settings live longer.
    FieldColumns(QTreeView* view, const FieldTableModel& model, FieldTableSettings& settings);

    /// Shows or hides the types.
    [[nodiscard]] QAction* showType() const noexcept { return m_showType; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void chooseColumns(const QPoint& place);
    void measureNames();
    void fitNames();
    [[nodiscard]] int widthOf(const QString& name);

    QTreeView* m_view;
    const FieldTableModel& m_model;
    FieldTableSettings& m_settings;
    QAction* m_showType;
    QHash<QString, int> m_widths; // of names
    int m_longest = 0; // of the names that were shown
    bool m_isFitting = false;
};
