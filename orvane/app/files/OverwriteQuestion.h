#pragma once

#include <QMessageBox>

/// Asks whether to save over a file that somebody else has changed. Opened without blocking; it deletes itself.
class OverwriteQuestion : public QMessageBox {
    Q_OBJECT

public:
    OverwriteQuestion(const QString& fileName, QWidget* parent);

Q_SIGNALS:
    void overwriteChosen();
    void saveAsChosen();
    void compareChosen();
    /// Also when the question is closed otherwise.
    void cancelChosen();
};
