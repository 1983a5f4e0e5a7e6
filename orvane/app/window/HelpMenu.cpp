#include "orvane/app/window/HelpMenu.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/help/HelpPages.h"
#include "orvane/app/help/HelpTopics.h"
#include "orvane/app/help/HelpWindow.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/window/WindowShell.h"
#include "orvane/extender/OrvExtension.h"

#include <QAction>
#include <QApplication>
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

HelpMenu::HelpMenu(QMainWindow* window, const WindowShell& shell, AppSettings& settings, QAction* keysAction)
    : QObject(window)
    , m_window(window)
    , m_menu(window->menuBar()->addMenu(QString()))
    , m_shell(shell)
    , m_settings(settings)
    , m_contents(addAction("help.contents"))
    , m_guide(addAction("help.guide"))
    , m_tutorial(addAction("help.tutorial"))
    , m_topic(addAction("help.topic"))
{
    m_topic->setShortcut(QKeySequence(QKeySequence::HelpContents));
    connect(m_contents, &QAction::triggered, this, [this] { showPage(orvane::HelpPages::contents()); });
    connect(m_guide, &QAction::triggered, this, [this] { showPage(QStringLiteral("guide.md")); });
    connect(m_tutorial, &QAction::triggered, this, [this] { showPage(QStringLiteral("tutorial.md")); });
    connect(m_topic, &QAction::triggered, this, [this] { showPage(orvane::helpTopicOf(QApplication::focusWidget())); });
    m_menu->addSeparator();
    m_menu->addAction(keysAction);
    m_about = addAction("help.about");
    m_about->setMenuRole(QAction::AboutRole);
    connect(m_about, &QAction::triggered, this, &HelpMenu::showAbout);
    orvane::followLanguage(this, [this] { setTexts(); });
}

QAction* HelpMenu::addAction(const char* name)
{
    QAction* const action = m_menu->addAction(QString());
    action->setObjectName(QLatin1String(name));
    return action;
}

void HelpMenu::setTexts()
{
    m_menu->setTitle(tr("&Help"));
    m_contents->setText(tr("&Contents"));
    m_contents->setStatusTip(tr("Shows the list of all pages of the help"));
    m_guide->setText(tr("&Guide"));
    m_guide->setStatusTip(tr("Shows the guide, from the first start to a plug-in of your own"));
    m_tutorial->setText(tr("&Tutorial"));
    m_tutorial->setStatusTip(tr("Shows ten minutes of work with a robot, step by step"));
    m_topic->setText(tr("&Help on This Part"));
    m_topic->setStatusTip(tr("Shows the page about the part of the window that has the focus"));
    m_about->setText(tr("&About Orvane"));
    m_about->setStatusTip(tr("Shows the version of the program and its extensions"));
}

void HelpMenu::showPage(const QString& page)
{
    if (m_help == nullptr)
        m_help = new HelpWindow(m_settings, m_window);
    m_help->showPage(page);
}

void HelpMenu::showAbout()
{
    showText(m_window, tr("About Orvane"), aboutText(), "aboutDialog");
}

QString HelpMenu::aboutText() const
{
    QString text = QStringLiteral("<h3>Orvane %1</h3><p>%2</p>")
                       .arg(QApplication::applicationVersion().toHtmlEscaped(),
                           tr("Inspects and edits the scene graph of 3D scenes.").toHtmlEscaped());
    QString rows;
    for (const OrvExtension* extension : m_shell.announcedExtensions())
        rows += tableRow(orvane::toQString(extension->getName()) + u' ' + orvane::toQString(extension->getVersion()),
            orvane::toQString(extension->getDescription()));
    if (rows.isEmpty())
        return text + QStringLiteral("<p>%1</p>").arg(tr("No extension is active."));
    return text + QStringLiteral("<p><b>%1</b></p><table>%2</table>").arg(tr("Active extensions"), rows);
}
