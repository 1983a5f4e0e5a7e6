#pragma once

#include <QObject>
#include <QStringList>

class AppSettings;
class MessageBar;
class QAction;
class TextureFiles;

/// Asks the user about the folders outside the scene's own that its images are in, one after the other, and remembers
/// the folders that the user allows in the settings. Closing the question is a no for the rest of the scene.
class ImageFolderQuestion : public QObject {
    Q_OBJECT

public:
    /// The key of the settings that the allowed folders are kept under.
    static const QString& key();

    /// All of these live longer than the object.
    ImageFolderQuestion(TextureFiles& textures, AppSettings& settings, MessageBar& messages, QObject* parent);

    /// The folders that were allowed.
    [[nodiscard]] QStringList allowedFolders() const;
    /// Takes every permission back. Images that are shown stay until the scene is opened again.
    void forgetFolders();
    /// Begins with another scene.
    void reset();
    /// An action that takes every permission back, for a menu; owned by this.
    [[nodiscard]] QAction* forgetAction();

Q_SIGNALS:
    /// The permissions have changed.
    void changed();

private:
    void ask(const QString& folder);
    void showNext();
    void allow(const QString& folder);
    void set(const QStringList& folders);

    TextureFiles& m_textures;
    AppSettings& m_settings;
    MessageBar& m_messages;
    QStringList m_waiting; // folders to ask about; the first is being asked about
    bool m_isDeclined = false;
};
