#include "orvane/app/window/HelpMenu.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/window/WindowShell.h"
#include "orvane/extender/OrvExtension.h"

#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>

namespace {

void showText(QWidget* parent, const QString& title, const QString& text, const char* name)
{
    auto* dialog = new QDialog(parent);
    dialog->setObjectName(QLatin1String(name));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(18, 18, 18, 12);
    layout->setSpacing(14);
    auto* label = new QLabel(text, dialog);
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    layout->addWidget(label);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    layout->addWidget(buttons);
    dialog->open();
}

QString tableRow(const QString& left, const QString& right)
{
    return QStringLiteral("<tr><td style=\"padding-right: 24px\">%1</td><td>%2</td></tr>")
        .arg(left.toHtmlEscaped(), right.toHtmlEscaped());
}

} // namespace

HelpMenu::HelpMenu(QMainWindow* window, const WindowShell& shell, QAction* keysAction)
    : QObject(window)
    , m_window(window)
    , m_menu(window->menuBar()->addMenu(QString()))
    , m_shell(shell)
{
    orvane::followLanguage(this, [this] { m_menu->setTitle(tr("&Help")); });
    m_menu->addAction(keysAction);
    QAction* about = m_menu->addAction(QString());
    about->setObjectName(QStringLiteral("help.about"));
    about->setMenuRole(QAction::AboutRole);
    orvane::followLanguage(about, [about] {
        about->setText(tr("&About Orvane"));
        about->setStatusTip(tr("Shows the version of the program and its extensions"));
    });
    connect(about, &QAction::triggered, this, &HelpMenu::showAbout);
}

void HelpMenu::showAbout()
{
    showText(m_window, tr("About Orvane"), aboutText(), "aboutDialog");
}

QString HelpMenu::aboutText() const
{
    QString text = QStringLiteral("<h3>Orvane %1</h3><p>%2</p>")
                       .arg(QCoreApplication::applicationVersion().toHtmlEscaped(),
                           tr("Inspects and edits the scene graph of 3D scenes.").toHtmlEscaped());
    QString rows;
    for (const OrvExtension* extension : m_shell.announcedExtensions())
        rows += tableRow(orvane::toQString(extension->getName()) + u' ' + orvane::toQString(extension->getVersion()),
            orvane::toQString(extension->getDescription()));
    if (rows.isEmpty())
        return text + QStringLiteral("<p>%1</p>").arg(tr("No extension is active."));
    return text + QStringLiteral("<p><b>%1</b></p><table>%2</table>").arg(tr("Active extensions"), rows);
}
