#include "orvane/app/settings/window/SettingsWindow.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/input/FilterLine.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/settings/SettingList.h"
#include "orvane/app/settings/SettingsFile.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/settings/window/ImportDialog.h"
#include "orvane/app/settings/window/SettingRow.h"

#include <QAction>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

const QString pageKey = QStringLiteral("settings/page");
const QString problemTopic = QStringLiteral("problem");
const QString resetTopic = QStringLiteral("reset");
const QString fileTopic = QStringLiteral("file");

} // namespace

SettingsWindow::SettingsWindow(SettingsStore& store, std::vector<Link> links, QWidget* parent)
    : QDialog(parent)
    , m_store(store)
    , m_links(std::move(links))
    , m_messages(new MessageBar(this))
    , m_filter(new FilterLine(meridane::Query::Subject::Rows, this))
    , m_pages(new QListWidget(this))
    , m_area(new QScrollArea(this))
    , m_nothing(new QLabel(m_area))
    , m_resetAll(new QPushButton(this))
    , m_import(new QPushButton(this))
    , m_export(new QPushButton(this))
    , m_close(new QPushButton(this))
{
    setObjectName(QStringLiteral("settingsWindow"));
    const int unit = orvane::look::unit(fontMetrics());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * unit, 2 * unit, 2 * unit, 2 * unit);
    layout->setSpacing(2 * unit);
    layout->addWidget(m_messages);
    layout->addWidget(m_filter);
    auto* const middle = new QHBoxLayout;
    middle->setSpacing(2 * unit);
    buildPages(middle);
    layout->addLayout(middle, 1);
    buildButtons(layout);
    connect(m_filter, &FilterLine::queryChanged, this, &SettingsWindow::search);
    connect(m_filter, &FilterLine::left, this, &SettingsWindow::goToRows);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_filter, [this] {
        m_filter->setFocus();
        m_filter->selectAll();
    });
    connect(&store, &SettingsStore::changed, this, &SettingsWindow::updateState);
    connect(&store.file(), &AppSettings::failed, this, &SettingsWindow::updateState);
    orvane::followLanguage(this, [this] { updateTexts(); });
    const QSize screen = this->screen()->availableSize();
    resize(std::min(fontMetrics().averageCharWidth() * 110, screen.width() * 9 / 10),
        std::min(orvane::look::rowHeight(fontMetrics()) * 26, screen.height() * 8 / 10));
    const QString page = store.file().value(pageKey).toString();
    for (int row = m_pages->count() - 1; row >= 0; --row) {
        if (!m_pages->item(row)->isHidden())
            m_pages->setCurrentRow(row);
        if (orvane::pageName(m_sections[static_cast<std::size_t>(row)].page) == page)
            break;
    }
    m_filter->setFocus();
}

SettingsWindow::~SettingsWindow() = default;

void SettingsWindow::buildPages(QBoxLayout* layout)
{
    m_pages->setObjectName(QStringLiteral("settingPages"));
    m_pages->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pages->installEventFilter(this);
    layout->addWidget(m_pages);
    auto* const content = new QWidget;
    content->setObjectName(QStringLiteral("settingRows"));
    auto* const rows = new QVBoxLayout(content);
    const int unit = orvane::look::unit(fontMetrics());
    rows->setContentsMargins(2 * unit, unit, 2 * unit, unit);
    rows->setSpacing(0);
    m_filter->setObjectName(QStringLiteral("settingsFilter"));
    m_nothing->setObjectName(QStringLiteral("noSettings"));
    m_nothing->setWordWrap(true);
    m_nothing->setAlignment(Qt::AlignCenter);
    rows->addWidget(m_nothing);
    for (const SettingPage page : allSettingPages)
        buildSection(page, rows);
    rows->addStretch(1);
    m_area->setObjectName(QStringLiteral("settingsArea"));
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setWidget(content);
    layout->addWidget(m_area, 1);
    connect(m_pages, &QListWidget::currentRowChanged, this, &SettingsWindow::choosePage);
}

