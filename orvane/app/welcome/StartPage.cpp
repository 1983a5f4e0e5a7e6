#include "orvane/app/welcome/StartPage.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/files/RecentFiles.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/welcome/RecentModel.h"
#include "orvane/app/welcome/RecentView.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// Of a file's name, so that it fits in a narrow window.
constexpr qsizetype mostLinkCharacters = 60;
constexpr qsizetype mostExamples = 5;

/// The scenes that come with the tool: beside an installed program, or in the source tree that it was built in.
QStringList exampleFiles()
{
    const QString program = QCoreApplication::applicationDirPath();
    for (const char* folder : {"../share/orvane/examples", "../../../examples", "../examples"}) {
        const QDir dir(program + u'/' + QLatin1String(folder));
        QStringList names;
        for (const QFileInfo& file :
            dir.entryInfoList({u'*' + SceneDocument::fileExtension()}, QDir::Files, QDir::Name))
            names.append(QDir::cleanPath(file.absoluteFilePath()));
        if (!names.isEmpty())
            return names.mid(0, mostExamples);
    }
    return {};
}

QString linksTo(const QString& title, const QStringList& fileNames, const QColor& color)
{
    if (fileNames.isEmpty())
        return {};
    QStringList links;
    for (const QString& fileName : fileNames) {
        links += QStringLiteral("<a href=\"%1\" style=\"color: %3\">%2</a>")
                     .arg(QString::fromLatin1(orvane::toFileUrl(fileName)),
                         orvane::shortLine(QFileInfo(fileName).fileName(), mostLinkCharacters).toHtmlEscaped(),
                         color.name());
    }
    return QStringLiteral("<b>%1</b>&ensp; %2").arg(title.toHtmlEscaped(), links.join(QStringLiteral("&ensp; ")));
}

template <typename Widget>
Widget* named(Widget* widget, const char* name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace

StartPage::StartPage(RecentFiles& recent, QWidget* parent)
    : StartPage(recent, Thumbnails(), &FileLookup::look, std::chrono::seconds(2), parent)
{
}

StartPage::StartPage(RecentFiles& recent, const Thumbnails& thumbnails, const FileLookup::Look& look,
    std::chrono::milliseconds patience, QWidget* parent)
    : QWidget(parent)
    , m_recent(recent)
    , m_model(new RecentModel(thumbnails, look, patience, this))
    , m_title(new QLabel(this))
    , m_hint(new QLabel(this))
    , m_open(named(new QPushButton(this), "startOpen"))
    , m_new(named(new QPushButton(this), "startNew"))
    , m_heading(new QLabel(this))
    , m_search(named(new QLineEdit(this), "recentSearch"))
    , m_files(named(new RecentView(*m_model, this), "recentFiles"))
    , m_missing(named(new QLabel(this), "missingFiles"))
    , m_removeMissing(named(new QPushButton(this), "removeMissing"))
    , m_examples(named(new QLabel(this), "exampleLinks"))
    , m_layout(new QVBoxLayout(this))
{
    m_layout->addStretch(1);
    m_layout->addLayout(makeTop());
    m_layout->addLayout(makeHeading());
    m_layout->addWidget(m_files, 4);
    m_layout->addLayout(makeMissing());
    m_examples->setTextFormat(Qt::RichText);
    m_examples->setAlignment(Qt::AlignCenter);
    m_examples->setWordWrap(true);
    m_examples->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(m_examples, &QLabel::linkActivated, this,
        [this](const QString& link) { Q_EMIT fileChosen(orvane::fromFileUrl(link.toLatin1())); });
    m_layout->addWidget(m_examples);
    m_layout->addStretch(1);

    connect(m_files, &RecentView::openRequested, this, &StartPage::fileChosen);
    connect(m_files, &RecentView::openInNewWindowRequested, this, &StartPage::windowRequested);
    connect(m_files, &RecentView::removeRequested, &recent, qOverload<const QString&>(&RecentFiles::remove));
    connect(m_files, &RecentView::pinRequested, &recent, &RecentFiles::setPinned);
    connect(m_files, &RecentView::failed, this, &StartPage::failed);
    connect(m_model, &RecentModel::missingChanged, this, &StartPage::showMissing);
    connect(&recent, &RecentFiles::changed, this, &StartPage::listFiles);
    orvane::followLanguage(this, [this] { setTexts(); });
    setFonts();
    listFiles();
}

StartPage::~StartPage() = default;

QBoxLayout* StartPage::makeTop()
{
    auto* const top = new QVBoxLayout;
    m_title->setAlignment(Qt::AlignCenter);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_open->setDefault(true);
    connect(m_open, &QPushButton::clicked, this, &StartPage::openRequested);
    connect(m_new, &QPushButton::clicked, this, &StartPage::newRequested);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_open);
    buttons->addWidget(m_new);
    buttons->addStretch();
    top->addWidget(m_title);
    top->addWidget(m_hint);
    top->addLayout(buttons);
    return top;
}

