#pragma once

#include "meridane/scene/check/NxProblemKind.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <memory>
#include <vector>

class ErrorTap;
class LogBook;
class NxError;
class OrvPluginsManager;
class StreamLayers;

/// Writes into the log what goes to the standard streams, what the toolkit reports, and Qt's messages, and passes all
/// of it on to whoever had it before.
///
/// Extensions such as a console take over streams and handlers, and give them back later to those whom they took them
/// from. So there is a tap below all extensions, and another one on top of each that has taken something over. That one
/// is put in after the call of the extension and taken out before its next call, so the extension finds everything as
/// it has left it. Thread of the user interface only; what is tapped may come from any thread.
class LogTap : public QObject {
    Q_OBJECT

public:
    /// Both live longer. There is one tap at a time.
    LogTap(LogBook& book, OrvPluginsManager& plugins, QObject* parent = nullptr);
    /// Puts everything back as far as nobody else has taken it since.
    ~LogTap() override;

private:
    struct ErrorLayer {
        const void* owner = nullptr; ///< who took over what is below the tap; null for nobody
        std::unique_ptr<ErrorTap> tap;
    };

    void prepareCall(const void* callee, const QString& name);
    void finishCall(const void* callee);
    void removeErrorTaps(const void* owner);
    void addErrorTap(const void* owner);
    void note(const NxError& error);
    void noteMessage(QtMsgType type, const QMessageLogContext& context, const QString& text);
    [[nodiscard]] QString sourceOr(const QString& source) const;

    static void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text);

    LogBook& m_book;
    std::vector<std::unique_ptr<StreamLayers>> m_streams;
    std::vector<ErrorLayer> m_errors; // from the lowest one
    QtMessageHandler m_formerHandler = nullptr;
    QStringList m_callees; // the names of those that are being called
    QHash<QString, QString> m_faults; // of plug-ins that are being reported, with their file names
};
