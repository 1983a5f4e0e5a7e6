#pragma once

#include <QWidget>

class QLineEdit;
class QToolButton;

/// The line above the field table that chooses which rows it shows.
class FieldFilterBar : public QWidget {
    Q_OBJECT

public:
    explicit FieldFilterBar(QWidget* parent = nullptr);

    [[nodiscard]] QString text() const;
    [[nodiscard]] bool isChangedOnly() const;
    [[nodiscard]] QLineEdit* line() const noexcept { return m_line; }
    void clear();

Q_SIGNALS:
    void changed();
    /// The user goes on in the table.
    void left();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QLineEdit* m_line;
    QToolButton* m_changedOnly;
};
