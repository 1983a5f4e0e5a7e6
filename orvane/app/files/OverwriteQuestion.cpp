#include "orvane/app/files/OverwriteQuestion.h"

#include "orvane/app/base/PlainText.h"

#include <QFileInfo>
#include <QPushButton>

OverwriteQuestion::OverwriteQuestion(const QString& fileName, QWidget* parent)
    : QMessageBox(parent)
{
    setObjectName(QStringLiteral("overwriteQuestion"));
    setAttribute(Qt::WA_DeleteOnClose);
    setIcon(Warning);
    setWindowTitle(tr("File Changed on Disk"));
    setTextFormat(Qt::PlainText);
    setText(tr("\"%1\" has changed on disk since it was opened or saved here. Save anyway?")
                .arg(orvane::shortLine(QFileInfo(fileName).fileName())));
    setInformativeText(tr("What has changed in the file is lost if you save over it."));
    const QPushButton* const overwrite = addButton(tr("Save &Over It"), DestructiveRole);
    const QPushButton* const saveAs = addButton(tr("Save &As…"), AcceptRole);
    const QPushButton* const compare = addButton(tr("&Compare"), ActionRole);
    QPushButton* const cancel = addButton(Cancel);
    setDefaultButton(cancel);
    setEscapeButton(cancel);
    connect(this, &QDialog::finished, this, [this, overwrite, saveAs, compare] {
        if (clickedButton() == overwrite)
            Q_EMIT overwriteChosen();
        else if (clickedButton() == saveAs)
            Q_EMIT saveAsChosen();
        else if (clickedButton() == compare)
            Q_EMIT compareChosen();
        else
            Q_EMIT cancelChosen();
    });
}
