#pragma once

#include <QLabel>

/// The path of what is selected, cut in the middle where it is too long for the status bar.
class SelectionLabel : public QLabel {
    Q_OBJECT

public:
    explicit SelectionLabel(QWidget* parent = nullptr);

    void setPath(const QString& path);
    [[nodiscard]] const QString& path() const noexcept { return m_path; }

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_path;
};
