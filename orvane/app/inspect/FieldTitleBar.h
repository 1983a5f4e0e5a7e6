#pragma once

#include <QIcon>
#include <QWidget>

class QDockWidget;
class QToolButton;

/// The title bar of a dock with the editor of a field: the path of the field, cut in the middle where it is too long.
/// Without a field it shows the dock's own title. The dock is moved, made floating and closed by it as by a usual one.
class FieldTitleBar : public QWidget {
    Q_OBJECT

public:
    /// The dock becomes the parent.
    explicit FieldTitleBar(QDockWidget* dock);

    /// Shows the path of a field, empty for none; locked if the editor stays on it.
    void setField(const QString& path, bool isLocked);
    [[nodiscard]] const QString& path() const noexcept { return m_path; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QToolButton* addButton(const char* name, const char* text);
    void updateButtons();
    void updateTexts();
    [[nodiscard]] int barHeight() const;

    QDockWidget* m_dock;
    QToolButton* m_floatButton;
    QToolButton* m_closeButton;
    QString m_path;
    QIcon m_padlock;
    bool m_isLocked = false;
};
