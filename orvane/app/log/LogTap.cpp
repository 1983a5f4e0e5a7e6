#include "orvane/app/log/LogTap.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/log/ErrorTap.h"
#include "orvane/app/log/LogBook.h"
#include "orvane/app/log/Passing.h"
#include "orvane/app/log/QtNoise.h"
#include "orvane/app/log/StreamLayers.h"
#include "orvane/extender/OrvPluginsManager.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxGLError.h"
#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/errors/NxReadError.h"

#include <QThread>

#include <algorithm>
#include <iostream>
#include <utility>

using orvane::Passing;
using orvane::Tapped;

namespace {

LogTap* theTap = nullptr;

/// Keeps a tap until the program ends, since what was put on top of it may still use it.
void keep(std::unique_ptr<ErrorTap> tap)
{
    static auto& kept = *new std::vector<std::unique_ptr<ErrorTap>>;
    kept.push_back(std::move(tap));
}

NxSeverity severityOf(const NxError& error)
{
    switch (NxDebugError::severityOf(error)) {
    case NxDebugError::Warning:
        return NxSeverity::Warning;
    case NxDebugError::Information:
        return NxSeverity::Information;
    case NxDebugError::Error:
        break;
    }
    return NxSeverity::Error;
}

NxSeverity severityOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
    case QtInfoMsg:
        return NxSeverity::Information;
    case QtWarningMsg:
        return NxSeverity::Warning;
    case QtCriticalMsg:
    case QtFatalMsg:
        break;
    }
    return NxSeverity::Error;
}

} // namespace

LogTap::LogTap(LogBook& book, OrvPluginsManager& plugins, QObject* parent)
    : QObject(parent)
    , m_book(book)
{
    const auto tapStream = [this](std::ostream& stream, NxSeverity severity, const QString& name) {
        m_streams.push_back(std::make_unique<StreamLayers>(
            stream, [this, severity, name](const QString& line) { m_book.add(severity, sourceOr(name), line); }));
    };
    tapStream(std::cerr, NxSeverity::Error, tr("Standard error"));
    tapStream(std::cout, NxSeverity::Information, tr("Standard output"));
    tapStream(std::clog, NxSeverity::Information, tr("Standard log"));
    addErrorTap(nullptr);
    theTap = this;
    m_formerHandler = qInstallMessageHandler(&handleMessage);
    connect(&plugins, &OrvPluginsManager::aboutToCall, this, &LogTap::prepareCall);
    connect(&plugins, &OrvPluginsManager::called, this, &LogTap::finishCall);
    connect(&plugins, &OrvPluginsManager::noticed, this, [this](const QString& fileName, const QString& text) {
        // If it is posted as an error too, that is done next.
        m_faults.insert(text, fileName);
        const auto addUnlessPosted = [this, text] {
            if (const QString plugin = m_faults.take(text); !plugin.isEmpty())
                m_book.add(NxSeverity::Warning, plugin, text);
        };
        QMetaObject::invokeMethod(this, addUnlessPosted, Qt::QueuedConnection);
    });
}

LogTap::~LogTap()
{
    const QtMessageHandler present = qInstallMessageHandler(m_formerHandler);
    if (present != &handleMessage)
        qInstallMessageHandler(present);
    theTap = nullptr;
    m_streams.clear(); // their unfinished lines are still added
    for (; !m_errors.empty(); m_errors.pop_back()) {
        ErrorTap& tap = *m_errors.back().tap;
        if (tap.isOnTop())
            continue;
        tap.stopListening();
        keep(std::move(m_errors.back().tap));
    }
}

void LogTap::prepareCall(const void* callee, const QString& name)
{
    m_callees.append(name);
    for (const auto& stream : m_streams)
        stream->remove(callee);
    removeErrorTaps(callee);
}

void LogTap::finishCall(const void* callee)
{
    m_callees.removeLast();
    for (const auto& stream : m_streams)
        stream->add(callee);
    addErrorTap(callee);
}

void LogTap::removeErrorTaps(const void* owner)
{
    for (auto layer = m_errors.end(); layer != m_errors.begin() + 1;) {
        --layer;
        if (layer->owner != owner)
            continue;
        if (!layer->tap->isOnTop()) {
            layer->tap->retire(*(layer - 1)->tap);
            keep(std::move(layer->tap));
        }
        layer = m_errors.erase(layer);
    }
}

void LogTap::addErrorTap(const void* owner)
{
    const auto isOnTop = [](const ErrorLayer& layer) { return layer.tap->isOnTop(); };
    if (std::ranges::none_of(m_errors, isOnTop))
        m_errors.push_back({owner, std::make_unique<ErrorTap>([this](const NxError& error) { note(error); })});
}

/// What is written or reported while an extension is called comes from it.
QString LogTap::sourceOr(const QString& source) const
{
    const bool isHere = QThread::currentThread() == thread();
    return isHere && !m_callees.isEmpty() ? m_callees.back() : source;
}

void LogTap::note(const NxError& error)
{
    const QString text = orvane::toQString(error.getDebugString().view());
    const NxType type = error.getTypeId();
    QString source = QThread::currentThread() == thread() ? m_faults.take(text) : QString();
    if (source.isEmpty())
        source = sourceOr(type == NxReadError::getClassTypeId() ? tr("Reading")
                : type == NxGLError::getClassTypeId()           ? tr("OpenGL")
                : type == NxMemoryError::getClassTypeId()       ? tr("Memory")
                                                                : tr("Toolkit"));
    m_book.add(severityOf(error), source, text);
}

void LogTap::noteMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (orvane::isQtNoise(text))
        return;
    const QString category = QString::fromUtf8(context.category);
    const bool hasCategory = !category.isEmpty() && category != QStringLiteral("default");
    m_book.add(severityOf(type), sourceOr(hasCategory ? category : QStringLiteral("Qt")), text.trimmed());
}

void LogTap::handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (theTap == nullptr)
        return;
    if (!Passing::isOn(Tapped::Message))
        theTap->noteMessage(type, context, text);
    const Passing passing(Tapped::Message);
    theTap->m_formerHandler(type, context, text);
}
