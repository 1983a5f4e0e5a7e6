#include "orvane/app/fields/popups/PathEdit.h"

#include "orvane/app/base/DraggedFile.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/scene/ScenePaths.h"

#include <QCompleter>
#include <QDir>
#include <QDirIterator>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QStringListModel>
#include <QToolButton>

#include <utility>

namespace {

/// So many names of a folder are read at most.
constexpr int mostNames = 5000;

} // namespace

QString orvane::namedFile(const QString& path, const QString& folder)
{
    if (path.startsWith(u'/') || folder.isEmpty())
        return orvane::absoluteFileName(path);
    return QDir::cleanPath(folder + u'/' + path);
}

QString orvane::pathOfFile(const QString& fileName, const QString& folder)
{
    const QFileInfo file(fileName);
    return folder.isEmpty() ? fileName : orvane::rebasedPath(file.fileName(), file.path(), folder);
}

PathEdit::PathEdit(QString folder, QWidget* parent)
    : QWidget(parent)
    , m_folder(std::move(folder))
    , m_line(new QLineEdit(this))
    , m_button(new QToolButton(this))
    , m_completer(new QCompleter(this))
    , m_completions(new QStringListModel(this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_line);
    layout->addWidget(m_button);
    m_line->setAccessibleName(tr("File path"));
    m_line->setAcceptDrops(false); // the whole widget takes files
    m_button->setText(QStringLiteral("…"));
    m_button->setObjectName(QStringLiteral("chooseFile"));
    m_button->setAccessibleName(tr("Choose a file"));
    m_button->setToolTip(orvane::plainToolTip(tr("Chooses a file in a dialog.")));
    m_button->setFocusPolicy(Qt::TabFocus);
    m_completer->setModel(m_completions);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_line->setCompleter(m_completer);
    setFocusProxy(m_line);
    setAcceptDrops(true);
    connect(m_line, &QLineEdit::textEdited, this, &PathEdit::complete);
    connect(m_button, &QToolButton::clicked, this, &PathEdit::openDialog);
}

// Only the folder that is being typed is read.
void PathEdit::complete(const QString& text)
{
    const QString folder = text.left(text.lastIndexOf(u'/') + 1);
    QStringList paths;
    QDirIterator entries(orvane::namedFile(folder.isEmpty() ? QStringLiteral(".") : folder, m_folder),
        QDir::AllEntries | QDir::NoDotAndDotDot);
    for (int i = 0; i < mostNames && entries.hasNext(); ++i) {
        entries.next();
        paths.append(folder + entries.fileName() + (entries.fileInfo().isDir() ? QStringLiteral("/") : QString()));
    }
    paths.sort(Qt::CaseInsensitive);
    m_completions->setStringList(paths);
}

void PathEdit::openDialog()
{
    if (m_dialog != nullptr)
        return;
    m_dialog = new QFileDialog(this, tr("Choose a File"));
    m_dialog->setObjectName(QStringLiteral("pathDialog"));
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setFileMode(QFileDialog::ExistingFile);
    const QFileInfo present(orvane::namedFile(m_line->text(), m_folder));
    if (present.isDir())
        m_dialog->setDirectory(present.absoluteFilePath());
    else if (present.dir().exists())
        m_dialog->setDirectory(present.absolutePath());
    else
        m_dialog->setDirectory(m_folder);
    if (present.isFile())
        m_dialog->selectFile(present.fileName());
    connect(m_dialog, &QFileDialog::finished, this, [this](int result) {
        const QStringList files = m_dialog->selectedFiles();
        m_dialog = nullptr;
        m_line->setFocus();
        if (result == QFileDialog::Accepted && files.size() == 1)
            take(files.front());
        else
            Q_EMIT dialogClosed();
    });
    m_dialog->open();
}

void PathEdit::take(const QString& fileName)
{
    const QString path = orvane::pathOfFile(fileName, m_folder);
    m_line->setText(path);
    m_line->setModified(true);
    Q_EMIT chosen(path);
}

void PathEdit::dragEnterEvent(QDragEnterEvent* event)
{
    if (!orvane::draggedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PathEdit::dropEvent(QDropEvent* event)
{
    const QString fileName = orvane::draggedFile(*event->mimeData());
    if (fileName.isEmpty())
        return;
    event->acceptProposedAction();
    take(fileName);
}
