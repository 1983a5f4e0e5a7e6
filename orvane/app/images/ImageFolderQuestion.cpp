#include "orvane/app/images/ImageFolderQuestion.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/AppSettings.h"
#include "orvane/app/images/TextureFiles.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/messages/MessageBar.h"

#include <QAction>
#include <QDir>

namespace {

const QString topic = QStringLiteral("imageFolder");

} // namespace

ImageFolderQuestion::ImageFolderQuestion(
    TextureFiles& textures, AppSettings& settings, MessageBar& messages, QObject* parent)
    : QObject(parent)
    , m_textures(textures)
    , m_settings(settings)
    , m_messages(messages)
{
    m_textures.setAllowedFolders(allowedFolders());
    connect(&m_textures, &TextureFiles::folderRefused, this, &ImageFolderQuestion::ask);
    connect(&m_messages, &MessageBar::closed, this, [this](const QString& closedTopic) {
        if (closedTopic != topic)
            return;
        m_isDeclined = true;
        m_waiting.clear();
    });
}

const QString& ImageFolderQuestion::key()
{
    static const QString key = QStringLiteral("imageFolders");
    return key;
}

QStringList ImageFolderQuestion::allowedFolders() const
{
    return m_settings.value(key()).toStringList();
}

void ImageFolderQuestion::forgetFolders()
{
    set({});
}

QAction* ImageFolderQuestion::forgetAction()
{
    auto* const forget = new QAction(this);
    forget->setObjectName(QStringLiteral("file.forgetImageFolders"));
    const auto enable = [this, forget] {
        orvane::setReason(*forget, allowedFolders().isEmpty() ? tr("No folder has been allowed.") : QString());
    };
    orvane::followLanguage(forget, [forget, enable] {
        forget->setText(tr("Forget Allowed Image Folde&rs"));
        forget->setStatusTip(tr("Takes back that scenes may refer to images in folders outside their own"));
        enable();
    });
    connect(this, &ImageFolderQuestion::changed, forget, enable);
    connect(forget, &QAction::triggered, this, &ImageFolderQuestion::forgetFolders);
    return forget;
}

void ImageFolderQuestion::reset()
{
    m_isDeclined = false;
    m_waiting.clear();
    m_messages.clearTopic(topic);
}

void ImageFolderQuestion::ask(const QString& folder)
{
    if (m_isDeclined || m_waiting.contains(folder))
        return;
    m_waiting.append(folder);
    if (m_waiting.size() == 1)
        showNext();
}

void ImageFolderQuestion::showNext()
{
    const QString& folder = m_waiting.front();
    m_messages.showQuestion(
        tr("The scene refers to images in %1, outside its own folder. They aren't loaded unless you allow it.")
            .arg(QDir::toNativeSeparators(folder)),
        topic, tr("Allow Folder"), [this, folder] { allow(folder); });
}

void ImageFolderQuestion::allow(const QString& folder)
{
    m_waiting.removeAll(folder);
    if (!m_waiting.isEmpty())
        showNext();
    set(allowedFolders() + QStringList{folder});
}

void ImageFolderQuestion::set(const QStringList& folders)
{
    m_settings.setValue(key(), folders);
    m_settings.sync();
    m_textures.setAllowedFolders(folders);
    Q_EMIT changed();
}