void SettingsWindow::buildSection(SettingPage page, QBoxLayout* layout)
{
    QWidget* const content = layout->parentWidget();
    Section section{.page = page, .heading = new QLabel(content), .rows = {}, .links = {}};
    QFont font = section.heading->font();
    font.setBold(true);
    section.heading->setFont(font);
    const int unit = orvane::look::unit(fontMetrics());
    section.heading->setContentsMargins(0, 2 * unit, 0, unit);
    layout->addWidget(section.heading);
    for (const Setting& setting : orvane::settingList()) {
        if (setting.page != page)
            continue;
        section.rows.push_back(new SettingRow(setting, m_store, content));
        layout->addWidget(section.rows.back());
    }
    for (const Link& link : m_links) {
        if (link.page != page)
            continue;
        auto* const button = new QPushButton(content);
        button->setObjectName(link.action->objectName());
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, link.action, &QAction::trigger);
        section.links.push_back(button);
        layout->addWidget(button, 0, Qt::AlignLeft);
    }
    (new QListWidgetItem(m_pages))->setHidden(section.rows.empty() && section.links.empty());
    m_sections.push_back(std::move(section));
}

void SettingsWindow::buildButtons(QBoxLayout* layout)
{
    auto* const line = new QHBoxLayout;
    line->setSpacing(orvane::look::unit(fontMetrics()));
    m_resetAll->setObjectName(QStringLiteral("resetAllSettings"));
    m_import->setObjectName(QStringLiteral("importSettings"));
    m_export->setObjectName(QStringLiteral("exportSettings"));
    m_close->setObjectName(QStringLiteral("closeSettings"));
    for (QPushButton* const button : {m_resetAll, m_import, m_export, m_close}) {
        button->setAutoDefault(false);
        if (button == m_close)
            line->addStretch(1);
        line->addWidget(button);
    }
    layout->addLayout(line);
    connect(m_resetAll, &QPushButton::clicked, this, &SettingsWindow::askToResetAll);
    connect(m_import, &QPushButton::clicked, this, &SettingsWindow::chooseImport);
    connect(m_export, &QPushButton::clicked, this, &SettingsWindow::chooseExport);
    connect(m_close, &QPushButton::clicked, this, &QDialog::reject);
}

void SettingsWindow::updateTexts()
{
    setWindowTitle(tr("Settings"));
    m_filter->setPlaceholderText(tr("Search the settings"));
    m_filter->setAccessibleName(tr("Search the settings"));
    m_pages->setAccessibleName(tr("Pages of settings"));
    m_nothing->setText(tr("No setting has these words in its title, its description or its name."));
    m_resetAll->setText(tr("Reset &All…"));
    m_import->setText(tr("&Import…"));
    m_import->setToolTip(tr("Takes over settings from a file, after showing what changes"));
    m_export->setText(tr("&Export…"));
    m_export->setToolTip(tr("Writes all settings to a file"));
    m_close->setText(tr("&Close"));
    for (std::size_t index = 0; index < m_sections.size(); ++index) {
        const Section& section = m_sections[index];
        const QString title = orvane::pageTitle(section.page);
        section.heading->setText(title);
        m_pages->item(static_cast<int>(index))->setText(title);
        for (QPushButton* const button : section.links) {
            for (const Link& link : m_links) {
                if (link.action->objectName() == button->objectName())
                    button->setText(link.action->text());
            }
        }
    }
    m_pages->setFixedWidth(m_pages->sizeHintForColumn(0) + 8 * orvane::look::unit(fontMetrics()));
    updateState();
}

int SettingsWindow::changedCount() const
{
    const std::vector<Setting>& list = orvane::settingList();
    return static_cast<int>(std::count_if(list.begin(), list.end(), [this](const Setting& setting) {
        return m_store.isChanged(setting) || !m_store.unusableValue(setting).isEmpty();
    }));
}

void SettingsWindow::updateState()
{
    const bool isAny = changedCount() > 0;
    m_resetAll->setEnabled(isAny);
    m_resetAll->setToolTip(isAny ? tr("Sets all settings to their defaults") : tr("All settings have their defaults."));
    const QString problem = m_store.file().problem();
    if (problem.isEmpty())
        m_messages->clearTopic(problemTopic);
    else
        m_messages->showMessage(MessageBar::Severity::Warning, problem, problemTopic);
}

void SettingsWindow::search(const meridane::Query& query)
{
    m_query = query;
    for (const Section& section : m_sections) {
        for (SettingRow* const row : section.rows)
            row->setQuery(query);
    }
    showRows();
}

