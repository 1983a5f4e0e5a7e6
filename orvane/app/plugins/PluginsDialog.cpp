#include "orvane/app/plugins/PluginsDialog.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/plugins/PluginLoader.h"
#include "orvane/app/plugins/PluginModel.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr int widthInLetters = 120;
constexpr int heightInLines = 30;
// What the table and the details get of the height.
constexpr int tableShare = 3;
constexpr int detailsShare = 2;

} // namespace

PluginsDialog::PluginsDialog(PluginLoader& loader, QWidget* parent)
    : QDialog(parent)
    , m_loader(loader)
    , m_model(new PluginModel(loader, this))
    , m_view(new QTableView(this))
    , m_details(new QLabel(this))
{
    setObjectName(QStringLiteral("pluginsDialog"));
    orvane::followLanguage(this, [this] { setWindowTitle(tr("Plug-ins")); });
    auto* const hint = new QLabel(
        tr("A plug-in that is switched off isn't loaded from the next start on. Load Now takes effect at once."), this);
    hint->setWordWrap(true);
    m_view->setObjectName(QStringLiteral("plugins"));
    orvane::followLanguage(this, [this] { m_view->setAccessibleName(tr("Plug-ins")); });
    m_view->setModel(m_model);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setTabKeyNavigation(false);
    m_view->setShowGrid(false);
    m_view->setWordWrap(false);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(orvane::look::rowHeight(fontMetrics()));
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->horizontalHeader()->setHighlightSections(false);
    m_view->resizeColumnsToContents();
    m_details->setObjectName(QStringLiteral("pluginDetails"));
    m_details->setTextFormat(Qt::PlainText);
    m_details->setWordWrap(true);
    m_details->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    orvane::followLanguage(this, [this] { m_details->setAccessibleName(tr("About the selected plug-in")); });
    m_details->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // There may be a message for each fault, which together are higher than a screen.
    auto* const details = new QScrollArea(this);
    details->setWidget(m_details);
    details->setWidgetResizable(true);
    details->setFrameShape(QFrame::NoFrame);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_loadNow = buttons->addButton(tr("&Load Now"), QDialogButtonBox::ActionRole);
    m_loadNow->setObjectName(QStringLiteral("loadNow"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(hint);
    layout->addWidget(m_view, tableShare);
    layout->addWidget(details, detailsShare);
    layout->addWidget(buttons);

    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_loadNow, &QPushButton::clicked, this, &PluginsDialog::loadNow);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &PluginsDialog::showDetails);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &PluginsDialog::showDetails);
    m_view->setCurrentIndex(m_model->index(0, 0));
    showDetails();
    resize(fontMetrics().averageCharWidth() * widthInLetters, fontMetrics().lineSpacing() * heightInLines);
}

void PluginsDialog::showDetails()
{
    const PluginRecord* const plugin = m_model->record(m_view->currentIndex());
    const bool canLoad = plugin != nullptr && plugin->state != PluginRecord::State::Loaded;
    m_loadNow->setEnabled(canLoad);
    m_loadNow->setToolTip(canLoad ? QString() : tr("It is loaded already."));
    if (plugin == nullptr) {
        m_details->setText(tr("No plug-in was found."));
        return;
    }
    QStringList lines;
    if (!plugin->description.isEmpty())
        lines.append(plugin->description);
    if (!plugin->author.isEmpty())
        lines.append(tr("By %1").arg(plugin->author));
    if (!plugin->extensions.isEmpty())
        lines.append(tr("Extensions: %1").arg(plugin->extensions.join(QStringLiteral(", "))));
    if (plugin->state == PluginRecord::State::Suspect)
        lines.append(tr("The program ended while it was loading this plug-in. It is left out until you switch it on or "
                        "load it."));
    if (!plugin->message.isEmpty())
        lines.append(plugin->message);
    m_details->setText((lines + plugin->warnings).join(u'\n'));
}

void PluginsDialog::loadNow()
{
    if (const PluginRecord* const plugin = m_model->record(m_view->currentIndex()))
        m_loader.loadNow(plugin->fileName);
}
