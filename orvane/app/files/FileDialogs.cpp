#include "orvane/app/files/FileDialogs.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/files/FileFilters.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/transfer/FileFormats.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>

namespace {

struct FileDialogs {
    Q_DECLARE_TR_FUNCTIONS(FileDialogs)
};

QFileDialog* makeDialog(
    QWidget* window, const char* name, const QString& title, const QStringList& filters, const SceneDocument& document)
{
    auto* dialog = new QFileDialog(window, title);
    dialog->setObjectName(QLatin1String(name));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setNameFilters(filters);
    if (!document.fileName().isEmpty())
        dialog->setDirectory(QFileInfo(document.fileName()).absolutePath());
    return dialog;
}

} // namespace

namespace orvane {

QFileDialog* makeOpenDialog(QWidget* window, const SceneDocument& document)
{
    QFileDialog* dialog = makeDialog(window, "openDialog", FileDialogs::tr("Open"), openFilters(), document);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return dialog;
}

QFileDialog* makeImportDialog(QWidget* window, const SceneDocument& document)
{
    QFileDialog* dialog = makeDialog(window, "importDialog", FileDialogs::tr("Import"), importFilters(), document);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return dialog;
}

QFileDialog* makeCompareDialog(QWidget* window, const SceneDocument& document)
{
    QFileDialog* dialog = makeDialog(window, "compareDialog", FileDialogs::tr("Compare With"), openFilters(), document);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return dialog;
}

QFileDialog* makeSaveDialog(QWidget* window, const SceneDocument& document)
{
    QFileDialog* dialog = makeDialog(window, "saveDialog", FileDialogs::tr("Save Scene"), saveFilters(), document);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(toQString(SceneFormat::extension));
    const QString name = document.fileName().isEmpty() ? FileDialogs::tr("Untitled")
                                                       : QFileInfo(document.fileName()).completeBaseName();
    dialog->selectFile(name + u'.' + dialog->defaultSuffix());
    return dialog;
}

QFileDialog* makeExportDialog(QWidget* window, const SceneDocument& document)
{
    QFileDialog* dialog = makeDialog(window, "exportDialog", FileDialogs::tr("Export"), exportFilters(), document);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    const auto setSuffix = [dialog](const QString& filter) { dialog->setDefaultSuffix(exportSuffix(filter)); };
    setSuffix(dialog->selectedNameFilter());
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, setSuffix);
    return dialog;
}

} // namespace orvane
