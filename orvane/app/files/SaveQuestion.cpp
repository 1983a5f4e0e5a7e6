#include "orvane/app/files/SaveQuestion.h"

#include "orvane/app/base/PlainText.h"

SaveQuestion::SaveQuestion(const QString& sceneName, QWidget* parent)
    : QMessageBox(parent)
{
    setObjectName(QStringLiteral("saveQuestion"));
    setAttribute(Qt::WA_DeleteOnClose);
    setIcon(Warning);
    setWindowTitle(tr("Unsaved Changes"));
    setTextFormat(Qt::PlainText);
    setText(tr("Save the changes to \"%1\"?").arg(orvane::shortLine(sceneName)));
    setInformativeText(tr("They are lost if you don't save them."));
    setStandardButtons(Save | Discard | Cancel);
    setDefaultButton(Save);
    setEscapeButton(Cancel);
    connect(this, &QDialog::finished, this, [this](int result) {
        if (result == Save)
            Q_EMIT saveChosen();
        else if (result == Discard)
            Q_EMIT discardChosen();
        else
            Q_EMIT cancelChosen();
    });
}
