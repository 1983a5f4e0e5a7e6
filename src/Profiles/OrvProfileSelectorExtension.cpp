#include "Profiles/OrvProfileSelectorExtension.h"

#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"
#include "orvane/extender/OrvShell.h"

#include <QComboBox>
#include <QIcon>
#include <QToolBar>
#include <QVariant>

#include <utility>

namespace {

void appendProfile(QComboBox& comboBox, const OrvProfile& profile)
{
    // Contract: Latin-1 is read as UTF-8, so a name outside ASCII is shown wrong.
    const QString name = QString::fromUtf8(profile.getName().toLatin1());
    comboBox.insertItem(comboBox.count(), QIcon(), name, QVariant());
}

} // namespace

OrvProfileSelectorExtension::OrvProfileSelectorExtension()
{
    m_name = "Profile Selector";
    m_author = "KLD";
    m_description = "A toolbar to select the active profile.";
    m_version = "1.0.0";
}

OrvProfileSelectorExtension::~OrvProfileSelectorExtension() = default;

void OrvProfileSelectorExtension::activate()
{
    const OrvPluginsManager* const manager = OrvPluginsManager::getInstance();
    const OrvProfile* const active = manager->getActiveProfile();
    m_comboBox->clear();
    int activeIndex = -1;
    for (const OrvProfile* const profile : manager->getProfilesList()) {
        if (profile == active)
            activeIndex = m_comboBox->count();
        appendProfile(*m_comboBox, *profile);
    }
    m_comboBox->setCurrentIndex(activeIndex);
    connect(m_comboBox, &QComboBox::currentIndexChanged, this, &OrvProfileSelectorExtension::s_currentIndexChanged);
    OrvShell* const shell = OrvShell::getInstance();
    shell->addToolBar(m_toolBar, Qt::TopToolBarArea);
    shell->announceExtension(this, 1);
    show();
    OrvExtension::activate(); // Contract: last, unlike in other extensions.
}

void OrvProfileSelectorExtension::deactivate()
{
    // The tool bar isn't hidden here, unlike the docks. It is removed from the window.
    OrvExtension::deactivate();
    disconnect(m_comboBox, &QComboBox::currentIndexChanged, this, &OrvProfileSelectorExtension::s_currentIndexChanged);
    OrvShell* const shell = OrvShell::getInstance();
    shell->removeToolBar(m_toolBar);
    shell->withdrawExtension(this);
}

void OrvProfileSelectorExtension::hide()
{
    OrvExtension::hide();
    m_toolBar->hide();
}

void OrvProfileSelectorExtension::load()
{
    m_toolBar = new QToolBar;
    m_toolBar->setWindowTitle(QStringLiteral("Profile Selector"));
    m_comboBox = new QComboBox(m_toolBar);
    m_comboBox->setToolTip(QStringLiteral("Select the active profile."));
    m_toolBar->addWidget(m_comboBox);
}

void OrvProfileSelectorExtension::show()
{
    OrvExtension::show();
    m_toolBar->show();
}

void OrvProfileSelectorExtension::unload()
{
    delete std::exchange(m_comboBox, nullptr);
    delete std::exchange(m_toolBar, nullptr);
}

/// Contract: every profile up to the chosen one is appended to the list again, until the next `activate`. Choosing such
/// a repeated entry changes no profile.
void OrvProfileSelectorExtension::s_currentIndexChanged(int index)
{
    OrvPluginsManager* const manager = OrvPluginsManager::getInstance();
    int position = 0;
    for (OrvProfile* const profile : manager->getProfilesList()) {
        appendProfile(*m_comboBox, *profile);
        if (position == index) {
            manager->setActiveProfile(profile);
            return;
        }
        ++position;
    }
}
