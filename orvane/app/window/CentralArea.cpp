#include "orvane/app/window/CentralArea.h"

#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/welcome/StartPage.h"

#include <QStackedWidget>
#include <QVBoxLayout>

CentralArea::CentralArea(MessageBar* messages, SceneView* view, RecentFiles& recent, QWidget* parent)
    : QWidget(parent)
    , m_recent(recent)
    , m_pages(new QStackedWidget(this))
    , m_view(view)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(messages);
    m_pages->addWidget(view);
    layout->addWidget(m_pages, 1);
}

void CentralArea::showView()
{
    m_pages->setCurrentWidget(m_view);
}

void CentralArea::showStartPage()
{
    if (m_startPage == nullptr)
        makeStartPage();
    m_pages->setCurrentWidget(m_startPage);
}

void CentralArea::makeStartPage()
{
    m_startPage = new StartPage(m_recent, this);
    m_pages->addWidget(m_startPage);
    connect(m_startPage, &StartPage::openRequested, this, &CentralArea::openRequested);
    connect(m_startPage, &StartPage::newRequested, this, &CentralArea::newRequested);
    connect(m_startPage, &StartPage::fileChosen, this, &CentralArea::fileChosen);
    connect(m_startPage, &StartPage::windowRequested, this, &CentralArea::windowRequested);
    connect(m_startPage, &StartPage::failed, this, &CentralArea::failed);
}
