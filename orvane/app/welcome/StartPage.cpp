#include "orvane/app/welcome/StartPage.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/scene/SceneDocument.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int shownFiles = 5;
/// Of a file's name, so that it fits in a narrow window.
constexpr qsizetype mostCharacters = 60;

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
            return names;
    }
    return {};
}

QString linksTo(const QString& title, const QStringList& fileNames)
{
    if (fileNames.isEmpty())
        return {};
    QString text = QStringLiteral("<p><b>%1</b></p>").arg(title.toHtmlEscaped());
    for (const QString& fileName : fileNames.mid(0, shownFiles)) {
        const QFileInfo file(fileName);
        text += QStringLiteral("<p><a href=\"%1\">%2</a></p>")
                    .arg(QString::fromLatin1(orvane::toFileUrl(fileName)),
                        orvane::shortLine(file.fileName(), mostCharacters).toHtmlEscaped());
    }
    return text;
}

} // namespace

StartPage::StartPage(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(12);
    layout->addStretch(2);
    auto* title = new QLabel(tr("No scene is open"), this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    title->setFont(font);
    title->setAlignment(Qt::AlignCenter);
    layout->addWidget(title);
    auto* hint = new QLabel(tr("Open a scene or a 3D model, or drop its file on this window."), this);
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    layout->addWidget(hint);

    auto* buttons = new QHBoxLayout;
    auto* openButton = new QPushButton(tr("Open…"), this);
    openButton->setObjectName(QStringLiteral("startOpen"));
    openButton->setDefault(true);
    connect(openButton, &QPushButton::clicked, this, &StartPage::openRequested);
    auto* newButton = new QPushButton(tr("New Scene"), this);
    newButton->setObjectName(QStringLiteral("startNew"));
    connect(newButton, &QPushButton::clicked, this, &StartPage::newRequested);
    buttons->addStretch();
    buttons->addWidget(openButton);
    buttons->addWidget(newButton);
    buttons->addStretch();
    layout->addLayout(buttons);

    m_recent = addLinks(layout, "recentLinks");
    m_examples = addLinks(layout, "exampleLinks");
    const QString examples = linksTo(tr("Examples"), exampleFiles());
    m_examples->setText(examples);
    m_examples->setHidden(examples.isEmpty());
    layout->addStretch(3);
    setRecentFiles({});
}

void StartPage::setRecentFiles(const QStringList& fileNames)
{
    const QString text = linksTo(tr("Recent files"), fileNames);
    m_recent->setText(text);
    m_recent->setHidden(text.isEmpty());
}

QLabel* StartPage::addLinks(QVBoxLayout* layout, const char* name)
{
    auto* label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::RichText);
    label->setAlignment(Qt::AlignCenter);
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(label, &QLabel::linkActivated, this,
        [this](const QString& link) { Q_EMIT fileChosen(orvane::fromFileUrl(link.toLatin1())); });
    layout->addWidget(label);
    return label;
}