void SettingsWindow::showRows()
{
    bool isAny = false;
    for (std::size_t index = 0; index < m_sections.size(); ++index) {
        const bool hasRows = showRows(m_sections[index], static_cast<int>(index) == m_pages->currentRow());
        isAny = isAny || hasRows;
        QListWidgetItem* const item = m_pages->item(static_cast<int>(index));
        item->setFlags(hasRows || m_query.isEmpty() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
    }
    m_nothing->setVisible(!isAny);
    m_area->verticalScrollBar()->setValue(0);
}

/// Shows the rows of a page that belong there; whether there are any.
bool SettingsWindow::showRows(Section& section, bool isShownPage)
{
    const bool isSearched = !m_query.isEmpty();
    bool isAny = false;
    for (SettingRow* const row : section.rows) {
        const bool isShown = isSearched ? row->matches(m_query) : isShownPage;
        row->setVisible(isShown);
        isAny = isAny || isShown;
    }
    for (QPushButton* const button : section.links) {
        const bool isShown = isSearched ? m_query.matchesText(button->text().remove(u'&').toStdString()) : isShownPage;
        button->setVisible(isShown);
        isAny = isAny || isShown;
    }
    section.heading->setVisible(isAny);
    return isAny;
}

void SettingsWindow::choosePage(int row)
{
    if (row < 0)
        return;
    const Section& section = m_sections[static_cast<std::size_t>(row)];
    m_store.file().setValue(pageKey, orvane::pageName(section.page));
    if (m_query.isEmpty())
        showRows();
    else
        m_area->verticalScrollBar()->setValue(section.heading->y());
}

/// Goes on from the search line: to the first setting that is found.
void SettingsWindow::goToRows()
{
    for (const Section& section : m_sections) {
        for (SettingRow* const row : section.rows) {
            if (!row->isHidden()) {
                row->setFocus(Qt::TabFocusReason);
                m_area->ensureWidgetVisible(row);
                return;
            }
        }
    }
    m_pages->setFocus();
}

bool SettingsWindow::eventFilter(QObject* object, QEvent* event)
{
    // From the list of pages to the settings of the page.
    if (object == m_pages && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Right) {
            goToRows();
            return true;
        }
    }
    return QDialog::eventFilter(object, event);
}

void SettingsWindow::askToResetAll()
{
    const int count = changedCount();
    m_messages->showQuestion(count == 1 ? tr("One setting differs from its default. Reset it?")
                                        : tr("%1 settings differ from their defaults. Reset them?").arg(count),
        resetTopic, tr("Reset"), [this] { m_store.resetAll(); });
}

void SettingsWindow::chooseImport()
{
    auto* const dialog = new QFileDialog(this, tr("Import Settings"));
    dialog->setObjectName(QStringLiteral("importSettingsFile"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setNameFilters({tr("Settings (*.ini)"), tr("All files (*)")});
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &SettingsWindow::import);
    dialog->open();
}

void SettingsWindow::import(const QString& fileName)
{
    auto read = orvane::readSettings(m_store, fileName);
    if (!read) {
        m_messages->showMessage(MessageBar::Severity::Error, read.error(), fileTopic);
        return;
    }
    m_messages->clearTopic(fileTopic);
    if (read.value().empty()) {
        m_messages->showMessage(
            MessageBar::Severity::Information, tr("All settings have the values of the file already."), fileTopic);
        return;
    }
    auto* const dialog = new ImportDialog(m_store, std::move(read).value(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void SettingsWindow::chooseExport()
{
    auto* const dialog = new QFileDialog(this, tr("Export Settings"));
    dialog->setObjectName(QStringLiteral("exportSettingsFile"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({tr("Settings (*.ini)")});
    dialog->setDefaultSuffix(QStringLiteral("ini"));
    dialog->selectFile(QStringLiteral("orvane-settings.ini"));
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& fileName) {
        if (const auto written = orvane::writeSettings(m_store, fileName); !written)
            m_messages->showMessage(MessageBar::Severity::Error, written.error(), fileTopic);
        else
            m_messages->clearTopic(fileTopic);
    });
    dialog->open();
}