QBoxLayout* StartPage::makeHeading()
{
    auto* const heading = new QHBoxLayout;
    QFont bold = font();
    bold.setBold(true);
    m_heading->setFont(bold);
    m_heading->setBuddy(m_files);
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textChanged, m_files, &RecentView::search);
    heading->addWidget(m_heading);
    heading->addStretch(1);
    heading->addWidget(m_search, 1);
    return heading;
}

QBoxLayout* StartPage::makeMissing()
{
    auto* const row = new QHBoxLayout;
    connect(m_removeMissing, &QPushButton::clicked, this, &StartPage::removeMissing);
    row->addWidget(m_missing);
    row->addWidget(m_removeMissing);
    row->addStretch();
    return row;
}

void StartPage::setTexts()
{
    m_title->setText(tr("No scene is open"));
    m_hint->setText(tr("Open a scene or a 3D model, or drop its file on this window."));
    m_open->setText(tr("Open…"));
    m_new->setText(tr("New Scene"));
    m_heading->setText(tr("Recent files"));
    m_search->setPlaceholderText(tr("Search name or folder"));
    m_search->setAccessibleName(tr("Search recent files"));
    m_removeMissing->setText(tr("Remove Them from List"));
    showExamples();
    showMissing();
}

void StartPage::setFonts()
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    m_title->setFont(large);
    const int unit = orvane::look::unit(fontMetrics());
    m_layout->setContentsMargins(6 * unit, 3 * unit, 6 * unit, 3 * unit);
    m_layout->setSpacing(3 * unit);
}

void StartPage::listFiles()
{
    const QStringList pinned = m_recent.pinned();
    const QStringList files = m_recent.fileNames();
    m_model->setFiles(pinned, files);
    const int count = m_model->rowCount();
    for (QWidget* const widget : {static_cast<QWidget*>(m_heading), static_cast<QWidget*>(m_files)})
        widget->setVisible(count > 0);
    // The files get all of the room; without them the rest is in the middle.
    m_layout->setStretch(0, count > 0 ? 0 : 1);
    m_layout->setStretch(m_layout->count() - 1, count > 0 ? 0 : 1);
    m_search->setVisible(count > manyFiles);
    if (count <= manyFiles)
        m_search->clear();
}

void StartPage::showMissing()
{
    const auto count = static_cast<int>(m_model->missing().size());
    m_missing->setText(tr("%n of the files are missing.", nullptr, count));
    m_missing->setVisible(count > 0);
    m_removeMissing->setVisible(count > 0);
}

void StartPage::showExamples()
{
    const QString examples = linksTo(tr("Examples"), exampleFiles(),
        orvane::look::textColor(orvane::look::Tint::Information, palette().color(QPalette::Window)));
    m_examples->setText(examples);
    m_examples->setHidden(examples.isEmpty());
}

void StartPage::removeMissing()
{
    m_recent.remove(m_model->missing());
}

// Files and their pictures may have changed while a scene was open.
void StartPage::showEvent(QShowEvent* event)
{
    m_model->forget();
    QWidget::showEvent(event);
}

void StartPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        setFonts();
    else if (event->type() == QEvent::PaletteChange)
        showExamples();
}
