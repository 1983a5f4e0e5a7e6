#pragma once

#include <QMessageBox>

/// Asks what to do about changes that aren't saved. Opened without blocking; it deletes itself.
class SaveQuestion : public QMessageBox {
    Q_OBJECT

public:
    SaveQuestion(const QString& sceneName, QWidget* parent);

Q_SIGNALS:
    void saveChosen();
    void discardChosen();
    /// Also when the question is closed otherwise.
    void cancelChosen();
};
